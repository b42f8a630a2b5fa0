// KyDbFormulaValue<T>: a number of a database object that a formula may
// drive (a text's height): the value, and the formula it was evaluated from,
// empty for a plain value. Two are equal only when the value and the formula
// both are, so that a setter given a plain value over a formula changes the
// object even when the number stays, and drops the formula.
//
// An object keeps one as a member and writes it with setMember, which gives
// the formula and its value one change, one undo step and the notifications
// of any write:
//
//   Kyro::ErrorStatus KyDbText::setHeightFormula(const wchar_t* text) {
//       KyDbFormulaValue<double> height;
//       if (const Kyro::ErrorStatus status = height.evaluate(text); status != Kyro::eOk) {
//           return status;
//       }
//       return height.value > 0.0 ? setMember(m_height, height) : Kyro::eInvalidInput;
//   }
#pragma once

#include <cmath>
#include <concepts>
#include <limits>

#include "base/KyFormula.h"
#include "base/KyString.h"
#include "db/KyDbStateFiler.h"

template <typename T>
requires std::same_as<T, double> || std::same_as<T, int>
struct KyDbFormulaValue {
    T value{};
    KyString formula;

    // A plain value.
    static KyDbFormulaValue plain(T number) { return KyDbFormulaValue{number, KyString()}; }

    bool isFormula() const { return !formula.isEmpty(); }

    // Takes formula `text` and its value; a whole number takes the value
    // truncated toward zero. eInvalidInput, changing nothing, for a text that
    // is not a formula (KyFormula) and for a value beyond the range of T.
    Kyro::ErrorStatus evaluate(const wchar_t* text) {
        double result = 0.0;
        if (const Kyro::ErrorStatus status = KyFormula::evaluate(text, result);
            status != Kyro::eOk) {
            return status;
        }
        if constexpr (std::same_as<T, int>) {
            result = std::trunc(result);
            if (result < std::numeric_limits<int>::min() ||
                result > std::numeric_limits<int>::max()) {
                return Kyro::eInvalidInput;
            }
        }
        value = static_cast<T>(result);
        formula = text;
        return Kyro::eOk;
    }

    bool operator==(const KyDbFormulaValue& other) const {
        return value == other.value && formula == other.formula;
    }

    // The object's state: the value, then the formula.
    void save(KyDbStateFiler& filer) const {
        filer.write(value);
        filer.writeString(formula);
    }
    void restore(KyDbStateFiler& filer) {
        filer.read(value);
        filer.read(formula);
    }
};
