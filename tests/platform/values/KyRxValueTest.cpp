// What a value answers: its sentinels, casts, texts, equality, and the value
// types behind it as the class registry knows them.
#include "rx/KyRxValue.h"

#include <gtest/gtest.h>

#include <memory>

#include "ValueTestTypes.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObjectId.h"
#include "ge/KyGePoint3d.h"
#include "gi/KyGiPhotographicExposureParameters.h"
#include "gi/KyGiToneOperatorParameters.h"
#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxClass.h"

namespace {

TEST(EmptyAndVaries, ADefaultValueIsTheEmptyValue) {
    const KyRxValue value;
    EXPECT_TRUE(value.isEmpty());
    EXPECT_FALSE(value.isVaries());
    EXPECT_EQ(KyRxValue::empty(), value);
    EXPECT_STREQ(L"void", value.type().name());
    EXPECT_EQ(0, value.toString(nullptr, 0));
}

TEST(EmptyAndVaries, EachSentinelEqualsOnlyItself) {
    const KyRxValue& empty = KyRxValue::empty();
    const KyRxValue& varies = KyRxValue::varies();
    EXPECT_EQ(&empty, &KyRxValue::empty());
    EXPECT_EQ(&varies, &KyRxValue::varies());

    EXPECT_TRUE(varies.isVaries());
    EXPECT_FALSE(varies.isEmpty());
    EXPECT_NE(empty, varies);
    EXPECT_EQ(varies, KyRxValue(varies));
    EXPECT_NE(varies, KyRxValue(0));
    EXPECT_NE(empty, KyRxValue(0));
    EXPECT_NE(empty, KyRxValue(KyString()));

    KyRxValue copy(KyString(L"x"));
    copy = varies;
    EXPECT_TRUE(copy.isVaries());
}

TEST(ValueCast, AnswersThePayloadOnlyForTheValuesOwnType) {
    KyRxValue value(42);
    ASSERT_NE(nullptr, valueCast<int>(&value));
    EXPECT_EQ(42, *valueCast<int>(&value));
    EXPECT_EQ(nullptr, valueCast<double>(&value));
    EXPECT_EQ(nullptr, valueCast<short>(&value));
    EXPECT_EQ(nullptr, valueCast<unsigned int>(&value));
    EXPECT_EQ(nullptr, valueCast<int>(static_cast<const KyRxValue*>(nullptr)));
    EXPECT_EQ(nullptr, valueCast<KyDb::LineWeight>(&value));

    *valueCast<int>(&value) = 7;
    EXPECT_EQ(KyRxValue(7), value);
}

TEST(ValueText, EachPlainTypeHasItsText) {
    EXPECT_EQ(KyString(L"true"), KyRxValue(true).text());
    EXPECT_EQ(KyString(L"false"), KyRxValue(false).text());
    EXPECT_EQ(KyString(L"-12"), KyRxValue(static_cast<short>(-12)).text());
    EXPECT_EQ(KyString(L"-42"), KyRxValue(-42).text());
    EXPECT_EQ(KyString(L"4000000000"), KyRxValue(4000000000u).text());
    EXPECT_EQ(KyString(L"2"), KyRxValue(2.0).text());
    EXPECT_EQ(KyString(L"0.1"), KyRxValue(0.1).text());
    EXPECT_EQ(KyString(L"0.30000000000000004"), KyRxValue(0.1 + 0.2).text());
    EXPECT_EQ(KyString(L"-1.5e+300"), KyRxValue(-1.5e300).text());
    EXPECT_EQ(KyString(L"Walls"), KyRxValue(KyString(L"Walls")).text());
    EXPECT_EQ(KyString(L"borrowed"), KyRxValue(L"borrowed").text());
    EXPECT_EQ(KyString(L""), KyRxValue(static_cast<const wchar_t*>(nullptr)).text());
}

TEST(ValueText, AnArrayOfTextsJoinsItsItems) {
    KyStringArray items;
    EXPECT_EQ(KyString(L""), KyRxValue(items).text());
    items.append(L"Walls");
    items.append(L"Doors");
    items.append(L"0");
    EXPECT_EQ(KyString(L"Walls, Doors, 0"), KyRxValue(items).text());
}

TEST(ValueText, ANullBufferOnlyMeasures) {
    const KyRxValue value(KyString(L"Hello"));
    EXPECT_EQ(5, value.toString(nullptr, 0));
    EXPECT_EQ(5, value.toString(nullptr, 100));
    EXPECT_EQ(4, KyRxValue(-1.5).toString(nullptr, 0));
}

TEST(ValueText, AShortBufferGetsWhatFitsAndIsTerminated) {
    const KyRxValue value(KyString(L"Hello"));
    wchar_t buffer[8] = {L'#', L'#', L'#', L'#', L'#', L'#', L'#', L'#'};

    EXPECT_EQ(5, value.toString(buffer, 4));
    EXPECT_STREQ(L"Hel", buffer);
    EXPECT_EQ(L'#', buffer[4]);

    EXPECT_EQ(5, value.toString(buffer, 0));
    EXPECT_STREQ(L"Hel", buffer);

    EXPECT_EQ(5, value.toString(buffer, 6));
    EXPECT_STREQ(L"Hello", buffer);
}

TEST(ValueEquality, ValuesAreEqualOnlyWithinOneType) {
    EXPECT_EQ(KyRxValue(1), KyRxValue(1));
    EXPECT_NE(KyRxValue(1), KyRxValue(2));
    EXPECT_NE(KyRxValue(1), KyRxValue(1.0));
    EXPECT_NE(KyRxValue(1), KyRxValue(static_cast<short>(1)));
    EXPECT_NE(KyRxValue(25), KyRxValue(KyDb::kLnWt025));
    EXPECT_NE(KyRxValue(KyDb::kLnWtByLayer), KyRxValue(-1));
}

TEST(ValueEquality, TextsCompareByContentAndCase) {
    EXPECT_EQ(KyRxValue(KyString(L"Layer")), KyRxValue(KyString(L"Layer")));
    EXPECT_NE(KyRxValue(KyString(L"Layer")), KyRxValue(KyString(L"layer")));

    wchar_t first[] = L"same";
    wchar_t second[] = L"same";
    EXPECT_EQ(KyRxValue(static_cast<const wchar_t*>(first)),
              KyRxValue(static_cast<const wchar_t*>(second)));
    EXPECT_NE(KyRxValue(L"same"), KyRxValue(L"Same"));
    EXPECT_NE(KyRxValue(L"same"), KyRxValue(KyString(L"same")));
}

TEST(ValueEquality, PlainRecordsCompareByTheirOwnEquality) {
    Bytes25 a;
    Bytes25 b;
    EXPECT_EQ(KyRxValue(a), KyRxValue(b));
    b.bytes[24] = 1;
    EXPECT_NE(KyRxValue(a), KyRxValue(b));
    EXPECT_EQ(KyRxValue(KyGePoint3d(1, 2, 3)), KyRxValue(KyGePoint3d(1, 2, 3 + 1e-12)));
    EXPECT_NE(KyRxValue(KyGePoint3d(1, 2, 3)), KyRxValue(KyGePoint3d(1, 2, 3.001)));
}

TEST(ValueType, ANullPayloadGivesZeroBytesOrNothingForObjectsWithConstructors) {
    const KyRxValue value(KyRxValueType::Desc<Bytes25>::value(), nullptr);
    EXPECT_EQ(KyRxValue(Bytes25()), value);
    const KyRxValue color(KyRxValueType::Desc<KyCmColor>::value(), nullptr);
    EXPECT_TRUE(color.isEmpty()) << "zero bytes are no colour object";
}

TEST(ValueType, SizesAndCopyRulesFollowThePayload) {
    EXPECT_EQ(24u, KyRxValueType::Desc<KyGePoint3d>::value().size());
    EXPECT_TRUE(KyRxValueType::Desc<KyGePoint3d>::value().isBlittable());
    EXPECT_TRUE(KyRxValueType::Desc<KyDbObjectId>::value().isBlittable());
    EXPECT_TRUE(KyRxValueType::Desc<KyCmTransparency>::value().isBlittable());
    EXPECT_FALSE(KyRxValueType::Desc<KyString>::value().isBlittable());
    EXPECT_FALSE(KyRxValueType::Desc<KyStringArray>::value().isBlittable());
    EXPECT_FALSE(KyRxValueType::Desc<KyCmColor>::value().isBlittable());
    EXPECT_FALSE(KyRxValueType::Desc<KyGiToneOperatorParameters>::value().isBlittable());
    EXPECT_GT(KyRxValueType::Desc<KyGiPhotographicExposureParameters>::value().size(),
              KyRxValue::kBufferSize);
    EXPECT_EQ(0u, KyRxValueType::Desc<void>::value().size());
}

TEST(BoxedValue, UnboxAnswersTheValueInsideABox) {
    KyRxValue value(KyString(L"boxed"));
    KyRxBoxedValueOnStack box(value);
    const KyRxObject* constBox = &box;

    EXPECT_EQ(&value, KyRxValue::unbox(static_cast<KyRxObject*>(&box)));
    EXPECT_EQ(&value, KyRxValue::unbox(constBox));
    EXPECT_TRUE(box.isKindOf(KyRxBoxedValue::desc()));
    EXPECT_EQ(KyRxBoxedValueOnStack::desc(), box.isA());

    // Not a box, or nothing at all.
    EXPECT_EQ(nullptr, KyRxValue::unbox(&KyRxValueType::Desc<int>::value()));
    EXPECT_EQ(nullptr, KyRxValue::unbox(static_cast<KyRxObject*>(nullptr)));
}

TEST(BoxedValue, AHeapBoxOwnsItsCopy) {
    KyRxValue value(KyGiToneOperatorParameters{});
    std::unique_ptr<KyRxBoxedValue> box(KyRxBoxedValue::newBoxedValueOnHeap(value));
    valueCast<KyGiToneOperatorParameters>(&value)->setBrightness(10.0);

    const auto* boxed = valueCast<KyGiToneOperatorParameters>(box->value());
    ASSERT_NE(nullptr, boxed);
    EXPECT_EQ(50.0, boxed->brightness());
    EXPECT_TRUE(box->isKindOf(KyRxBoxedValue::desc()));
}

TEST(BoxedValue, ClonesCopiesAndComparisonsGoByTheValue) {
    KyRxValue value(KyString(L"A"));
    KyRxBoxedValueOnStack box(value);
    std::unique_ptr<KyRxObject> clone(box.clone());
    ASSERT_NE(nullptr, clone);
    EXPECT_TRUE(box.isEqualTo(clone.get()));
    EXPECT_EQ(KyRx::kEqual, box.comparedTo(clone.get()));

    value = KyString(L"B");
    EXPECT_FALSE(box.isEqualTo(clone.get()));
    EXPECT_EQ(KyRx::kNotOrderable, box.comparedTo(clone.get()));

    // copyFrom writes through the box into the value it stands for.
    EXPECT_EQ(Kyro::eOk, box.copyFrom(clone.get()));
    EXPECT_EQ(KyRxValue(KyString(L"A")), value);
    EXPECT_EQ(Kyro::eNotThatKindOfClass, box.copyFrom(&KyRxValueType::Desc<int>::value()));
    EXPECT_FALSE(box.isEqualTo(&KyRxValueType::Desc<int>::value()));
}

TEST(ValueTypeRegistry, EveryPlatformValueTypeIsFoundByName) {
    struct Row {
        const wchar_t* name;
        const KyRxValueType& type;
    };
    const Row rows[] = {
        {L"void", KyRxValueType::Desc<void>::value()},
        {L"bool", KyRxValueType::Desc<bool>::value()},
        {L"short", KyRxValueType::Desc<short>::value()},
        {L"int", KyRxValueType::Desc<int>::value()},
        {L"unsigned int", KyRxValueType::Desc<unsigned int>::value()},
        {L"double", KyRxValueType::Desc<double>::value()},
        {L"const wchar_t*", KyRxValueType::Desc<const wchar_t*>::value()},
        {L"KyString", KyRxValueType::Desc<KyString>::value()},
        {L"KyStringArray", KyRxValueType::Desc<KyStringArray>::value()},
        {L"KyDbObjectId", KyRxValueType::Desc<KyDbObjectId>::value()},
        {L"KyCmColor", KyRxValueType::Desc<KyCmColor>::value()},
        {L"KyCmTransparency", KyRxValueType::Desc<KyCmTransparency>::value()},
        {L"KyDbLineWeight", KyRxValueType::Desc<KyDb::LineWeight>::value()},
        {L"KyDbShadowFlags", KyRxValueType::Desc<KyDb::ShadowFlags>::value()},
        {L"KyGePoint3d", KyRxValueType::Desc<KyGePoint3d>::value()},
        {L"KyGiToneOperatorParameters", KyRxValueType::Desc<KyGiToneOperatorParameters>::value()},
        {L"KyGiPhotographicExposureParameters",
         KyRxValueType::Desc<KyGiPhotographicExposureParameters>::value()},
        {L"KyRxVariesValue", KyRxValue::varies().type()},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(KyString(row.name).utf8());
        EXPECT_STREQ(row.name, row.type.name());
        EXPECT_EQ(&row.type, kyrxFindKyRxClass(row.name));
        EXPECT_TRUE(row.type.isKindOf(KyRxValueType::desc()));
        EXPECT_TRUE(row.type.isKindOf(KyRxClass::desc()));
    }
}

TEST(ValueTypeRegistry, TheRegistryMakesTheTypesKnownBeforeAnyoneAsksForThem) {
    // Nothing in this process has touched Desc<KyCmTransparency> yet.
    KyRxClass* found = kyrxFindKyRxClass(L"KyCmTransparency");
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(&KyRxValueType::Desc<KyCmTransparency>::value(), found);
}

TEST(ValueTypeRegistry, ATypeLeavesTheDictionaryWithItselfAndNeverTakesANameTwice) {
    auto* temporary = new KyRxValueTypePOD<Bytes24>(L"TestTemporary", nullptr);
    EXPECT_EQ(temporary, kyrxFindKyRxClass(L"TestTemporary"));

    auto* impostor = new KyRxValueTypePOD<Bytes24>(L"TestTemporary", nullptr);
    EXPECT_EQ(temporary, kyrxFindKyRxClass(L"TestTemporary"));
    delete impostor;
    EXPECT_EQ(temporary, kyrxFindKyRxClass(L"TestTemporary"));

    delete temporary;
    EXPECT_EQ(nullptr, kyrxFindKyRxClass(L"TestTemporary"));

    auto* intImpostor = new KyRxValueTypePOD<int>(L"int", nullptr);
    delete intImpostor;
    EXPECT_EQ(&KyRxValueType::Desc<int>::value(), kyrxFindKyRxClass(L"int"));
}

}  // namespace
