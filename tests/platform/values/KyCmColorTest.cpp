// Colours: how the method, index, red, green, blue and names are set, what a
// colour answers, and how it reads as a value.
#include "db/KyCmColor.h"

#include <gtest/gtest.h>

#include "base/KyRxResourceInstance.h"
#include "rx/KyRxValue.h"
#include "support/ColorValues.h"

namespace {

using kytest::indexColor;
using kytest::trueColor;

TEST(KyCmColorMethod, ANewColorIsByLayer) {
    const KyCmColor color;
    EXPECT_TRUE(color.isByLayer());
    EXPECT_EQ(KyCmColor::kByLayer, color.colorMethod());
    EXPECT_EQ(256, color.colorIndex());
    EXPECT_EQ(indexColor(256), color);
}

TEST(KyCmColorMethod, TheIndexDecidesTheMethod) {
    EXPECT_TRUE(indexColor(0).isByBlock());
    EXPECT_TRUE(indexColor(256).isByLayer());
    EXPECT_TRUE(indexColor(257).isNone());
    EXPECT_TRUE(indexColor(1).isByACI());
    EXPECT_TRUE(indexColor(255).isByACI());
    EXPECT_EQ(0, indexColor(0).colorIndex());
    EXPECT_EQ(42, indexColor(42).colorIndex());

    KyCmColor color = indexColor(3);
    EXPECT_EQ(Kyro::eInvalidInput, color.setColorIndex(258));
    EXPECT_EQ(indexColor(3), color);
}

TEST(KyCmColorMethod, IndexColorsReadTheirPaletteEntry) {
    const KyCmColor red = indexColor(KyCmColor::kACIRed);
    EXPECT_EQ(255, red.red());
    EXPECT_EQ(0, red.green());
    EXPECT_EQ(0, red.blue());
    const KyCmColor grey = indexColor(8);
    EXPECT_EQ(128, grey.red());
    EXPECT_EQ(128, grey.blue());
    const KyCmColor byLayer;
    EXPECT_EQ(0, byLayer.red() + byLayer.green() + byLayer.blue());
}

TEST(KyCmColorMethod, ATrueColorAnswersTheNearestPaletteIndex) {
    EXPECT_TRUE(trueColor(255, 0, 0).isByColor());
    EXPECT_EQ(1, trueColor(255, 0, 0).colorIndex());
    EXPECT_EQ(1, trueColor(250, 4, 6).colorIndex());
    EXPECT_EQ(5, trueColor(0, 0, 250).colorIndex());
    EXPECT_EQ(8, trueColor(127, 129, 128).colorIndex());
    // White is both 7 and 255: the lower index wins.
    EXPECT_EQ(7, trueColor(255, 255, 255).colorIndex());
    for (unsigned short index = 1; index < 256; ++index) {
        const unsigned int rgb = KyCmColor::lookUpRGB(index);
        const unsigned short found = KyCmColor::lookUpACI(static_cast<unsigned char>(rgb >> 16),
                                                          static_cast<unsigned char>(rgb >> 8),
                                                          static_cast<unsigned char>(rgb));
        ASSERT_EQ(rgb, KyCmColor::lookUpRGB(found)) << "index " << index;
    }
}

TEST(KyCmColorMethod, ThePackedFormCarriesMethodAndValue) {
    EXPECT_EQ(0xC3000005u, indexColor(5).color());
    EXPECT_EQ(0xC2102030u, trueColor(0x10, 0x20, 0x30).color());
    EXPECT_EQ(0xC0000100u, KyCmColor().color());
    EXPECT_EQ(0xC1000000u, indexColor(0).color());

    KyCmColor color;
    EXPECT_EQ(Kyro::eOk, color.setColor(0xC2102030u));
    EXPECT_EQ(trueColor(0x10, 0x20, 0x30), color);
    EXPECT_EQ(Kyro::eInvalidInput, color.setColor(0xC3000000u));  // index 0 is not an index
    EXPECT_EQ(Kyro::eInvalidInput, color.setColor(0x12000001u));
    EXPECT_EQ(trueColor(0x10, 0x20, 0x30), color);
}

TEST(KyCmColorNames, OnlyATrueColorTakesNames) {
    KyCmColor color = indexColor(1);
    EXPECT_EQ(Kyro::eNotApplicable, color.setNames(L"Signal", L"BOOK"));

    color.setRGB(200, 10, 10);
    EXPECT_EQ(Kyro::eInvalidInput, color.setNames(nullptr, L"BOOK"));
    EXPECT_EQ(Kyro::eOk, color.setNames(L"Signal", L"BOOK"));
    EXPECT_STREQ(L"Signal", color.colorName());
    EXPECT_STREQ(L"BOOK", color.bookName());
    EXPECT_NE(trueColor(200, 10, 10), color);

    color.setRGB(200, 10, 10);
    EXPECT_FALSE(color.hasColorName());
    EXPECT_FALSE(color.hasBookName());
    EXPECT_EQ(trueColor(200, 10, 10), color);
}

TEST(KyCmColorNames, TheDisplayNameFollowsTheMethod) {
    EXPECT_EQ(KyString(L"ByLayer"), KyCmColor().colorNameForDisplay());
    EXPECT_EQ(KyString(L"ByBlock"), indexColor(0).colorNameForDisplay());
    const wchar_t* const names[] = {L"red",  L"yellow",  L"green", L"cyan",
                                    L"blue", L"magenta", L"white"};
    for (unsigned short index = 1; index <= 7; ++index) {
        EXPECT_EQ(KyString(names[index - 1]), indexColor(index).colorNameForDisplay());
    }
    EXPECT_EQ(KyString(L"8"), indexColor(8).colorNameForDisplay());
    EXPECT_EQ(KyString(L"255"), indexColor(255).colorNameForDisplay());
    EXPECT_EQ(KyString(L"10,20,30"), trueColor(10, 20, 30).colorNameForDisplay());

    KyCmColor named = trueColor(200, 10, 10);
    named.setNames(L"Signal");
    EXPECT_EQ(KyString(L"Signal"), named.colorNameForDisplay());
    named.setNames(L"Signal", L"RAL");
    EXPECT_EQ(KyString(L"RAL$Signal"), named.colorNameForDisplay());
}

TEST(KyCmColorValue, AColorValueReadsAsItsDisplayNameInEitherLanguage) {
    KyRxResourceInstance::setLanguage(L"");
    const KyRxValue byBlock(indexColor(0));
    const KyRxValue red(indexColor(1));
    const KyRxValue rgb(trueColor(1, 2, 3));
    EXPECT_EQ(KyString(L"ByBlock"), byBlock.text());
    EXPECT_EQ(KyString(L"red"), red.text(KyRxValueType::kStringFormatLocalized));

    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_EQ(KyString(L"ByBlock"), byBlock.text());
    EXPECT_EQ(KyString(L"VonBlock"), byBlock.text(KyRxValueType::kStringFormatLocalized));
    EXPECT_EQ(KyString(L"red"), red.text());
    EXPECT_EQ(KyString(L"rot"), red.text(KyRxValueType::kStringFormatLocalized));
    EXPECT_EQ(KyString(L"1,2,3"), rgb.text(KyRxValueType::kStringFormatLocalized));
    KyRxResourceInstance::setLanguage(L"");
}

TEST(KyCmColorValue, ColorValuesAreEqualWhenTheColorsAre) {
    KyCmColor named = trueColor(200, 10, 10);
    named.setNames(L"Signal", L"RAL");
    const KyRxValue value(named);
    KyRxValue copy(value);
    EXPECT_EQ(value, copy);
    EXPECT_NE(value, KyRxValue(trueColor(200, 10, 10)));
    EXPECT_NE(value.valuePtr(), copy.valuePtr());

    valueCast<KyCmColor>(&copy)->setColorIndex(2);
    EXPECT_NE(value, copy);
    EXPECT_STREQ(L"Signal", valueCast<KyCmColor>(&value)->colorName());
}

}  // namespace
