// KyFormula: the value of a formula, an arithmetic expression over decimal
// numbers: `2.5*2`, `-(1 + 2) / 4`, `1.5e-3 * 1000`.
//
//   sum     := product { ("+" | "-") product }
//   product := unary { ("*" | "/") unary }
//   unary   := ("+" | "-") unary | "(" sum ")" | number
//   number  := digits [ "." [digits] ] | "." digits, then [ ("e" | "E") [sign] digits ]
//
// Blanks may stand between any two parts. Numbers are read the same whatever
// the locale: the decimal separator is always ".".
#pragma once

#include <cstddef>

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"

class KYPLATFORM_API KyFormula {
public:
    // The value of `text`. eInvalidInput, leaving `value` alone, for a text
    // that is not a formula (null, empty, an unknown character, a missing
    // parenthesis or number), a division by zero, or a value beyond the range
    // of a double.
    static Kyro::ErrorStatus evaluate(const wchar_t* text, double& value);

private:
    explicit KyFormula(const wchar_t* text) : m_next(text) {}

    bool sum(double& value);
    bool product(double& value);
    bool unary(double& value);
    bool number(double& value);
    // Steps over blanks; answers the character that follows them.
    wchar_t peek();

    const wchar_t* m_next;
    // Nested parentheses and signs: bounded, so that no text can exhaust the
    // stack.
    std::size_t m_depth = 0;
};
