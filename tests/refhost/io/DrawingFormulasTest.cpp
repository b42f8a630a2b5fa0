// Formulas in drawing files: the "formulas" member of texts and dimensions
// read into the entity and written back, a file without formulas unchanged,
// a formula set after opening saved with its value, and malformed formulas
// refused at their own path.
#include <gtest/gtest.h>

#include "DrawingTestSupport.h"
#include "db/KyDbDimension.h"
#include "db/KyDbMText.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbText.h"

using namespace drawingio;

namespace {

// The small drawing with a text, a multiline text and a dimension in model
// space (entities 2 to 4), each with the members given ({} for none).
KyRefJson withTexts(const KyRefJson& text, const KyRefJson& mtext, const KyRefJson& dimension) {
    KyRefJson document = smallDrawing();
    KyRefJson& entities = document["blocks"][0]["entities"];
    KyRefJson entity = {
        {"type", "TEXT"}, {"handle", "50"}, {"position", {0, 0}}, {"height", 1}, {"text", "Hall"}};
    if (text.is_object()) {
        entity.update(text);
    }
    entities.push_back(entity);
    entity = {{"type", "MTEXT"},
              {"handle", "51"},
              {"position", {0, 5}},
              {"height", 1},
              {"text", "Notes"}};
    if (mtext.is_object()) {
        entity.update(mtext);
    }
    entities.push_back(entity);
    entity = {{"type", "DIMENSION"}, {"handle", "52"}, {"points", {{0, 0}, {3, 4}}}};
    if (dimension.is_object()) {
        entity.update(dimension);
    }
    entities.push_back(entity);
    return document;
}

KyDbObjectId idOf(KyDbDatabase* db, std::uint64_t handle) {
    KyDbObjectId id;
    db->getKyDbObjectId(id, KyDbHandle(handle));
    return id;
}

std::string errorOf(const KyRefJson& document) {
    const Reading reading = read(document);
    EXPECT_EQ(reading.db, nullptr) << "the drawing was read";
    return reading.error;
}

TEST(DrawingFormulas, FormulasAreReadIntoTheirEntitiesAndWrittenBackAsTheyWere) {
    const KyRefJson original =
        withTexts({{"height", 5}, {"formulas", {{"height", "2.5*2"}}}},
                  {{"height", 0.75}, {"formulas", {{"height", "(1 + 2) / 4"}}}},
                  {{"decimalPlaces", 3}, {"formulas", {{"decimalPlaces", "7/2"}}}});
    const Reading reading = read(original);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbDatabase* db = reading.db.get();
    {
        KyDbObjectPointer<KyDbText> text(idOf(db, 0x50), KyDb::kForRead);
        EXPECT_EQ(text->heightFormula(), KyString(L"2.5*2"));
        EXPECT_EQ(text->height(), 5.0);
        KyDbObjectPointer<KyDbMText> mtext(idOf(db, 0x51), KyDb::kForRead);
        EXPECT_EQ(mtext->textHeightFormula(), KyString(L"(1 + 2) / 4"));
        KyDbObjectPointer<KyDbDimension> dimension(idOf(db, 0x52), KyDb::kForRead);
        EXPECT_EQ(dimension->decimalPlacesFormula(), KyString(L"7/2"));
        EXPECT_EQ(dimension->decimalPlaces(), 3);
        EXPECT_EQ(dimension->displayText(), KyString(L"5.000"));
    }
    const KyRefJson saved = save(db);
    EXPECT_TRUE(unordered(saved) == unordered(original))
        << nlohmann::json::diff(unordered(original), unordered(saved));
}

TEST(DrawingFormulas, AFileWithoutFormulasIsWrittenBackWithoutThem) {
    const KyRefJson original = withTexts({}, {{"width", 20}}, {{"text", "<>"}});
    const Reading reading = read(original);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    const KyRefJson saved = save(reading.db.get());
    EXPECT_TRUE(unordered(saved) == unordered(original))
        << nlohmann::json::diff(unordered(original), unordered(saved));

    const KyRefJson emptyFormulas = withTexts({{"formulas", KyRefJson::object()}}, {}, {});
    const Reading kept = read(emptyFormulas);
    ASSERT_NE(kept.db, nullptr) << kept.error;
    EXPECT_EQ(save(kept.db.get())["blocks"][0]["entities"][2]["formulas"], KyRefJson::object())
        << "an empty member the file gave stays";
}

TEST(DrawingFormulas, TheFormulaDecidesTheValueOverTheNumberBesideIt) {
    const Reading reading = read(withTexts({{"height", 1}, {"formulas", {{"height", "2*3"}}}}, {},
                                           {{"formulas", {{"decimalPlaces", "1.9"}}}}));
    ASSERT_NE(reading.db, nullptr) << reading.error;
    const KyRefJson saved = save(reading.db.get());
    const KyRefJson& entities = saved["blocks"][0]["entities"];
    EXPECT_EQ(entities[2]["height"], 6.0);
    EXPECT_EQ(entities[4]["decimalPlaces"], 1) << "a formula's value truncated toward zero";
    EXPECT_EQ(entities[4]["formulas"], KyRefJson({{"decimalPlaces", "1.9"}}));
}

TEST(DrawingFormulas, AFormulaSetAfterOpeningIsSavedAndOpensAgain) {
    const Reading reading = read(withTexts({}, {}, {}));
    ASSERT_NE(reading.db, nullptr) << reading.error;
    {
        KyDbObjectPointer<KyDbText> text(idOf(reading.db.get(), 0x50), KyDb::kForWrite);
        ASSERT_EQ(text->setHeightFormula(L"0.5 * 5"), Kyro::eOk);
        KyDbObjectPointer<KyDbDimension> dimension(idOf(reading.db.get(), 0x52), KyDb::kForWrite);
        ASSERT_EQ(dimension->setDecimalPlaces(2), Kyro::eOk);
    }
    const KyRefJson saved = save(reading.db.get());
    const KyRefJson& text = saved["blocks"][0]["entities"][2];
    EXPECT_EQ(text["height"], 2.5);
    EXPECT_EQ(text["formulas"], KyRefJson({{"height", "0.5 * 5"}}));
    EXPECT_FALSE(saved["blocks"][0]["entities"][3].contains("formulas"));
    EXPECT_EQ(saved["blocks"][0]["entities"][4]["decimalPlaces"], 2);
    EXPECT_FALSE(saved["blocks"][0]["entities"][4].contains("formulas"));

    const Reading again = read(saved);
    ASSERT_NE(again.db, nullptr) << again.error;
    KyDbObjectPointer<KyDbText> reread(idOf(again.db.get(), 0x50), KyDb::kForRead);
    EXPECT_EQ(reread->heightFormula(), KyString(L"0.5 * 5"));
    EXPECT_EQ(reread->height(), 2.5);
    KyDbObjectPointer<KyDbDimension> dimension(idOf(again.db.get(), 0x52), KyDb::kForRead);
    EXPECT_EQ(dimension->decimalPlaces(), 2);
}

TEST(DrawingFormulas, AMalformedFormulaIsAnErrorAtItsPath) {
    EXPECT_EQ(errorOf(withTexts({{"formulas", {"2*3"}}}, {}, {})),
              "blocks[0].entities[2].formulas: expected an object of formulas by member name "
              "({\"height\": \"2.5*2\"}), found an array");
    EXPECT_EQ(errorOf(withTexts({}, {{"formulas", {{"width", "10"}}}}, {})),
              "blocks[0].entities[3].formulas.width: expected a member that a formula can drive "
              "(height), found \"width\"");
    EXPECT_EQ(errorOf(withTexts({{"formulas", {{"height", 6}}}}, {}, {})),
              "blocks[0].entities[2].formulas.height: expected a string, found an integer");
    EXPECT_EQ(errorOf(withTexts({{"formulas", {{"height", "2*"}}}}, {}, {})),
              "blocks[0].entities[2].formulas.height: expected a formula of numbers, + - * / and "
              "parentheses that does not divide by zero, found \"2*\"");
    EXPECT_EQ(errorOf(withTexts({}, {{"formulas", {{"height", "1/(2-2)"}}}}, {})),
              "blocks[0].entities[3].formulas.height: expected a formula of numbers, + - * / and "
              "parentheses that does not divide by zero, found \"1/(2-2)\"");
    EXPECT_EQ(errorOf(withTexts({{"formulas", {{"height", "1-3"}}}}, {}, {})),
              "blocks[0].entities[2].formulas.height: expected a formula giving a positive "
              "height; the drawing refused it as a value the drawing can't take");
    EXPECT_EQ(errorOf(withTexts({}, {}, {{"formulas", {{"decimalPlaces", "3*3"}}}})),
              "blocks[0].entities[4].formulas.decimalPlaces: expected a formula giving a number "
              "of decimal places from 0 to 8; the drawing refused it as a value the drawing "
              "can't take");
    EXPECT_EQ(errorOf(withTexts({}, {}, {{"decimalPlaces", 9}})),
              "blocks[0].entities[4].decimalPlaces: expected an integer from 0 to 8, found 9");
}

}  // namespace
