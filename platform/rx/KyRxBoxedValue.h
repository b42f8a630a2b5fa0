// KyRxBoxedValue: the object form of a value, so that a value can stand where
// a runtime object is expected (a property read on a value, a sub-property of
// a point). KyRxBoxedValueOnStack boxes a value that the caller keeps alive.
#pragma once

#include "rx/KyRxValue.h"

class KYPLATFORM_API KyRxBoxedValue : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxBoxedValue);

    virtual const KyRxValue* value() const = 0;
    virtual KyRxValue* value() = 0;

    // A copy on the heap that owns its value.
    KyRxObject* clone() const override;
    Kyro::ErrorStatus copyFrom(const KyRxObject* other) override;
    bool isEqualTo(const KyRxObject* other) const override;
    KyRx::Ordering comparedTo(const KyRxObject* other) const override;

    // A new boxed copy of `value`, owned by the caller.
    static KyRxBoxedValue* newBoxedValueOnHeap(const KyRxValue& value);
};

class KYPLATFORM_API KyRxBoxedValueOnStack : public KyRxBoxedValue {
public:
    KYRX_DECLARE_MEMBERS(KyRxBoxedValueOnStack);
    explicit KyRxBoxedValueOnStack(const KyRxValue& value)
        : m_value(const_cast<KyRxValue*>(&value)) {}
    const KyRxValue* value() const override { return m_value; }
    KyRxValue* value() override { return m_value; }

private:
    KyRxValue* m_value;
};
