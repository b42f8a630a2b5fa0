#include "reflection/KyDiIndexedProperty.h"

#include "manager/KyDiReflectedClasses.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiIndexedProperty, kIndexedProperty)

KyDiIndexedProperty::KyDiIndexedProperty(const KyRxIndexedProperty* source, const KyRxObject* owner)
    : KyRxIndexedProperty(source->name(), source->type(), owner),
      m_source(source),
      m_collection(new KyDiCollectionProperty(source, nullptr)) {
    m_source.shareAttributes(*this);
}

KyDiIndexedProperty::~KyDiIndexedProperty() {
    WrapperSource::releaseAttributes(*this);
    KyRxMember::deleteMember(m_collection);
}

bool KyDiIndexedProperty::subIsReadOnly() const {
    return m_source.isReadOnly();
}

KyString KyDiIndexedProperty::subLocalName() const {
    return m_source.localName();
}

Kyro::ErrorStatus KyDiIndexedProperty::subChildren(KyRxMemberArray& /*children*/) const {
    return Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDiIndexedProperty::subChildrenEx(const KyRxMemberArray*& children) const {
    return m_source.children(children);
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
