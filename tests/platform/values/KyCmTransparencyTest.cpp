// Transparencies: the method in the top byte of one word, and their text.
#include "db/KyCmTransparency.h"

#include <gtest/gtest.h>

#include "base/KyRxResourceInstance.h"
#include "rx/KyRxValue.h"

namespace {

TEST(KyCmTransparencyWord, TheMethodIsTheTopByte) {
    KyCmTransparency transparency;
    EXPECT_TRUE(transparency.isByLayer());
    EXPECT_EQ(0u, transparency.serializeOut());
    EXPECT_EQ(255, transparency.alpha());

    transparency.setMethod(KyCmTransparency::kByBlock);
    EXPECT_TRUE(transparency.isByBlock());
    EXPECT_EQ(0x01000000u, transparency.serializeOut());

    transparency.setAlpha(128);
    EXPECT_TRUE(transparency.isByAlpha());
    EXPECT_EQ(0x02000080u, transparency.serializeOut());
    EXPECT_EQ(128, transparency.alpha());
    EXPECT_EQ(KyCmTransparency(128), transparency);
    EXPECT_NE(KyCmTransparency(127), transparency);

    transparency.setMethod(KyCmTransparency::kByAlpha);
    EXPECT_TRUE(transparency.isSolid());

    transparency.serializeIn(0x03000000u);
    EXPECT_TRUE(transparency.isInvalid());
    EXPECT_FALSE(transparency.isByAlpha());
}

TEST(KyCmTransparencyWord, ATransparencyValueReadsAsMethodOrAlpha) {
    KyCmTransparency byBlock;
    byBlock.setMethod(KyCmTransparency::kByBlock);
    EXPECT_EQ(KyString(L"ByLayer"), KyRxValue(KyCmTransparency()).text());
    EXPECT_EQ(KyString(L"ByBlock"), KyRxValue(byBlock).text());
    EXPECT_EQ(KyString(L"77"), KyRxValue(KyCmTransparency(77)).text());

    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_EQ(KyString(L"VonBlock"),
              KyRxValue(byBlock).text(KyRxValueType::kStringFormatLocalized));
    EXPECT_EQ(KyString(L"ByBlock"), KyRxValue(byBlock).text());
    KyRxResourceInstance::setLanguage(L"");
}

}  // namespace
