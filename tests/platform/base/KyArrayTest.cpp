#include "base/KyArray.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "base/KyString.h"

namespace {

struct Block32 {
    double values[4];
};
static_assert(sizeof(Block32) == 32);

struct Plain {
    int id;
    double weight;
    bool operator==(const Plain& other) const { return id == other.id && weight == other.weight; }
};

static_assert(
    std::is_same_v<KyArrayDefaultReallocator<KyString>, KyArrayObjectCopyReallocator<KyString>>);
static_assert(std::is_same_v<KyArrayDefaultReallocator<int*>, KyArrayMemCopyReallocator<int*>>);

// Appends until the logical length reaches `count`.
template <typename A, typename T>
void fillTo(A& array, int count, const T& value) {
    while (array.length() < count) {
        array.append(value);
    }
}

// An array of `count` used elements in a block of exactly `count`.
template <typename T>
KyArray<T> fullArray(int count) {
    KyArray<T> array;
    array.setPhysicalLength(count);
    array.setLogicalLength(count);
    return array;
}

TEST(BaseArray, DefaultArrayIsNullWithGrowLengthEight) {
    const KyArray<int> array;
    EXPECT_EQ(nullptr, array.asArrayPtr());
    EXPECT_EQ(0, array.physicalLength());
    EXPECT_EQ(0, array.logicalLength());
    EXPECT_EQ(8, array.growLength());
    EXPECT_TRUE(array.isEmpty());
}

TEST(BaseArray, AppendGrowsByGrowLengthOrCurrentLengthWhileSmall) {
    KyArray<int> array;
    array.append(1);
    EXPECT_EQ(8, array.physicalLength());  // max(8, 0)
    fillTo(array, 8, 0);
    EXPECT_EQ(8, array.physicalLength());
    array.append(9);
    EXPECT_EQ(16, array.physicalLength());  // 8 + max(8, 8)
    fillTo(array, 17, 0);
    EXPECT_EQ(32, array.physicalLength());  // 16 + max(8, 16)
    fillTo(array, 33, 0);
    EXPECT_EQ(64, array.physicalLength());

    // The grow length wins over a smaller current length, and loses to a larger one.
    KyArray<int> sized(3, 8);
    fillTo(sized, 4, 0);
    EXPECT_EQ(11, sized.physicalLength());  // 3 + max(8, 3)
    fillTo(sized, 12, 0);
    EXPECT_EQ(22, sized.physicalLength());  // 11 + max(8, 11)
}

TEST(BaseArray, LargeArraysGrowByAFixedBlockOf64KiB) {
    // 8191 doubles are 65528 bytes, still below the limit: the step is the length.
    KyArray<double> below = fullArray<double>(8191);
    below.append(1.0);
    EXPECT_EQ(16382, below.physicalLength());

    // 8192 doubles are 65536 bytes: the step is 0x10000 / 8 = 8192 from here on.
    KyArray<double> at = fullArray<double>(8192);
    at.append(1.0);
    EXPECT_EQ(16384, at.physicalLength());
    fillTo(at, 16385, 2.0);
    EXPECT_EQ(24576, at.physicalLength());  // not doubled

    // 32-byte elements: the limit is 2048 elements, the block 2048 elements.
    KyArray<Block32> blocksBelow = fullArray<Block32>(2047);
    blocksBelow.append(Block32{});
    EXPECT_EQ(4094, blocksBelow.physicalLength());
    KyArray<Block32> blocks = fullArray<Block32>(4096);
    blocks.append(Block32{});
    EXPECT_EQ(6144, blocks.physicalLength());

    // A grow length above the fixed block wins.
    KyArray<double> wide = fullArray<double>(8192);
    wide.setGrowLength(10000);
    wide.append(1.0);
    EXPECT_EQ(18192, wide.physicalLength());
}

TEST(BaseArray, SetPhysicalLengthIgnoresSameAndNegativeAndCutsWhenShorter) {
    KyArray<int> array;
    for (int i = 0; i < 5; ++i) {
        array.append(i);
    }
    const int* block = array.asArrayPtr();
    array.setPhysicalLength(8);
    EXPECT_EQ(block, array.asArrayPtr());
    array.setPhysicalLength(-1);
    EXPECT_EQ(block, array.asArrayPtr());
    EXPECT_EQ(8, array.physicalLength());
    EXPECT_EQ(5, array.logicalLength());

    array.setPhysicalLength(3);
    EXPECT_EQ(3, array.physicalLength());
    EXPECT_EQ(3, array.logicalLength());
    EXPECT_EQ(0, array[0]);
    EXPECT_EQ(2, array[2]);

    array.setPhysicalLength(10);
    EXPECT_EQ(10, array.physicalLength());
    EXPECT_EQ(3, array.logicalLength());
    EXPECT_EQ(2, array.last());

    array.setPhysicalLength(0);
    EXPECT_EQ(nullptr, array.asArrayPtr());
    EXPECT_EQ(0, array.physicalLength());
    EXPECT_EQ(0, array.logicalLength());
}

TEST(BaseArray, SetLogicalLengthClampsAndGrowsToTheNextStep) {
    KyArray<int> array;
    array.setLogicalLength(3);
    EXPECT_EQ(3, array.logicalLength());
    EXPECT_EQ(8, array.physicalLength());  // max(3, 0 + max(0, 8))

    array.setLogicalLength(-4);
    EXPECT_EQ(0, array.logicalLength());
    EXPECT_EQ(8, array.physicalLength());

    array.setLogicalLength(9);
    EXPECT_EQ(16, array.physicalLength());  // max(9, 8 + max(8, 8))
    array.setLogicalLength(40);
    EXPECT_EQ(40, array.physicalLength());  // max(40, 16 + max(16, 8))
    array.setLogicalLength(20);
    EXPECT_EQ(20, array.logicalLength());
    EXPECT_EQ(40, array.physicalLength());
    array.setGrowLength(100);
    array.setLogicalLength(41);
    EXPECT_EQ(140, array.physicalLength());  // max(41, 40 + max(40, 100))

    KyArray<double> large = fullArray<double>(8192);
    large.setLogicalLength(8193);
    EXPECT_EQ(16384, large.physicalLength());  // 8192 + max(0x10000 / 8, 8)
}

TEST(BaseArray, ShorteningAnArrayOfStringsClearsTheDroppedElements) {
    KyArray<KyString> names;
    names.append(L"a");
    names.append(L"b");
    names.append(L"c");
    names.setLogicalLength(1);
    names.setLogicalLength(3);
    EXPECT_STREQ(L"a", names[0].kwszPtr());
    EXPECT_TRUE(names[1].isEmpty());
    EXPECT_TRUE(names[2].isEmpty());
}

TEST(BaseArray, RemovalKeepsTheOrderOfWhatRemains) {
    KyArray<int> array;
    for (int i = 0; i < 10; ++i) {
        array.append(i);
    }
    array.removeAt(3);
    array.removeFirst();
    array.removeLast();
    EXPECT_TRUE(array.remove(6));
    EXPECT_FALSE(array.remove(42));
    const int expected[] = {1, 2, 4, 5, 7, 8};
    ASSERT_EQ(6, array.length());
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(expected[i], array[i]);
    }
    EXPECT_TRUE(array.contains(7));
    EXPECT_FALSE(array.contains(3));
    EXPECT_EQ(3, array.find(5));
    EXPECT_EQ(-1, array.find(0));
    int index = -1;
    EXPECT_FALSE(array.find(1, index, 1));
    EXPECT_EQ(-1, index);

