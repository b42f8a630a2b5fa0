// Properties that hold a formula: read through a wrapper they give the value
// with the formula's text; a formula written sets both, a plain value clears
// the formula. The expression value type shows either side.
#include <gtest/gtest.h>

#include <memory>

#include "db/KyAxDocLock.h"
#include "db/KyDbDimension.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbText.h"
#include "kydi/KyDiExpression.h"
#include "objects/ItemFixture.h"
#include "rx/KyRxBoxedValue.h"

namespace {

class Expressions : public kytest::ItemFixture {
protected:
    KyDbObjectId addText(const wchar_t* formula) {
        return content().addEntity<KyDbText>([formula](KyDbText& text) {
            if (formula != nullptr) {
                text.setHeightFormula(formula);
            }
        });
    }
    static const KyDiExpression* expressionIn(const KyRxValue& value) {
        return valueCast<KyDiExpression>(&value);
    }
    static KyDiExpression expression(const KyRxValue& value, const wchar_t* text) {
        return KyDiExpression{value, KyString(text)};
    }
    KyString formulaOf(KyDbObjectId text) {
        KyDbObjectPointer<KyDbText> opened(text, KyDb::kForRead);
        return opened->heightFormula();
    }
    double heightOf(KyDbObjectId text) {
        KyDbObjectPointer<KyDbText> opened(text, KyDb::kForRead);
        return opened->height();
    }
};

TEST_F(Expressions, AFormulaReadsAsItsValueWithItsText) {
    KyDiDynamicObject* text = itemOf(addText(L"2*1.25"));
    KyRxValue value;
    ASSERT_EQ(read(text, L"Height", value), Kyro::eOk);
    const KyDiExpression* formula = expressionIn(value);
    ASSERT_NE(formula, nullptr);
    EXPECT_EQ(formula->value, KyRxValue(2.5));
    EXPECT_EQ(formula->expression, KyString(L"2*1.25"));
    EXPECT_EQ(this->text(value), L"2*1.25");
    // A plain height takes a formula too: it reads with an empty text, and
    // shows as its number.
    ASSERT_EQ(read(itemOf(addText(nullptr)), L"Height", value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(expression(KyRxValue(1.0), L"")));
    EXPECT_EQ(this->text(value), L"1");
}

TEST_F(Expressions, AFormulaWrittenSetsBothAndAPlainValueClearsIt) {
    const KyDbObjectId id = addText(L"1+1");
    KyDiDynamicObject* text = itemOf(id);
    ASSERT_EQ(write(text, L"Height", KyRxValue(expression(KyRxValue(0.0), L"(3+1)/2"))), Kyro::eOk);
    EXPECT_EQ(formulaOf(id), KyString(L"(3+1)/2"));
    EXPECT_EQ(heightOf(id), 2.0);
    // An empty text writes the value: the formula goes.
    ASSERT_EQ(write(text, L"Height", KyRxValue(expression(KyRxValue(4.5), L""))), Kyro::eOk);
    EXPECT_EQ(formulaOf(id), KyString());
    EXPECT_EQ(heightOf(id), 4.5);
    // A plain height takes a new formula; a plain number written over it
    // clears it again.
    ASSERT_EQ(write(text, L"Height", KyRxValue(expression(KyRxValue(0.0), L"7"))), Kyro::eOk);
    ASSERT_EQ(formulaOf(id), KyString(L"7"));
    ASSERT_EQ(write(text, L"Height", KyRxValue(3.0)), Kyro::eOk);
    EXPECT_EQ(formulaOf(id), KyString());
    EXPECT_EQ(heightOf(id), 3.0);
    // A text that is no formula changes nothing.
    write(text, L"Height", KyRxValue(expression(KyRxValue(0.0), L"9")));
    EXPECT_EQ(write(text, L"Height", KyRxValue(expression(KyRxValue(0.0), L"2*/"))),
              Kyro::eInvalidInput);
    EXPECT_EQ(formulaOf(id), KyString(L"9"));
}

TEST_F(Expressions, APlainValueOfTheOtherNumberTypeIsTruncatedOrWidened) {
    const KyDbObjectId id = content().addEntity<KyDbDimension>(
        [](KyDbDimension& dimension) { dimension.setDecimalPlacesFormula(L"1+1"); });
    KyDiDynamicObject* dimension = itemOf(id);
    KyRxValue value;
    ASSERT_EQ(read(dimension, L"DecimalPlaces", value), Kyro::eOk);
    ASSERT_NE(expressionIn(value), nullptr);
    EXPECT_EQ(expressionIn(value)->value, KyRxValue(2));
    ASSERT_EQ(write(dimension, L"DecimalPlaces", KyRxValue(expression(KyRxValue(5.9), L""))),
              Kyro::eOk);
    {
        KyDbObjectPointer<KyDbDimension> opened(id, KyDb::kForRead);
        EXPECT_EQ(opened->decimalPlaces(), 5);
        EXPECT_TRUE(opened->decimalPlacesFormula().isEmpty());
    }
    // A double property takes an int widened.
    const KyDbObjectId textId = addText(L"2");
    ASSERT_EQ(write(itemOf(textId), L"Height", KyRxValue(expression(KyRxValue(3), L""))),
              Kyro::eOk);
    EXPECT_EQ(heightOf(textId), 3.0);
    // Any other pair is refused.
    write(itemOf(textId), L"Height", KyRxValue(expression(KyRxValue(0.0), L"2")));
    EXPECT_EQ(
        write(itemOf(textId), L"Height", KyRxValue(expression(KyRxValue(KyString(L"x")), L""))),
        Kyro::eInvalidInput);
}

TEST_F(Expressions, TheValueTypeShowsAndEditsEitherSide) {
    const KyRxValueType& type = KyRxValueType::Desc<KyDiExpression>::value();
    EXPECT_STREQ(type.name(), L"KyDiExpression");
    KyRxValue boxed(expression(KyRxValue(2), L"1+1"));
    KyRxBoxedValueOnStack object(boxed);
    const KyRxMemberCollection* members = type.members();
    ASSERT_NE(members, nullptr);
    const auto* text = kyrxCast<KyRxProperty>(members->find(L"Expression"));
    const auto* integer = kyrxCast<KyRxProperty>(members->find(L"IntegerValue"));
    const auto* real = kyrxCast<KyRxProperty>(members->find(L"DoubleValue"));
    ASSERT_TRUE(text != nullptr && integer != nullptr && real != nullptr);
    KyRxValue value;
    EXPECT_EQ(text->getValue(&object, value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(KyString(L"1+1")));
    EXPECT_EQ(integer->getValue(&object, value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(2));
    EXPECT_EQ(real->getValue(&object, value), Kyro::eNotApplicable);
    EXPECT_EQ(integer->setValue(&object, KyRxValue(2.0)), Kyro::eInvalidInput);
    EXPECT_EQ(integer->setValue(&object, KyRxValue(7)), Kyro::eOk);
    EXPECT_EQ(text->setValue(&object, KyRxValue(1)), Kyro::eInvalidInput);
    EXPECT_EQ(text->setValue(&object, KyRxValue(KyString(L""))), Kyro::eOk);
    EXPECT_EQ(*valueCast<KyDiExpression>(&boxed), expression(KyRxValue(7), L""));
    // Any other object is refused.
    KyRxValue plain(3);
    KyRxBoxedValueOnStack other(plain);
    EXPECT_EQ(text->getValue(&other, value), Kyro::eNotThatKindOfClass);
}

TEST_F(Expressions, APlainValueShowsItsOwnTextCutToThirtyTwoCharacters) {
    EXPECT_EQ(text(KyRxValue(expression(KyRxValue(2.5), L""))), L"2.5");
    const std::wstring longText(40, L'a');
    const std::wstring shown =
        text(KyRxValue(expression(KyRxValue(KyString(longText.c_str())), L"")));
    EXPECT_EQ(shown, std::wstring(31, L'a'));
}

TEST_F(Expressions, EqualityNeedsTheSameValueAndTheSameText) {
    EXPECT_EQ(KyRxValue(expression(KyRxValue(2), L"1+1")),
              KyRxValue(expression(KyRxValue(2), L"1+1")));
    EXPECT_NE(KyRxValue(expression(KyRxValue(2), L"1+1")),
              KyRxValue(expression(KyRxValue(2), L"4/2")));
    EXPECT_NE(KyRxValue(expression(KyRxValue(2), L"x")), KyRxValue(expression(KyRxValue(2), L"X")));
    EXPECT_NE(KyRxValue(expression(KyRxValue(2), L"")), KyRxValue(expression(KyRxValue(2.0), L"")));
    EXPECT_NE(KyRxValue(expression(KyRxValue(), L"")), KyRxValue(expression(KyRxValue(), L"")));
}

}  // namespace
