#include "reflection/KyDiDictionaryProperty.h"

#include "manager/KyDiReflectedClasses.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiDictionaryProperty, kDictionaryProperty)

KyDiDictionaryProperty::KyDiDictionaryProperty(const KyRxDictionaryProperty* source,
                                               const KyRxObject* owner)
    : KyDiWrapper(source->name(), source->type(), owner, source),
      m_collection(new KyDiCollectionProperty(source, nullptr)) {}

KyDiDictionaryProperty::~KyDiDictionaryProperty() {
    KyRxMember::deleteMember(m_collection);
}

KyRxValueIterator* KyDiDictionaryProperty::subNewValueIterator(const KyRxObject* object) const {
    return m_collection->newValueIterator(object);
}

Kyro::ErrorStatus KyDiDictionaryProperty::subTryGetCount(const KyRxObject* object,
                                                         int& count) const {
    return m_collection->tryGetCount(object, count);
}

Kyro::ErrorStatus KyDiDictionaryProperty::subGetValue(const KyRxObject* object, const wchar_t* key,
                                                      KyRxValue& value) const {
    return m_source.get(this, object, value, -1, key);
}

Kyro::ErrorStatus KyDiDictionaryProperty::subSetValue(KyRxObject* object, const wchar_t* key,
                                                      const KyRxValue& value) const {
    return m_source.set(this, object, value, -1, key);
}
