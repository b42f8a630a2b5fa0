#include "base/KyFormula.h"

#include <charconv>
#include <cmath>
#include <cwctype>
#include <string>

namespace {

constexpr std::size_t kMaxDepth = 200;

bool isDigit(wchar_t ch) {
    return ch >= L'0' && ch <= L'9';
}

// Appends the digits at `next` to `out`; answers how many there were.
std::size_t takeDigits(const wchar_t*& next, std::string& out) {
    std::size_t count = 0;
    for (; isDigit(*next); ++next, ++count) {
        out.push_back(static_cast<char>(*next));
    }
    return count;
}

}  // namespace

Kyro::ErrorStatus KyFormula::evaluate(const wchar_t* text, double& value) {
    if (text == nullptr) {
        return Kyro::eInvalidInput;
    }
    KyFormula formula(text);
    double result = 0.0;
    if (!formula.sum(result) || formula.peek() != L'\0' || !std::isfinite(result)) {
        return Kyro::eInvalidInput;
    }
    value = result;
    return Kyro::eOk;
}

bool KyFormula::sum(double& value) {
    if (!product(value)) {
        return false;
    }
    for (wchar_t op = peek(); op == L'+' || op == L'-'; op = peek()) {
        ++m_next;
        double right = 0.0;
        if (!product(right)) {
            return false;
        }
        value = op == L'+' ? value + right : value - right;
    }
    return true;
}

bool KyFormula::product(double& value) {
    if (!unary(value)) {
        return false;
    }
    for (wchar_t op = peek(); op == L'*' || op == L'/'; op = peek()) {
        ++m_next;
        double right = 0.0;
        if (!unary(right)) {
            return false;
        }
        if (op == L'/' && right == 0.0) {
            return false;
        }
        value = op == L'*' ? value * right : value / right;
    }
    return true;
}

bool KyFormula::unary(double& value) {
    if (++m_depth > kMaxDepth) {
        return false;
    }
    bool ok = false;
    const wchar_t ch = peek();
    if (ch == L'+' || ch == L'-') {
        ++m_next;
        ok = unary(value);
        if (ok && ch == L'-') {
            value = -value;
        }
    } else if (ch == L'(') {
        ++m_next;
        ok = sum(value) && peek() == L')';
        if (ok) {
            ++m_next;
        }
    } else {
        ok = number(value);
    }
    --m_depth;
    return ok;
}

bool KyFormula::number(double& value) {
    std::string digits;
    const std::size_t whole = takeDigits(m_next, digits);
    std::size_t fraction = 0;
    if (*m_next == L'.') {
        digits.push_back('.');
        ++m_next;
        fraction = takeDigits(m_next, digits);
    }
    if (whole == 0 && fraction == 0) {
        return false;
    }
    if (*m_next == L'e' || *m_next == L'E') {
        digits.push_back('e');
        ++m_next;
        if (*m_next == L'+' || *m_next == L'-') {
            digits.push_back(static_cast<char>(*m_next));
            ++m_next;
        }
        if (takeDigits(m_next, digits) == 0) {
            return false;
        }
    }
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value);
    return error == std::errc() && stop == end;
}

wchar_t KyFormula::peek() {
    while (*m_next != L'\0' && std::iswspace(static_cast<std::wint_t>(*m_next))) {
        ++m_next;
    }
    return *m_next;
}
