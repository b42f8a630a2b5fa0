#include "ValueTestTypes.h"

TrackedCounts g_tracked;

// Like the platform's own types, the test types live until the process ends.
template <>
const KyRxValueType& KyRxValueType::Desc<Bytes24>::value() {
    static const KyRxValueType* const s_type =
        new KyRxValueTypePOD<Bytes24>(L"TestBytes24", nullptr);
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<Bytes25>::value() {
    static const KyRxValueType* const s_type =
        new KyRxValueTypePOD<Bytes25>(L"TestBytes25", nullptr);
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<Bytes40>::value() {
    static const KyRxValueType* const s_type =
        new KyRxValueTypePOD<Bytes40>(L"TestBytes40", nullptr);
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<SmallTracked>::value() {
    static const KyRxValueType* const s_type =
        new KyRxNonBlittableType<SmallTracked>(L"TestSmallTracked", nullptr);
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<LargeTracked>::value() {
    static const KyRxValueType* const s_type =
        new KyRxNonBlittableType<LargeTracked>(L"TestLargeTracked", nullptr);
    return *s_type;
}
