// The value forms of kydi scripts: every form reads back from what it prints,
// texts are quoted exactly when they would otherwise read as something else,
// and a word that starts like a form but is none is an error, not a text.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "KyAppStatementReader.h"
#include "KyAppValue.h"
#include "db/KyCmColor.h"
#include "db/KyCmColorBook.h"
#include "db/KyCmTransparency.h"

namespace {

std::optional<KyAppValue> read(const std::string& word, bool quoted = false) {
    std::string error;
    return KyAppValue::parse(word, quoted, error);
}

// A value as a script line holds it: quoted or not.
std::optional<KyAppValue> readWord(const std::string& text) {
    KyAppStatement statement;
    std::string error;
    if (!KyAppStatementReader::read("sysvar " + text, statement, error) ||
        statement.words.size() != 1) {
        ADD_FAILURE() << text << ": " << error;
        return std::nullopt;
    }
    const KyAppWord& word = statement.words[0];
    return KyAppValue::parse(word.text, word.quoted, error);
}

std::string errorOf(const std::string& word) {
    std::string error;
    EXPECT_FALSE(KyAppValue::parse(word, false, error).has_value()) << word;
    return error;
}

}  // namespace

TEST(ValueForms, EveryFormPrintsAsWrittenAndReadsBackEqual) {
    const char* const lines[] = {
        "true",
        "false",
        "12",
        "-0.5",
        "2.5e-07",
        "Walls",
        "aci:1",
        "aci:255",
        "rgb:255,128,0",
        "book:RAL$3020",
        "bylayer",
        "byblock",
        "alpha:0",
        "alpha:255",
        "#1F",
        "#0",
        "\"Exterior walls\"",
        "\"0\"",
        "book:\"RAL CLASSIC$RAL 3020\"",
    };
    for (const char* line : lines) {
        const std::optional<KyAppValue> value = readWord(line);
        ASSERT_TRUE(value.has_value()) << line;
        EXPECT_EQ(value->format(), line);
        EXPECT_EQ(readWord(value->format()), value) << line;
    }
}

TEST(ValueForms, WordsReadAsTheirKinds) {
    EXPECT_EQ(read("true")->kind(), KyAppValue::Kind::kBoolean);
    EXPECT_EQ(read("+3")->asNumber(), 3.0);
    EXPECT_EQ(read("ByLayer")->kind(), KyAppValue::Kind::kByLayer) << "any case";
    EXPECT_EQ(read("BYBLOCK")->kind(), KyAppValue::Kind::kByBlock);
    EXPECT_EQ(read("True")->kind(), KyAppValue::Kind::kText) << "only true and false";
    EXPECT_EQ(read("0x10")->kind(), KyAppValue::Kind::kText);
    const KyAppValue book = *read("book:RAL CLASSIC$RAL 3020");
    EXPECT_EQ(book.asText(), "RAL CLASSIC");
    EXPECT_EQ(book.colorName(), "RAL 3020");
    EXPECT_EQ(book.format(), "book:\"RAL CLASSIC$RAL 3020\"");
    EXPECT_EQ(read("#1f")->handle(), 0x1Fu);
    EXPECT_EQ(read("#1f")->format(), "#1F");
}

TEST(ValueForms, AQuotedWordIsATextWhateverItHolds) {
    for (const char* word : {"true", "12", "aci:1", "bylayer", "#1F", "", "a b"}) {
        const std::optional<KyAppValue> value = read(word, true);
        ASSERT_TRUE(value.has_value());
        EXPECT_EQ(value->kind(), KyAppValue::Kind::kText) << word;
        EXPECT_EQ(value->asText(), word);
    }
}

