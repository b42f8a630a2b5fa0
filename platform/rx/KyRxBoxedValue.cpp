#include "rx/KyRxBoxedValue.h"

#include "rx/KyRxClass.h"

KYRX_DEFINE_MEMBERS(KyRxBoxedValue, KyRxObject)
KYRX_DEFINE_MEMBERS(KyRxBoxedValueOnStack, KyRxBoxedValue)

namespace {

// The heap form: owns a copy of the value it was made with.
class KyRxBoxedValueOnHeap : public KyRxBoxedValue {
public:
    explicit KyRxBoxedValueOnHeap(const KyRxValue& value) : m_value(value) {}
    const KyRxValue* value() const override { return &m_value; }
    KyRxValue* value() override { return &m_value; }

private:
    KyRxValue m_value;
};

}  // namespace

KyRxBoxedValue* KyRxBoxedValue::newBoxedValueOnHeap(const KyRxValue& value) {
    return new KyRxBoxedValueOnHeap(value);
}

// A box without a value (a dynamic object that has none) clones to a box of
// the empty value.
KyRxObject* KyRxBoxedValue::clone() const {
    const KyRxValue* own = value();
    return newBoxedValueOnHeap(own != nullptr ? *own : KyRxValue::empty());
}

Kyro::ErrorStatus KyRxBoxedValue::copyFrom(const KyRxObject* other) {
    const KyRxBoxedValue* source = kyrxCast<KyRxBoxedValue>(other);
    if (source == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    KyRxValue* own = value();
    const KyRxValue* theirs = source->value();
    if (own == nullptr || theirs == nullptr) {
        return Kyro::eNotApplicable;
    }
    *own = *theirs;
    return Kyro::eOk;
}

// Two boxes are equal when both hold values and the values are equal; two
// boxes without values are equal only when they are the same object.
bool KyRxBoxedValue::isEqualTo(const KyRxObject* other) const {
    if (other == this) {
        return true;
    }
    const KyRxBoxedValue* source = kyrxCast<KyRxBoxedValue>(other);
    if (source == nullptr) {
        return false;
    }
    const KyRxValue* own = value();
    const KyRxValue* theirs = source->value();
    return own != nullptr && theirs != nullptr && *own == *theirs;
}

// Values have equality but no order of their own: equal boxes answer kEqual,
// all others kNotOrderable.
KyRx::Ordering KyRxBoxedValue::comparedTo(const KyRxObject* other) const {
    return isEqualTo(other) ? KyRx::kEqual : KyRx::kNotOrderable;
}
