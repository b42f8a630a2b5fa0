// Where a value keeps its payload (its own 24-byte buffer or a heap block),
// and that copies, assignments, moves and destruction keep every payload
// alive exactly as long as its value, on both sides of the 24-byte line.
#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "ValueTestTypes.h"
#include "ge/KyGePoint3d.h"
#include "gi/KyGiToneOperatorParameters.h"
#include "rx/KyRxValue.h"

namespace {

bool isInline(const KyRxValue& value) {
    const auto* begin = reinterpret_cast<const unsigned char*>(&value);
    const auto* payload = static_cast<const unsigned char*>(value.valuePtr());
    return payload >= begin && payload < begin + sizeof(KyRxValue);
}

Bytes24 bytes24(unsigned char fill) {
    Bytes24 record;
    record.bytes.fill(fill);
    return record;
}

Bytes25 bytes25(unsigned char fill) {
    Bytes25 record;
    record.bytes.fill(fill);
    return record;
}

Bytes40 bytes40(unsigned char fill) {
    Bytes40 record;
    record.bytes.fill(fill);
    return record;
}

class NonBlittableValue : public ::testing::Test {
protected:
    void SetUp() override { g_tracked = TrackedCounts(); }
    void TearDown() override {
        EXPECT_EQ(0, g_tracked.alive()) << "a payload was leaked or destroyed twice";
        EXPECT_EQ(0, g_tracked.faults) << "a payload was used after its destruction";
    }
};

TEST(ValueStorage, PayloadsUpTo24BytesStayInTheValueAndLargerOnesGoToTheHeap) {
    EXPECT_TRUE(isInline(KyRxValue(KyGePoint3d(1, 2, 3))));
    EXPECT_TRUE(isInline(KyRxValue(bytes24(1))));
    EXPECT_TRUE(isInline(KyRxValue(SmallTracked(1))));
    EXPECT_FALSE(isInline(KyRxValue(bytes25(1))));
    EXPECT_FALSE(isInline(KyRxValue(KyGiToneOperatorParameters())));
    EXPECT_FALSE(isInline(KyRxValue(LargeTracked(1))));
}

TEST(ValueStorage, CopiesOnEitherSideOfTheLineAreIndependent) {
    KyRxValue small(bytes24(1));
    KyRxValue large(bytes25(2));
    KyRxValue smallCopy(small);
    KyRxValue largeCopy(large);

    EXPECT_EQ(small, smallCopy);
    EXPECT_EQ(large, largeCopy);
    EXPECT_NE(large.valuePtr(), largeCopy.valuePtr());

    valueCast<Bytes24>(&smallCopy)->bytes[23] = 9;
    valueCast<Bytes25>(&largeCopy)->bytes[24] = 9;
    EXPECT_EQ(1, valueCast<Bytes24>(&small)->bytes[23]);
    EXPECT_EQ(2, valueCast<Bytes25>(&large)->bytes[24]);
    EXPECT_NE(small, smallCopy);
    EXPECT_NE(large, largeCopy);
}

TEST(ValueStorage, AssignmentMovesPayloadsAcrossTheLineBothWays) {
    KyRxValue value(bytes24(1));

    value = KyRxValue(bytes25(2));  // inline to heap
    ASSERT_NE(nullptr, valueCast<Bytes25>(&value));
    EXPECT_FALSE(isInline(value));
    EXPECT_EQ(2, valueCast<Bytes25>(&value)->bytes[24]);

    const KyRxValue wide(bytes40(3));
    value = wide;  // heap to heap of another size
    ASSERT_NE(nullptr, valueCast<Bytes40>(&value));
    EXPECT_EQ(3, valueCast<Bytes40>(&value)->bytes[39]);
    EXPECT_NE(wide.valuePtr(), value.valuePtr());

    const KyRxValue point(KyGePoint3d(4, 5, 6));
    value = point;  // heap to inline
    EXPECT_TRUE(isInline(value));
    EXPECT_EQ(KyGePoint3d(4, 5, 6), *valueCast<KyGePoint3d>(&value));

    value = KyRxValue(bytes25(7));
    value = KyRxValue(bytes25(8));  // heap to heap of the same type
    EXPECT_EQ(8, valueCast<Bytes25>(&value)->bytes[0]);
}

TEST(ValueStorage, SelfAssignmentKeepsTheValue) {
    KyRxValue small(bytes24(1));
    KyRxValue large(bytes25(2));
    KyRxValue text(KyString(L"kept"));
    KyRxValue& smallAgain = small;
    KyRxValue& largeAgain = large;
    KyRxValue& textAgain = text;

    small = smallAgain;
    large = largeAgain;
    text = textAgain;
    large = std::move(largeAgain);

    EXPECT_EQ(KyRxValue(bytes24(1)), small);
    EXPECT_EQ(KyRxValue(bytes25(2)), large);
    EXPECT_EQ(KyString(L"kept"), *valueCast<KyString>(&text));
}

TEST(ValueStorage, MovingHandsTheHeapBlockOverAndLeavesTheSourceEmpty) {
    KyRxValue source(bytes25(5));
    const void* block = source.valuePtr();

    KyRxValue target(std::move(source));
    EXPECT_EQ(block, target.valuePtr());
    EXPECT_TRUE(source.isEmpty());  // NOLINT(bugprone-use-after-move)

    KyRxValue other(KyGePoint3d(1, 1, 1));
    other = std::move(target);
    EXPECT_EQ(block, other.valuePtr());
    EXPECT_TRUE(target.isEmpty());  // NOLINT(bugprone-use-after-move)

    KyRxValue inlineSource(KyGePoint3d(2, 3, 4));
    KyRxValue inlineTarget(std::move(inlineSource));
    EXPECT_EQ(KyGePoint3d(2, 3, 4), *valueCast<KyGePoint3d>(&inlineTarget));
    EXPECT_TRUE(inlineSource.isEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(ValueStorage, HeapBlocksGrowKeepingTheirBytes) {
    auto* block = static_cast<unsigned char*>(KyRxValue::allocate(40));
    ASSERT_NE(nullptr, block);
    std::memset(block, 0x5A, 40);
    block = static_cast<unsigned char*>(KyRxValue::reallocate(4000, block));
    ASSERT_NE(nullptr, block);
    for (int i = 0; i < 40; ++i) {
        ASSERT_EQ(0x5A, block[i]);
    }
    block[3999] = 1;
    KyRxValue::deallocate(block);
}

TEST_F(NonBlittableValue, EveryCopyIsDestroyedExactlyOnce) {
    {
        KyRxValue small(SmallTracked(1));
        KyRxValue large(LargeTracked(2));
        KyRxValue smallCopy(small);
        KyRxValue largeCopy(large);
        KyRxValue moved(std::move(largeCopy));
        KyRxValue movedInline(std::move(smallCopy));
        EXPECT_EQ(2, valueCast<LargeTracked>(&moved)->tag());
        EXPECT_EQ(1, valueCast<SmallTracked>(&movedInline)->tag());
        EXPECT_EQ(4, g_tracked.alive());
    }
    EXPECT_GT(g_tracked.constructed, 0);
}

TEST_F(NonBlittableValue, AssignmentBetweenTypesDestroysTheOldPayload) {
    {
        KyRxValue value(SmallTracked(1));
        value = KyRxValue(LargeTracked(2));
        EXPECT_EQ(1, g_tracked.alive());
        value = KyRxValue(bytes25(3));
        EXPECT_EQ(0, g_tracked.alive());
        value = KyRxValue(SmallTracked(4));
        value = KyRxValue(KyString(L"text"));
        EXPECT_EQ(0, g_tracked.alive());
        value = KyRxValue(LargeTracked(5));
        value = KyRxValue::empty();
        EXPECT_EQ(0, g_tracked.alive());
    }
}

TEST_F(NonBlittableValue, AssignmentWithinATypeAssignsInPlace) {
    KyRxValue small(SmallTracked(1));
    KyRxValue large(LargeTracked(2));
    const void* block = large.valuePtr();
    const KyRxValue otherSmall(SmallTracked(3));
    const KyRxValue otherLarge(LargeTracked(4));
    const int constructed = g_tracked.constructed;

    small = otherSmall;
    large = otherLarge;

    EXPECT_EQ(constructed, g_tracked.constructed);
    EXPECT_EQ(2, g_tracked.assigned);
    EXPECT_EQ(block, large.valuePtr());
    EXPECT_EQ(3, valueCast<SmallTracked>(&small)->tag());
    EXPECT_EQ(4, valueCast<LargeTracked>(&large)->tag());
}

}  // namespace
