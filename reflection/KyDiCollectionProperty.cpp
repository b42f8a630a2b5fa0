#include "reflection/KyDiCollectionProperty.h"

#include "manager/KyDiReflectedClasses.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiCollectionProperty, kCollectionProperty)

KyDiCollectionProperty::KyDiCollectionProperty(const KyRxCollectionProperty* source,
                                               const KyRxObject* owner)
    : KyDiWrapper(source->name(), source->type(), owner, source) {}

KyDiCollectionProperty::KyDiCollectionProperty(const wchar_t* name, const KyRxValueType& type)
    : KyDiWrapper(name, type, nullptr, nullptr) {}

KyRxValueIterator* KyDiCollectionProperty::subNewValueIterator(const KyRxObject* object) const {
    return m_source.newValueIterator(this, object);
}

Kyro::ErrorStatus KyDiCollectionProperty::subTryGetCount(const KyRxObject* object,
                                                         int& count) const {
    return m_source.tryGetCount(this, object, count);
}
