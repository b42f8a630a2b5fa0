// Numeric properties that hold a formula, through the protocol extension a
// palette uses: which objects serve it, a formula and its value set in one
// change, refusals that change nothing, plain writes that drop the formula,
// and undo, redo and copies that keep it with its value.
#include <gtest/gtest.h>

#include <memory>

#include "DbTestSupport.h"
#include "db/KyDbAttribute.h"
#include "db/KyDbDimension.h"
#include "db/KyDbLine.h"
#include "db/KyDbMText.h"
#include "db/KyDbText.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxPropertyExpressionPE.h"

namespace dbtest {
namespace {

const KyRxPropertyExpressionPE* formulasOf(const KyRxObject* object) {
    return kyrxCast<KyRxPropertyExpressionPE>(object->queryX(KyRxPropertyExpressionPE::desc()));
}

const KyRxProperty* propertyOf(const KyRxObject* object, const wchar_t* name) {
    KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
    return kyrxCast<KyRxProperty>(engine->find(object, name, engine->promotingContext()));
}

class FormulaPropertyTest : public DbTest {
protected:
    FormulaPropertyTest()
        : text(addEntity(new KyDbText())),
          mtext(addEntity(new KyDbMText())),
          dimension(addEntity(new KyDbDimension())) {}

    // Sets formula `formula` on property `name` of the object `id` in one
    // write-open; answers the status.
    Kyro::ErrorStatus setFormula(KyDbObjectId id, const wchar_t* name, const wchar_t* formula) {
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForWrite);
        return formulasOf(object.object())
            ->setExpression(object.object(), propertyOf(object.object(), name), formula);
    }
    // The formula of property `name`, read through the extension.
    std::string formulaOf(KyDbObjectId id, const wchar_t* name) {
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForRead);
        const KyRxProperty* property = propertyOf(object.object(), name);
        const KyRxPropertyExpressionPE* formulas = formulasOf(object.object());
        const KyString formula = formulas->getExpression(object.object(), property);
        EXPECT_TRUE(formulas->isExpression(object.object(), property));
        return formula.utf8();
    }
    // The value of property `name`, read as a palette reads it.
    KyRxValue valueOf(KyDbObjectId id, const wchar_t* name) {
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForRead);
        KyRxValue value;
        EXPECT_EQ(propertyOf(object.object(), name)->getValue(object.object(), value), Kyro::eOk);
        return value;
    }

    KyDbObjectId text;
    KyDbObjectId mtext;
    KyDbObjectId dimension;
};

TEST_F(FormulaPropertyTest, TextsAndDimensionsServeTheExtensionForTheirFormulaProperties) {
    const KyDbLine line;
    EXPECT_EQ(formulasOf(&line), nullptr) << "a line has no property that holds a formula";
    KyDbAttribute attribute;
    ASSERT_NE(formulasOf(&attribute), nullptr) << "an attribute is a text";
    EXPECT_EQ(formulasOf(&attribute)
                  ->setExpression(&attribute, propertyOf(&attribute, L"Height"), L"0.5*3"),
              Kyro::eOk);
    EXPECT_EQ(attribute.height(), 1.5);

    KyDbObjectPointer<KyDbText> open(text, KyDb::kForWrite);
    const KyRxPropertyExpressionPE* formulas = formulasOf(open.object());
    ASSERT_NE(formulas, nullptr);
    const KyRxProperty* rotation = propertyOf(open.object(), L"Rotation");
    EXPECT_FALSE(formulas->isExpression(open.object(), rotation));
    EXPECT_EQ(formulas->setExpression(open.object(), rotation, L"45"), Kyro::eNotApplicable);
    EXPECT_EQ(formulas->setExpression(open.object(), nullptr, L"45"), Kyro::eNotApplicable);
    KyDbMText loose;
    EXPECT_EQ(formulas->setExpression(open.object(), propertyOf(&loose, L"Height"), L"2"),
              Kyro::eNotApplicable)
        << "the height of another class is not the text's";
    EXPECT_EQ(open->height(), 1.0);
}