    array.insertAt(0, 0);
    array.insertAt(3, 3);
    array.insertAt(array.length(), 9);
    EXPECT_EQ(0, array.first());
    EXPECT_EQ(3, array[3]);
    EXPECT_EQ(9, array.last());
}

TEST(BaseArray, MemCopyReallocatorKeepsRecordsAndPointersAcrossGrowth) {
    KyArray<Plain, KyArrayMemCopyReallocator<Plain>> records;
    KyArray<const Plain*> pointers;
    static const Plain kTargets[3] = {{1, 0.5}, {2, 1.5}, {3, 2.5}};
    for (int i = 0; i < 100; ++i) {
        records.append(Plain{i, i * 0.25});
        pointers.append(&kTargets[i % 3]);
    }
    ASSERT_EQ(100, records.length());
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ((Plain{i, i * 0.25}), records[i]);
        EXPECT_EQ(&kTargets[i % 3], pointers[i]);
    }
}

TEST(BaseArray, ObjectCopyReallocatorMovesStringsThroughManyReallocations) {
    KyArray<KyString> names;
    KyArray<KyString, KyArrayObjectCopyReallocator<KyString>> explicitNames;
    for (int i = 0; i < 200; ++i) {
        names.append(KyString::formatted(L"Layer %d", i));
        explicitNames.append(names.last());
    }
    EXPECT_EQ(256, names.physicalLength());  // 8, 16, 32, 64, 128, 256
    for (int i = 0; i < 200; ++i) {
        EXPECT_EQ(KyString::formatted(L"Layer %d", i), names[i]);
        EXPECT_EQ(names[i], explicitNames[i]);
    }

    names.setPhysicalLength(150);
    EXPECT_EQ(150, names.length());
    EXPECT_STREQ(L"Layer 149", names.last().kwszPtr());

    KyArray<KyString> copy(names);
    EXPECT_TRUE(copy == names);
    copy[0] = L"changed";
    EXPECT_FALSE(copy == names);
    EXPECT_STREQ(L"Layer 0", names[0].kwszPtr());
}

TEST(BaseArray, AppendingAnElementOfTheArrayItselfWhileItGrows) {
    KyArray<KyString> names;
    fillTo(names, 8, KyString());
    names[0] = L"first";
    names[7] = L"last";
    ASSERT_EQ(8, names.physicalLength());
    names.append(names[0]);  // the block moves while the argument lives in it
    EXPECT_EQ(16, names.physicalLength());
    EXPECT_STREQ(L"first", names[8].kwszPtr());
    EXPECT_STREQ(L"first", names[0].kwszPtr());

    fillTo(names, 16, KyString(L"x"));
    names.insertAt(0, names[7]);
    EXPECT_STREQ(L"last", names[0].kwszPtr());
    EXPECT_STREQ(L"last", names[8].kwszPtr());

    KyArray<int> numbers;
    fillTo(numbers, 8, 5);
    numbers.append(numbers[7]);
    EXPECT_EQ(5, numbers[8]);

    numbers.append(numbers);
    EXPECT_EQ(18, numbers.length());
    EXPECT_EQ(5, numbers[17]);
}

}  // namespace
