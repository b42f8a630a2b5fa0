// Enumerated values: the tags of lineweights and shadow flags, and their
// texts in the global form and in the current language.
#include <gtest/gtest.h>

#include "base/KyRxResourceInstance.h"
#include "db/KyDbEnums.h"
#include "rx/KyRxMethod.h"
#include "rx/KyRxValue.h"

namespace {

class EnumValue : public ::testing::Test {
protected:
    void SetUp() override { KyRxResourceInstance::setLanguage(L""); }
    void TearDown() override { KyRxResourceInstance::setLanguage(L""); }

    static KyString text(const KyRxValue& value, KyRxValueType::StringFormat format) {
        return value.text(format);
    }
};

const KyDb::LineWeight kAllWeights[] = {
    KyDb::kLnWtByLayer, KyDb::kLnWtByBlock, KyDb::kLnWtByLwDefault, KyDb::kLnWt000, KyDb::kLnWt005,
    KyDb::kLnWt009,     KyDb::kLnWt013,     KyDb::kLnWt015,         KyDb::kLnWt018, KyDb::kLnWt020,
    KyDb::kLnWt025,     KyDb::kLnWt030,     KyDb::kLnWt035,         KyDb::kLnWt040, KyDb::kLnWt050,
    KyDb::kLnWt053,     KyDb::kLnWt060,     KyDb::kLnWt070,         KyDb::kLnWt080, KyDb::kLnWt090,
    KyDb::kLnWt100,     KyDb::kLnWt106,     KyDb::kLnWt120,         KyDb::kLnWt140, KyDb::kLnWt158,
    KyDb::kLnWt200,     KyDb::kLnWt211,
};

TEST_F(EnumValue, EveryLineweightHasItsTagInListOrder) {
    const IKyRxEnumeration* tags = KyRxValueType::Desc<KyDb::LineWeight>::value().enumeration();
    ASSERT_NE(nullptr, tags);
    ASSERT_EQ(27, tags->count());
    for (int i = 0; i < tags->count(); ++i) {
        const KyRxEnumTag& tag = tags->getAt(i);
        const KyDb::LineWeight* weight = valueCast<KyDb::LineWeight>(&tag.value());
        ASSERT_NE(nullptr, weight);
        EXPECT_EQ(kAllWeights[i], *weight);

        const KyRxValue value(kAllWeights[i]);
        EXPECT_EQ(&tag, value.getEnumTag());
    }
    EXPECT_STREQ(L"ByLayer", tags->getAt(0).name());
    EXPECT_STREQ(L"ByBlock", tags->getAt(1).name());
    EXPECT_STREQ(L"Default", tags->getAt(2).name());
    EXPECT_STREQ(L"0.00 mm", tags->getAt(3).name());
    EXPECT_STREQ(L"2.11 mm", tags->getAt(26).name());
}

TEST_F(EnumValue, ALineweightPrintsItsTagGloballyOrInTheCurrentLanguage) {
    const KyRxValue quarter(KyDb::kLnWt025);
    const KyRxValue byLayer(KyDb::kLnWtByLayer);
    const KyRxValue byDefault(KyDb::kLnWtByLwDefault);

    EXPECT_EQ(KyString(L"0.25 mm"), text(quarter, KyRxValueType::kStringFormatGlobal));
    EXPECT_EQ(KyString(L"0.25 mm"), text(quarter, KyRxValueType::kStringFormatLocalized));
    EXPECT_EQ(KyString(L"ByLayer"), text(byLayer, KyRxValueType::kStringFormatLocalized));

    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_EQ(KyString(L"0.25 mm"), text(quarter, KyRxValueType::kStringFormatGlobal));
    EXPECT_EQ(KyString(L"0,25 mm"), text(quarter, KyRxValueType::kStringFormatLocalized));
    EXPECT_EQ(KyString(L"ByLayer"), text(byLayer, KyRxValueType::kStringFormatGlobal));
    EXPECT_EQ(KyString(L"VonLayer"), text(byLayer, KyRxValueType::kStringFormatLocalized));
    EXPECT_EQ(KyString(L"Vorgabe"), text(byDefault, KyRxValueType::kStringFormatLocalized));
    const KyRxEnumTag* byBlock = KyRxValue(KyDb::kLnWtByBlock).getEnumTag();
    ASSERT_NE(nullptr, byBlock);
    EXPECT_EQ(KyString(L"VonBlock"), byBlock->localName());
}

TEST_F(EnumValue, ALineweightWithoutATagPrintsItsNumber) {
    const KyRxValue odd(static_cast<KyDb::LineWeight>(7));
    EXPECT_EQ(nullptr, odd.getEnumTag());
    EXPECT_EQ(KyString(L"7"), text(odd, KyRxValueType::kStringFormatGlobal));
    EXPECT_EQ(KyString(L"7"), text(odd, KyRxValueType::kStringFormatLocalized));
}

TEST_F(EnumValue, ShadowFlagsNameWhatTheObjectDoes) {
    const IKyRxEnumeration* tags = KyRxValueType::Desc<KyDb::ShadowFlags>::value().enumeration();
    ASSERT_NE(nullptr, tags);
    ASSERT_EQ(4, tags->count());

    const struct {
        KyDb::ShadowFlags flags;
        const wchar_t* global;
        const wchar_t* german;
    } rows[] = {
        {KyDb::kShadowsCastAndReceive, L"Casts and receives shadows",
         L"Wirft und empfängt Schatten"},
        {KyDb::kShadowsDoesNotReceive, L"Casts shadows", L"Wirft Schatten"},
        {KyDb::kShadowsDoesNotCast, L"Receives shadows", L"Empfängt Schatten"},
        {KyDb::kShadowsIgnore, L"Ignore shadows", L"Schatten ignorieren"},
    };
    KyRxResourceInstance::setLanguage(L"de");
    for (const auto& row : rows) {
        const KyRxValue value(row.flags);
        ASSERT_NE(nullptr, value.getEnumTag());
        EXPECT_EQ(value, value.getEnumTag()->value());
        EXPECT_EQ(KyString(row.global), text(value, KyRxValueType::kStringFormatGlobal));
        EXPECT_EQ(KyString(row.german), text(value, KyRxValueType::kStringFormatLocalized));
    }
}

TEST_F(EnumValue, TypesWithoutTagsHaveNoEnumeration) {
    EXPECT_EQ(nullptr, KyRxValueType::Desc<int>::value().enumeration());
    EXPECT_EQ(nullptr, KyRxValue(25).getEnumTag());
    EXPECT_EQ(nullptr, KyRxValue().getEnumTag());
    EXPECT_NE(KyRxValue(25), KyRxValue(KyDb::kLnWt025));
}

}  // namespace
