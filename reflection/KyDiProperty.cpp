#include "reflection/KyDiProperty.h"

#include "manager/KyDiReflectedClasses.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiProperty, kProperty)

KyDiProperty::KyDiProperty(const KyRxProperty* source, const KyRxObject* owner)
    : KyRxProperty(source->name(), source->type(), owner), m_source(source) {
    m_source.shareAttributes(*this);
}

KyDiProperty::KyDiProperty(const wchar_t* name, const KyRxValueType& type)
    : KyRxProperty(name, type, nullptr), m_source(nullptr) {}

KyDiProperty::~KyDiProperty() {
    WrapperSource::releaseAttributes(*this);
}

bool KyDiProperty::subIsReadOnly() const {
    return m_source.isReadOnly();
}

KyString KyDiProperty::subLocalName() const {
    return m_source.localName();
}

Kyro::ErrorStatus KyDiProperty::subChildren(KyRxMemberArray& /*children*/) const {
    return Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDiProperty::subChildrenEx(const KyRxMemberArray*& children) const {
    return m_source.children(children);
}

Kyro::ErrorStatus KyDiProperty::subGetValue(const KyRxObject* object, KyRxValue& value) const {
    return m_source.get(this, object, value, -1, nullptr);
}

Kyro::ErrorStatus KyDiProperty::subSetValue(KyRxObject* object, const KyRxValue& value) const {
    return m_source.set(this, object, value, -1, nullptr);
}
