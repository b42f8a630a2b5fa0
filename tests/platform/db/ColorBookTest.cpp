// Colour books: named colours registered with and without a book, found by
// book and name or by the display name "BOOK$NAME".
#include <gtest/gtest.h>

#include "db/KyCmColorBook.h"

namespace {

KyCmColor named(unsigned char r, unsigned char g, unsigned char b, const wchar_t* name,
                const wchar_t* book = nullptr) {
    KyCmColor color;
    color.setRGB(r, g, b);
    color.setNames(name, book);
    return color;
}

TEST(KyCmColorBook, ANamedColorIsFoundByBookAndNameInAnyCase) {
    ASSERT_EQ(KyCmColorBook::addColor(named(187, 30, 16, L"3020", L"RAL")), Kyro::eOk);
    ASSERT_EQ(KyCmColorBook::addColor(named(0, 128, 0, L"Signal")), Kyro::eOk);

    KyCmColor found;
    ASSERT_EQ(KyCmColorBook::findColor(L"ral", L"3020", found), Kyro::eOk);
    EXPECT_EQ(found, named(187, 30, 16, L"3020", L"RAL"));
    EXPECT_EQ(found.colorNameForDisplay(), KyString(L"RAL$3020"));
    ASSERT_EQ(KyCmColorBook::findColor(L"RAL$3020", found), Kyro::eOk);
    EXPECT_EQ(found.red(), 187);
    ASSERT_EQ(KyCmColorBook::findColor(L"signal", found), Kyro::eOk) << "a colour of no book";
    EXPECT_FALSE(found.hasBookName());
    EXPECT_EQ(found.green(), 128);

    EXPECT_EQ(KyCmColorBook::findColor(L"RAL", L"Signal", found), Kyro::eKeyNotFound);
    EXPECT_EQ(KyCmColorBook::findColor(nullptr, L"3020", found), Kyro::eKeyNotFound);
    EXPECT_EQ(KyCmColorBook::findColor(L"PANTONE$3020", found), Kyro::eKeyNotFound);
}

TEST(KyCmColorBook, OnlyNamedTrueColorsAreRegisteredAndANameIsKeptOnce) {
    KyCmColor index;
    index.setColorIndex(1);
    EXPECT_EQ(KyCmColorBook::addColor(index), Kyro::eInvalidInput);
    KyCmColor unnamed;
    unnamed.setRGB(1, 2, 3);
    EXPECT_EQ(KyCmColorBook::addColor(unnamed), Kyro::eInvalidInput);

    KyCmColorBook::addColor(named(10, 10, 10, L"Dark", L"Greys"));
    KyCmColorBook::addColor(named(20, 20, 20, L"dark", L"GREYS"));
    KyCmColorBook::addColor(named(200, 200, 200, L"Light", L"Greys"));
    ASSERT_EQ(KyCmColorBook::bookNames().length(), 1);
    EXPECT_EQ(KyCmColorBook::bookNames()[0], KyString(L"Greys"));
    const KyStringArray names = KyCmColorBook::colorNames(L"greys");
    ASSERT_EQ(names.length(), 2);
    EXPECT_EQ(names[0], KyString(L"dark")) << "the later colour replaced the first";
    KyCmColor found;
    KyCmColorBook::findColor(L"Greys", L"Dark", found);
    EXPECT_EQ(found.red(), 20);

    KyCmColorBook::clear();
    EXPECT_TRUE(KyCmColorBook::bookNames().isEmpty());
}

}  // namespace
