#include "reflection/KyDiProperty.h"

#include "manager/KyDiReflectedClasses.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiProperty, kProperty)

KyDiProperty::KyDiProperty(const KyRxProperty* source, const KyRxObject* owner)
    : KyDiWrapper(source->name(), source->type(), owner, source) {}

KyDiProperty::KyDiProperty(const wchar_t* name, const KyRxValueType& type)
    : KyDiWrapper(name, type, nullptr, nullptr) {}

Kyro::ErrorStatus KyDiProperty::subGetValue(const KyRxObject* object, KyRxValue& value) const {
    return m_source.get(this, object, value, -1, nullptr);
}

Kyro::ErrorStatus KyDiProperty::subSetValue(KyRxObject* object, const KyRxValue& value) const {
    return m_source.set(this, object, value, -1, nullptr);
}
