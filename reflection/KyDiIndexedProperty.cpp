#include "reflection/KyDiIndexedProperty.h"

#include "manager/KyDiReflectedClasses.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiIndexedProperty, kIndexedProperty)

KyDiIndexedProperty::KyDiIndexedProperty(const KyRxIndexedProperty* source, const KyRxObject* owner)
    : KyDiWrapper(source->name(), source->type(), owner, source),
      m_collection(new KyDiCollectionProperty(source, nullptr)) {}

KyDiIndexedProperty::~KyDiIndexedProperty() {
    KyRxMember::deleteMember(m_collection);
}

KyRxValueIterator* KyDiIndexedProperty::subNewValueIterator(const KyRxObject* object) const {
    return m_collection->newValueIterator(object);
}

Kyro::ErrorStatus KyDiIndexedProperty::subTryGetCount(const KyRxObject* object, int& count) const {
    return m_collection->tryGetCount(object, count);
}

Kyro::ErrorStatus KyDiIndexedProperty::subGetValue(const KyRxObject* object, int index,
                                                   KyRxValue& value) const {
    return m_source.get(this, object, value, index, nullptr);
}

Kyro::ErrorStatus KyDiIndexedProperty::subSetValue(KyRxObject* object, int index,
                                                   const KyRxValue& value) const {
    return m_source.set(this, object, value, index, nullptr);
}

Kyro::ErrorStatus KyDiIndexedProperty::subInsertValue(KyRxObject* /*object*/, int /*index*/,
                                                      const KyRxValue& /*value*/) const {
    return Kyro::eNotSupported;
}

Kyro::ErrorStatus KyDiIndexedProperty::subRemoveValue(KyRxObject* /*object*/, int /*index*/) const {
    return Kyro::eNotSupported;
}
