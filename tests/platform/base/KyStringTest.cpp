#include "base/KyString.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

TEST(BaseString, EmptyStringsHoldNothingAndReadAsEmptyText) {
    const KyString empty;
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_EQ(0, empty.length());
    EXPECT_STREQ(L"", empty.kwszPtr());

    KyString text(L"abc");
    text = L"";
    EXPECT_TRUE(text.isEmpty());
    EXPECT_STREQ(L"", static_cast<const wchar_t*>(text));
    EXPECT_TRUE(KyString(static_cast<const wchar_t*>(nullptr)).isEmpty());
    EXPECT_EQ(KyString(), KyString(L""));
}

TEST(BaseString, CopiesAndMovesKeepValueSemantics) {
    KyString original(L"Layer 0");
    KyString copy(original);
    copy.append(L"!");
    EXPECT_EQ(KyString(L"Layer 0"), original);
    EXPECT_EQ(KyString(L"Layer 0!"), copy);

    KyString moved(std::move(copy));
    EXPECT_STREQ(L"Layer 0!", moved.kwszPtr());

    KyString assigned;
    assigned = original;
    const KyString& alias = assigned;
    assigned = alias;  // self-assignment keeps the text
    EXPECT_STREQ(L"Layer 0", assigned.kwszPtr());
    assigned.setEmpty();
    EXPECT_TRUE(assigned.isEmpty());

    EXPECT_STREQ(L"Lay", KyString(L"Layer", 3).kwszPtr());
    EXPECT_STREQ(L"Layer", KyString(L"Layer", 99).kwszPtr());
}

TEST(BaseString, AppendAndAssignMayUseTheStringsOwnText) {
    KyString text(L"ab");
    text.append(text.kwszPtr());
    EXPECT_STREQ(L"abab", text.kwszPtr());
    text.assign(text.kwszPtr() + 2);
    EXPECT_STREQ(L"ab", text.kwszPtr());
    text.append(L'c');
    text += KyString(L"d");
    EXPECT_STREQ(L"abcd", text.kwszPtr());

    const KyString base(L"Color");
    EXPECT_STREQ(L"Color Red", base.concat(L" Red").kwszPtr());
    EXPECT_STREQ(L"ColorColor", base.concat(base).kwszPtr());
    EXPECT_STREQ(L"Color", base.kwszPtr());
}

TEST(BaseString, FormatsWideStringsIntegersAndDoubles) {
    KyString text;
    text.format(L"'_.-LAYER\n_COLOR\n%d\n=%ls\n\n", 5, L"Walls");
    EXPECT_STREQ(L"'_.-LAYER\n_COLOR\n5\n=Walls\n\n", text.kwszPtr());
    EXPECT_STREQ(L"scale 0.250000 / 1.50",
                 KyString::formatted(L"scale %f / %.2f", 0.25, 1.5).kwszPtr());
    EXPECT_STREQ(L"Größe 日本", KyString::formatted(L"%ls %ls", L"Größe", L"日本").kwszPtr());
}

TEST(BaseString, FormatsTextsOfAnyLength) {
    const std::wstring longText(100000, L'x');
    const KyString text = KyString::formatted(L"[%ls]%d", longText.c_str(), 7);
    ASSERT_EQ(100003, text.length());
    EXPECT_EQ(L'[', text.kwszPtr()[0]);
    EXPECT_EQ(L'x', text.kwszPtr()[100000]);
    EXPECT_STREQ(L"]7", text.kwszPtr() + 100001);

    // The string's own text as an argument: formatting works on a new buffer.
    KyString self(L"abc");
    self.format(L"%ls-%ls", self.kwszPtr(), self.kwszPtr());
    EXPECT_STREQ(L"abc-abc", self.kwszPtr());
}

TEST(BaseString, FormatGivesUpOnAnEncodingError) {
    // A narrow argument that the C locale can't convert: the result is empty
    // and the call comes back.
    KyString text(L"before");
    text.format(L"%s", "\xff\xfe");
    EXPECT_TRUE(text.isEmpty());
}

