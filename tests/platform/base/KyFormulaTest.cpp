#include "base/KyFormula.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Case {
    const wchar_t* text;
    double value;
};

// The value of `text`, or a note that it was refused.
testing::AssertionResult evaluatesTo(const wchar_t* text, double expected) {
    double value = -12345.0;
    if (KyFormula::evaluate(text, value) != Kyro::eOk) {
        return testing::AssertionFailure() << "refused";
    }
    if (value != expected) {
        return testing::AssertionFailure() << "gave " << value;
    }
    return testing::AssertionSuccess();
}

TEST(Formula, ArithmeticFollowsPrecedenceParenthesesAndSigns) {
    const Case cases[] = {
        {L"2.5*2", 5.0},
        {L"1+2*3", 7.0},
        {L"(1+2)*3", 9.0},
        {L"10-4-3", 3.0},  // left to right
        {L"24/4/2", 3.0},
        {L"2*3/4", 1.5},
        {L"-3+5", 2.0},
        {L"2*-3", -6.0},
        {L"-(2+3)*2", -10.0},
        {L"--2", 2.0},
        {L"+4", 4.0},
        {L"1-(-1)", 2.0},
        {L"((((7))))", 7.0},
        {L"7", 7.0},
        {L"0.25", 0.25},
        {L".5", 0.5},
        {L"3.", 3.0},
        {L"1.5e3", 1500.0},
        {L"2E-2*100", 2.0},
        {L"1e+2", 100.0},
        {L"  ( 1 +\t2 ) * 3  ", 9.0},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(evaluatesTo(c.text, c.value)) << testing::PrintToString(std::wstring(c.text));
    }
}

TEST(Formula, TextsThatAreNoFormulaAreRefusedAndLeaveTheValueAlone) {
    const wchar_t* const refused[] = {
        L"",     L"   ", L"2*",  L"*2",      L"(1+2", L"1+2)",  L"()",       L"1 2",
        L"2 .5", L"1e",  L"1e+", L"e5",      L".",    L"1..2",  L"abc",      L"2x",
        L"1,5",  L"2^3", L"1/0", L"1/(2-2)", L"0/0",  L"1e999", L"1e308*10",
    };
    for (const wchar_t* text : refused) {
        double value = 42.0;
        EXPECT_EQ(KyFormula::evaluate(text, value), Kyro::eInvalidInput)
            << testing::PrintToString(std::wstring(text));
        EXPECT_EQ(value, 42.0);
    }
    double value = 42.0;
    EXPECT_EQ(KyFormula::evaluate(nullptr, value), Kyro::eInvalidInput);
    EXPECT_EQ(value, 42.0);
}

TEST(Formula, DeepNestingIsRefusedWithoutExhaustingTheStack) {
    const std::wstring deep = std::wstring(100000, L'(') + L"1" + std::wstring(100000, L')');
    double value = 0.0;
    EXPECT_EQ(KyFormula::evaluate(deep.c_str(), value), Kyro::eInvalidInput);
    const std::wstring signs = std::wstring(100000, L'-') + L"1";
    EXPECT_EQ(KyFormula::evaluate(signs.c_str(), value), Kyro::eInvalidInput);
    const std::wstring nested = std::wstring(50, L'(') + L"2" + std::wstring(50, L')');
    EXPECT_TRUE(evaluatesTo(nested.c_str(), 2.0)) << "ordinary nesting is fine";
}

}  // namespace
