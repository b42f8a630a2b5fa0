#include "reflection/KyDiCollectionProperty.h"

#include "manager/KyDiReflectedClasses.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiCollectionProperty, kCollectionProperty)

KyDiCollectionProperty::KyDiCollectionProperty(const KyRxCollectionProperty* source,
                                               const KyRxObject* owner)
    : KyRxCollectionProperty(source->name(), source->type(), owner), m_source(source) {
    m_source.shareAttributes(*this);
}

KyDiCollectionProperty::KyDiCollectionProperty(const wchar_t* name, const KyRxValueType& type)
    : KyRxCollectionProperty(name, type, nullptr), m_source(nullptr) {}

KyDiCollectionProperty::~KyDiCollectionProperty() {
    WrapperSource::releaseAttributes(*this);
}

KyString KyDiCollectionProperty::subLocalName() const {
    return m_source.localName();
}

Kyro::ErrorStatus KyDiCollectionProperty::subChildren(KyRxMemberArray& /*children*/) const {
    return Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDiCollectionProperty::subChildrenEx(const KyRxMemberArray*& children) const {
    return m_source.children(children);
}

KyRxValueIterator* KyDiCollectionProperty::subNewValueIterator(const KyRxObject* object) const {
    return m_source.newValueIterator(this, object);
}

Kyro::ErrorStatus KyDiCollectionProperty::subTryGetCount(const KyRxObject* object,
                                                         int& count) const {
    return m_source.tryGetCount(this, object, count);
}