TEST_F(FormulaPropertyTest, AFormulaSetsTheHeightAndIsKeptBesideIt) {
    EXPECT_EQ(formulaOf(text, L"Height"), "") << "a new text holds a plain height";
    ASSERT_EQ(setFormula(text, L"Height", L"2.5*2"), Kyro::eOk);
    EXPECT_EQ(formulaOf(text, L"Height"), "2.5*2");
    EXPECT_EQ(valueOf(text, L"Height"), KyRxValue(5.0));

    ASSERT_EQ(setFormula(mtext, L"Height", L" (1 + 2) / 4 "), Kyro::eOk);
    EXPECT_EQ(formulaOf(mtext, L"Height"), " (1 + 2) / 4 ") << "the text is kept as given";
    EXPECT_EQ(valueOf(mtext, L"Height"), KyRxValue(0.75));
    KyDbObjectPointer<KyDbMText> open(mtext, KyDb::kForRead);
    EXPECT_EQ(open->textHeightFormula(), KyString(L" (1 + 2) / 4 "));
}

TEST_F(FormulaPropertyTest, DecimalPlacesTakeTheFormulasValueTruncatedTowardZero) {
    EXPECT_EQ(valueOf(dimension, L"DecimalPlaces"), KyRxValue(4));
    ASSERT_EQ(setFormula(dimension, L"DecimalPlaces", L"7/2"), Kyro::eOk);
    EXPECT_EQ(valueOf(dimension, L"DecimalPlaces"), KyRxValue(3));
    EXPECT_EQ(formulaOf(dimension, L"DecimalPlaces"), "7/2");
    ASSERT_EQ(setFormula(dimension, L"DecimalPlaces", L"-0.9+1.5"), Kyro::eOk);
    EXPECT_EQ(valueOf(dimension, L"DecimalPlaces"), KyRxValue(0));

    EXPECT_EQ(setFormula(dimension, L"DecimalPlaces", L"-1.5"), Kyro::eInvalidInput) << "-1 places";
    EXPECT_EQ(setFormula(dimension, L"DecimalPlaces", L"3*3"), Kyro::eInvalidInput)
        << "beyond 8 places";
    EXPECT_EQ(setFormula(dimension, L"DecimalPlaces", L"1e10"), Kyro::eInvalidInput)
        << "beyond an int";
    EXPECT_EQ(formulaOf(dimension, L"DecimalPlaces"), "-0.9+1.5");

    ASSERT_EQ(setFormula(dimension, L"DecimalPlaces", L"1+1"), Kyro::eOk);
    KyDbObjectPointer<KyDbDimension> open(dimension, KyDb::kForWrite);
    ASSERT_EQ(open->setMeasurement(12.3456), Kyro::eOk);
    EXPECT_EQ(open->displayText(), KyString(L"12.35")) << "the measurement as shown";
    ASSERT_EQ(open->setDimensionText(L"about 12"), Kyro::eOk);
    EXPECT_EQ(open->displayText(), KyString(L"about 12"));
}

TEST_F(FormulaPropertyTest, ARefusedFormulaChangesNothingAndTellsNothing) {
    ASSERT_EQ(setFormula(text, L"Height", L"1+1"), Kyro::eOk);
    ObjectSpy spy(log);
    watch(text, &spy);
    const wchar_t* const texts[] = {L"", L"2*", L"abc", L"1/0", L"1-1", L"-2", nullptr};
    for (const wchar_t* refused : texts) {
        EXPECT_EQ(setFormula(text, L"Height", refused), Kyro::eInvalidInput)
            << (refused != nullptr ? KyString(refused).utf8() : "null");
    }
    {
        KyDbObjectPointer<KyDbText> open(text, KyDb::kForRead);
        EXPECT_EQ(formulasOf(open.object())
                      ->setExpression(open.object(), propertyOf(open.object(), L"Height"), L"3"),
                  Kyro::eWasNotOpenForWrite);
    }
    EXPECT_EQ(formulaOf(text, L"Height"), "1+1");
    EXPECT_EQ(valueOf(text, L"Height"), KyRxValue(2.0));
    EXPECT_TRUE(log.lines().empty()) << testing::PrintToString(log.lines());
}

