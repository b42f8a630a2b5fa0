// KyRxValueMemberProperty<Payload, Field>: a member of a value type that reads
// and writes one part of the payload: a coordinate of a point, the brightness
// of tone parameters. The object handed to it boxes the value (a
// KyRxBoxedValue, on the stack or on the heap), and a write changes the boxed
// value in place.
//
// Statuses: the object must box a Payload (KyRxValue::unbox holding one), else
// eNotThatKindOfClass; a write takes a value of the Field type, else
// eInvalidInput, and a setter that refuses the value (out of its range) gives
// eInvalidInput too. Without a setter the property is read-only.
#pragma once

#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxProperty.h"

template <typename Payload, typename Field>
class KyRxValueMemberProperty : public KyRxProperty {
public:
    using Getter = Field (*)(const Payload& payload);
    // Answers false, leaving the payload alone, when it refuses the value.
    using Setter = bool (*)(Payload& payload, Field value);

    KyRxValueMemberProperty(const wchar_t* name, const KyRxObject* owner, Getter getter,
                            Setter setter = nullptr)
        : KyRxProperty(name, KyRxValueType::Desc<Field>::value(), owner),
          m_getter(getter),
          m_setter(setter) {}

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override {
        const Payload* payload = valueCast<Payload>(KyRxValue::unbox(object));
        if (payload == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        value = KyRxValue(m_getter(*payload));
        return Kyro::eOk;
    }

    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override {
        if (m_setter == nullptr) {
            return KyRxProperty::subSetValue(object, value);
        }
        Payload* payload = valueCast<Payload>(KyRxValue::unbox(object));
        if (payload == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        const Field* field = valueCast<Field>(&value);
        if (field == nullptr) {
            return Kyro::eInvalidInput;
        }
        return m_setter(*payload, *field) ? Kyro::eOk : Kyro::eInvalidInput;
    }

    bool subIsReadOnly() const override { return m_setter == nullptr; }

private:
    Getter m_getter;
    Setter m_setter;
};