TEST(BaseString, CompareOrdersCaseSensitively) {
    const KyString abc(L"abc");
    EXPECT_EQ(0, abc.compare(L"abc"));
    EXPECT_LT(abc.compare(L"abd"), 0);
    EXPECT_GT(abc.compare(L"ab"), 0);
    EXPECT_LT(KyString(L"ab").compare(abc), 0);
    EXPECT_LT(KyString(L"B").compare(L"a"), 0);  // upper case sorts first
    EXPECT_NE(0, abc.compare(L"ABC"));
    EXPECT_EQ(0, KyString().compare(static_cast<const wchar_t*>(nullptr)));
    EXPECT_GT(abc.compare(static_cast<const wchar_t*>(nullptr)), 0);
    EXPECT_TRUE(KyString(L"Layer1") < KyString(L"Layer2"));
}

TEST(BaseString, CompareNoCaseIgnoresCaseOfEveryAlphabet) {
    EXPECT_EQ(0, KyString(L"ByLayer").compareNoCase(L"BYLAYER"));
    EXPECT_EQ(0, KyString(L"ÄPFEL Öl Über").compareNoCase(L"äpfel öl über"));
    EXPECT_EQ(0, KyString(L"ΑΒΓ").compareNoCase(L"αβγ"));
    EXPECT_EQ(0, KyString(L"СЛОЙ").compareNoCase(L"слой"));
    // Case-insensitive ordering differs from the case-sensitive one.
    EXPECT_LT(KyString(L"apple").compareNoCase(L"BANANA"), 0);
    EXPECT_GT(KyString(L"apple").compare(L"BANANA"), 0);
    EXPECT_LT(KyString(L"Äa").compareNoCase(L"äB"), 0);
    EXPECT_GT(KyString(L"layers").compareNoCase(L"LAYER"), 0);
    EXPECT_NE(0, KyString(L"Ä").compareNoCase(L"A"));

    std::map<KyString, int, KyStringLessNoCase> byName;
    byName[L"Continuous"] = 1;
    byName[L"CONTINUOUS"] = 2;
    EXPECT_EQ(1u, byName.size());
    EXPECT_EQ(2, byName[L"continuous"]);
}

TEST(BaseString, FindOneOfAnswersMinusOneForNoneAndOutOfRange) {
    const KyString text(L"a,b;c");
    EXPECT_EQ(1, text.findOneOf(L",;"));
    EXPECT_EQ(1, text.findOneOf(L",;", 1));
    EXPECT_EQ(3, text.findOneOf(L",;", 2));
    EXPECT_EQ(-1, text.findOneOf(L",;", 4));
    EXPECT_EQ(-1, text.findOneOf(L",;", 5));  // start at the end
    EXPECT_EQ(-1, text.findOneOf(L",;", 99));
    EXPECT_EQ(-1, text.findOneOf(L",;", -1));
    EXPECT_EQ(-1, text.findOneOf(L"xyz"));
    EXPECT_EQ(-1, text.findOneOf(L""));
    EXPECT_EQ(-1, text.findOneOf(nullptr));
    EXPECT_EQ(-1, KyString().findOneOf(L","));
}

TEST(BaseString, FindLocatesCharactersAndTexts) {
    const KyString text(L"_.-LAYER_LAYER");
    EXPECT_EQ(3, text.find(L"LAYER"));
    EXPECT_EQ(9, text.find(L"LAYER", 5));
    EXPECT_EQ(-1, text.find(L"LAYER", 10));
    EXPECT_EQ(0, text.find(L'_'));
    EXPECT_EQ(8, text.find(L'_', 1));
    EXPECT_EQ(-1, text.find(L'#'));
    EXPECT_EQ(-1, text.find(L'_', -1));
    EXPECT_EQ(-1, text.find(L'_', 14));
}

TEST(BaseString, MidLeftAndRightStayInBounds) {
    const KyString text(L"hello");
    EXPECT_STREQ(L"ell", text.mid(1, 3).kwszPtr());
    EXPECT_STREQ(L"ello", text.mid(1).kwszPtr());
    EXPECT_STREQ(L"ello", text.mid(1, 100).kwszPtr());
    EXPECT_STREQ(L"he", text.mid(-3, 2).kwszPtr());
    EXPECT_TRUE(text.mid(5).isEmpty());
    EXPECT_TRUE(text.mid(10, 2).isEmpty());
    EXPECT_TRUE(text.mid(2, 0).isEmpty());

    EXPECT_STREQ(L"he", text.left(2).kwszPtr());
    EXPECT_STREQ(L"hello", text.left(10).kwszPtr());
    EXPECT_TRUE(text.left(0).isEmpty());
    EXPECT_TRUE(text.left(-1).isEmpty());

    EXPECT_STREQ(L"lo", text.right(2).kwszPtr());
    EXPECT_STREQ(L"hello", text.right(10).kwszPtr());
    EXPECT_TRUE(text.right(0).isEmpty());
    EXPECT_TRUE(text.right(-2).isEmpty());
}