TEST_F(FormulaPropertyTest, APlainWriteDropsTheFormulaEvenWhenTheNumberStays) {
    ASSERT_EQ(setFormula(text, L"Height", L"2+3"), Kyro::eOk);
    ObjectSpy spy(log);
    watch(text, &spy);
    {
        KyDbObjectPointer<KyDbText> open(text, KyDb::kForWrite);
        EXPECT_EQ(formulasOf(open.object())
                      ->setExpression(open.object(), propertyOf(open.object(), L"Height"), L"2+3"),
                  Kyro::eOk);
        EXPECT_FALSE(open->isModified()) << "the same formula again is no change";
        ASSERT_EQ(propertyOf(open.object(), L"Height")->setValue(open.object(), KyRxValue(5.0)),
                  Kyro::eOk);
        EXPECT_TRUE(open->isModified()) << "the formula went";
    }
    EXPECT_EQ(formulaOf(text, L"Height"), "");
    EXPECT_EQ(valueOf(text, L"Height"), KyRxValue(5.0));
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify KyDbText", "modified KyDbText", "objectClosed KyDbText"}));

    ASSERT_EQ(setFormula(dimension, L"DecimalPlaces", L"2"), Kyro::eOk);
    KyDbObjectPointer<KyDbDimension> open(dimension, KyDb::kForWrite);
    ASSERT_EQ(open->setDecimalPlaces(2), Kyro::eOk);
    EXPECT_TRUE(open->decimalPlacesFormula().isEmpty());
}

TEST_F(FormulaPropertyTest, AFormulaIsOneChangeAndOneUndoStepThatRestoresTheOldFormula) {
    ASSERT_EQ(setFormula(text, L"Height", L"1+1"), Kyro::eOk);
    ObjectSpy spy(log);
    watch(text, &spy);
    const int steps = undo()->undoCount();
    ASSERT_EQ(setFormula(text, L"Height", L"3*3"), Kyro::eOk);
    EXPECT_EQ(undo()->undoCount(), steps + 1);
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify KyDbText", "modified KyDbText", "objectClosed KyDbText"}));
    log.clear();

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(formulaOf(text, L"Height"), "1+1");
    EXPECT_EQ(valueOf(text, L"Height"), KyRxValue(2.0));
    EXPECT_EQ(log.lines(),
              (Lines{"modifyUndone KyDbText", "modified KyDbText", "objectClosed KyDbText"}));
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(formulaOf(text, L"Height"), "3*3");
    EXPECT_EQ(valueOf(text, L"Height"), KyRxValue(9.0));

    ASSERT_EQ(setFormula(dimension, L"DecimalPlaces", L"6/2"), Kyro::eOk);
    {
        KyDbObjectPointer<KyDbDimension> open(dimension, KyDb::kForWrite);
        ASSERT_EQ(open->setDecimalPlaces(5), Kyro::eOk);
    }
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(formulaOf(dimension, L"DecimalPlaces"), "6/2") << "the plain write taken back";
    EXPECT_EQ(valueOf(dimension, L"DecimalPlaces"), KyRxValue(3));
}

TEST_F(FormulaPropertyTest, CopiesKeepTheFormulaWithItsValue) {
    ASSERT_EQ(setFormula(text, L"Height", L"0.5*5"), Kyro::eOk);
    ASSERT_EQ(setFormula(dimension, L"DecimalPlaces", L"1+2"), Kyro::eOk);
    KyDbObjectPointer<KyDbText> source(text, KyDb::kForRead);
    std::unique_ptr<KyRxObject> copy(source->clone());
    const auto* textCopy = kyrxCast<KyDbText>(copy.get());
    ASSERT_NE(textCopy, nullptr);
    EXPECT_EQ(textCopy->heightFormula(), KyString(L"0.5*5"));
    EXPECT_EQ(textCopy->height(), 2.5);

    KyDbObjectPointer<KyDbDimension> dimensionSource(dimension, KyDb::kForRead);
    KyDbDimension copied;
    ASSERT_EQ(copied.copyFrom(dimensionSource.object()), Kyro::eOk);
    EXPECT_EQ(copied.decimalPlacesFormula(), KyString(L"1+2"));
    EXPECT_EQ(copied.decimalPlaces(), 3);
}

}  // namespace
}  // namespace dbtest