TEST(ValueForms, TextsAreQuotedOnlyWhenTheyWouldReadAsSomethingElse) {
    EXPECT_EQ(KyAppValue::text("Walls").format(), "Walls");
    EXPECT_EQ(KyAppValue::text("Ébauche").format(), "Ébauche");
    EXPECT_EQ(KyAppValue::text("-LAYER").format(), "-LAYER");
    EXPECT_EQ(KyAppValue::text("0").format(), "\"0\"") << "a layer named 0 is no number";
    EXPECT_EQ(KyAppValue::text("true").format(), "\"true\"");
    EXPECT_EQ(KyAppValue::text("ByLayer").format(), "\"ByLayer\"");
    EXPECT_EQ(KyAppValue::text("").format(), "\"\"");
    EXPECT_EQ(KyAppValue::text("Hidden Lines").format(), "\"Hidden Lines\"");
    EXPECT_EQ(KyAppValue::text("say \"hi\"").format(), "\"say \\\"hi\\\"\"");
    EXPECT_EQ(KyAppValue::text("C:\\plans").format(), "\"C:\\\\plans\"");
    // Every character the statement reader takes for a blank.
    for (const std::string text : {"Lin\r", "a\tb", "\nx"}) {
        EXPECT_EQ(KyAppValue::text(text).format(), KyAppValue::quote(text));
        EXPECT_EQ(readWord(KyAppValue::text(text).format()), KyAppValue::text(text));
    }
}

TEST(ValueForms, NumbersPrintInTheFewestDigits) {
    EXPECT_EQ(KyAppValue::formatNumber(4), "4");
    EXPECT_EQ(KyAppValue::formatNumber(-3), "-3");
    EXPECT_EQ(KyAppValue::formatNumber(0.1), "0.1");
    EXPECT_EQ(KyAppValue::formatNumber(2.5), "2.5");
    EXPECT_EQ(KyAppValue::formatNumber(1.0 / 3.0), "0.3333333333333333");
    EXPECT_EQ(KyAppValue::formatNumber(-0.0), "0");
}

TEST(ValueForms, AWordThatStartsLikeAFormAndIsNoneIsAnError) {
    EXPECT_EQ(errorOf("aci:0"), "aci:0: expected aci:N with an index 1 to 255");
    EXPECT_EQ(errorOf("aci:256"), "aci:256: expected aci:N with an index 1 to 255");
    EXPECT_EQ(errorOf("aci:red"), "aci:red: expected aci:N with an index 1 to 255");
    EXPECT_EQ(errorOf("rgb:1,2"), "rgb:1,2: expected rgb:R,G,B with each part 0 to 255");
    EXPECT_EQ(errorOf("rgb:1,2,3,4"), "rgb:1,2,3,4: expected rgb:R,G,B with each part 0 to 255");
    EXPECT_EQ(errorOf("rgb:1,2,256"), "rgb:1,2,256: expected rgb:R,G,B with each part 0 to 255");
    EXPECT_EQ(errorOf("book:RAL"), "book:RAL: expected book:BOOK$NAME");
    EXPECT_EQ(errorOf("book:$3020"), "book:$3020: expected book:BOOK$NAME");
    EXPECT_EQ(errorOf("alpha:256"), "alpha:256: expected alpha:N with an alpha 0 to 255");
    EXPECT_EQ(errorOf("#XYZ"), "#XYZ: expected #HANDLE with a hexadecimal handle");
    EXPECT_EQ(errorOf("#"), "#: expected #HANDLE with a hexadecimal handle");
}

TEST(ValueForms, ColoursAndTransparenciesBecomeTheDrawingsValues) {
    KyCmColor color;
    ASSERT_TRUE(read("aci:3")->toColor(color));
    EXPECT_TRUE(color.isByACI());
    EXPECT_EQ(color.colorIndex(), 3);
    ASSERT_TRUE(read("rgb:10,20,30")->toColor(color));
    EXPECT_TRUE(color.isByColor());
    EXPECT_EQ(color.red() + color.green() + color.blue(), 60);
    ASSERT_TRUE(read("bylayer")->toColor(color));
    EXPECT_TRUE(color.isByLayer());
    EXPECT_FALSE(read("alpha:5")->toColor(color));

    EXPECT_FALSE(read("book:RAL$3020")->toColor(color)) << "no such book yet";
    KyCmColor named;
    named.setRGB(204, 6, 5);
    named.setNames(L"3020", L"RAL");
    ASSERT_EQ(KyCmColorBook::addColor(named), Kyro::eOk);
    ASSERT_TRUE(read("book:ral$3020")->toColor(color));
    EXPECT_EQ(color, named);

    KyCmTransparency transparency;
    ASSERT_TRUE(read("alpha:128")->toTransparency(transparency));
    EXPECT_EQ(transparency.alpha(), 128);
    ASSERT_TRUE(read("byblock")->toTransparency(transparency));
    EXPECT_TRUE(transparency.isByBlock());
    EXPECT_FALSE(read("aci:1")->toTransparency(transparency));
}