TEST(BaseString, ChangesCaseAndTrims) {
    KyString text(L"  Straße äöü Ωmega\t\n");
    text.trim();
    EXPECT_STREQ(L"Straße äöü Ωmega", text.kwszPtr());
    text.makeUpper();
    EXPECT_STREQ(L"STRAßE ÄÖÜ ΩMEGA", text.kwszPtr());
    text.makeLower();
    EXPECT_STREQ(L"straße äöü ωmega", text.kwszPtr());

    KyString blank(L" \t ");
    blank.trim();
    EXPECT_TRUE(blank.isEmpty());
}

TEST(BaseString, Utf8RoundTripsEveryPlane) {
    const wchar_t* wide = L"Grüße 日本 \U0001F600 x";
    const KyString text(wide);
    const std::string bytes = text.utf8();
    EXPECT_EQ(std::string("Gr\xC3\xBC\xC3\x9F"
                          "e \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80 x"),
              bytes);
    EXPECT_STREQ(wide, KyString::fromUtf8(bytes).kwszPtr());
    EXPECT_EQ(std::wstring(L"\U0010FFFF\u0080\u07FF\u0800\uFFFF"),
              kyutUtf8ToWide(kyutWideToUtf8(L"\U0010FFFF\u0080\u07FF\u0800\uFFFF")));
    EXPECT_TRUE(kyutUtf8ToWide("").empty());
}

TEST(BaseString, InvalidUtf8BecomesReplacementCharacters) {
    EXPECT_EQ(std::wstring(L"a\uFFFDb"), kyutUtf8ToWide("a\xFF"
                                                        "b"));
    // An overlong form: a bad lead byte and a stray continuation byte.
    EXPECT_EQ(std::wstring(L"\uFFFD\uFFFD"), kyutUtf8ToWide("\xC0\xAF"));
    // A sequence cut short at the end, and one broken by an ASCII byte.
    EXPECT_EQ(std::wstring(L"x\uFFFD"), kyutUtf8ToWide("x\xE6\x97"));
    EXPECT_EQ(std::wstring(L"\uFFFDA"), kyutUtf8ToWide("\xE6\x97"
                                                       "A"));
    // An encoded surrogate and a value beyond U+10FFFF.
    EXPECT_EQ(std::wstring(L"\uFFFD\uFFFD\uFFFD"), kyutUtf8ToWide("\xED\xA0\x80"));
    EXPECT_EQ(std::wstring(L"\uFFFD\uFFFD\uFFFD\uFFFD"), kyutUtf8ToWide("\xF4\x90\x80\x80"));
    // Wide values that UTF-8 can't carry are written as U+FFFD.
    const wchar_t lone[] = {static_cast<wchar_t>(0xD800), L'a', L'\0'};
    EXPECT_EQ(std::string("\xEF\xBF\xBD"
                          "a"),
              kyutWideToUtf8(lone));
}

TEST(BaseString, FreeStringsAreDuplicatedReplacedAndFreed) {
    wchar_t* name = nullptr;
    kyutNewString(L"ByLayer", name);
    ASSERT_NE(nullptr, name);
    EXPECT_STREQ(L"ByLayer", name);

    kyutUpdString(L"ByBlock", name);
    EXPECT_STREQ(L"ByBlock", name);
    kyutUpdString(name, name);  // replacing with itself keeps the text
    EXPECT_STREQ(L"ByBlock", name);
    kyutUpdString(nullptr, name);
    EXPECT_EQ(nullptr, name);

    kyutNewString(L"Continuous", name);
    void* buffer = name;
    kyutDelBuffer(buffer);
    EXPECT_EQ(nullptr, buffer);

    wchar_t* other = nullptr;
    kyutNewString(L"x", other);
    kyutDelString(other);
    EXPECT_EQ(nullptr, other);
    kyutNewString(nullptr, other);
    EXPECT_EQ(nullptr, other);
}

}  // namespace
