// Not part of the interface: a reflected property of a context, read and
// written through two plain functions of the context's class. A property
// without a setter is read-only. An object of another class answers
// eNotThatKindOfClass, a value of another type eInvalidInput.
#pragma once

#include "rx/KyRxProperty.h"

template <typename Owner, typename T>
class ContextProperty : public KyRxProperty {
public:
    using Getter = Kyro::ErrorStatus (*)(const Owner& context, T& out);
    using Setter = Kyro::ErrorStatus (*)(Owner& context, const T& value);

    ContextProperty(const wchar_t* name, const KyRxObject* owner, Getter getter,
                    Setter setter = nullptr)
        : KyRxProperty(name, KyRxValueType::Desc<T>::value(), owner),
          m_getter(getter),
          m_setter(setter) {}

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override {
        const Owner* context = dynamic_cast<const Owner*>(object);
        if (context == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        T out{};
        const Kyro::ErrorStatus status = m_getter(*context, out);
        value = KyRxValue(out);
        return status;
    }
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override {
        Owner* context = dynamic_cast<Owner*>(object);
        if (m_setter == nullptr) {
            return KyRxProperty::subSetValue(object, value);
        }
        if (context == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        const T* payload = valueCast<T>(&value);
        if (payload == nullptr) {
            return Kyro::eInvalidInput;
        }
        return m_setter(*context, *payload);
    }
    bool subIsReadOnly() const override { return m_setter == nullptr; }

private:
    Getter m_getter;
    Setter m_setter;
};
