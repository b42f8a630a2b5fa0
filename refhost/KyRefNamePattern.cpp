#include "KyRefNamePattern.h"

#include <algorithm>
#include <cstddef>
#include <cwctype>

namespace {

constexpr wchar_t kQuote = L'`';

// One character folded as names compare without regard to case: through
// upper case to lower case, as KyString::compareNoCase folds.
wchar_t folded(wchar_t c) {
    const wchar_t single[] = {c, L'\0'};
    KyString text(single);
    text.makeUpper();
    text.makeLower();
    return text.kwszPtr()[0];
}

// `text` with its backquotes read: each takes the character after it as
// itself. A backquote that ends the text stands for itself.
KyString unquoted(const wchar_t* text) {
    KyString name;
    for (int at = 0; text[at] != L'\0'; ++at) {
        if (text[at] == kQuote && text[at + 1] != L'\0') {
            ++at;
        }
        name.append(text[at]);
    }
    return name;
}

// The character at `at`, a backquote read; `at` is left after it.
wchar_t readCharacter(const wchar_t* text, int& at) {
    if (text[at] == kQuote && text[at + 1] != L'\0') {
        ++at;
    }
    return text[at++];
}

}  // namespace

KyRefNamePattern KyRefNamePattern::typed(const KyString& typed) {
    KyRefNamePattern pattern;
    pattern.m_typed = typed;
    pattern.m_name = unquoted(typed.kwszPtr());
    const wchar_t* text = typed.kwszPtr();
    int at = 0;
    if (text[0] == L'~') {
        pattern.m_allBut = true;
        pattern.m_wildCard = true;
        at = 1;
    }
    while (text[at] != L'\0') {
        Element element;
        switch (text[at]) {
            case L'#':
                element.kind = Kind::kDigit;
                break;
            case L'@':
                element.kind = Kind::kLetter;
                break;
            case L'.':
                element.kind = Kind::kOther;
                break;
            case L'?':
                element.kind = Kind::kAnyOne;
                break;
            case L'*':
                element.kind = Kind::kAnyRun;
                break;
            case L'[':
                if (readSet(text, at, element)) {
                    pattern.m_elements.push_back(std::move(element));
                    pattern.m_wildCard = true;
                    continue;
                }
                break;
            default:
                break;
        }
        if (element.kind == Kind::kCharacter) {
            element.character = folded(readCharacter(text, at));
        } else {
            pattern.m_wildCard = true;
            ++at;
        }
        pattern.m_elements.push_back(std::move(element));
    }
    return pattern;
}

KyRefNamePattern KyRefNamePattern::literal(const KyString& name) {
    KyRefNamePattern pattern;
    pattern.m_typed = name;
    pattern.m_name = name;
    for (const wchar_t* at = name.kwszPtr(); *at != L'\0'; ++at) {
        Element element;
        element.character = folded(*at);
        pattern.m_elements.push_back(std::move(element));
    }
    return pattern;
}

bool KyRefNamePattern::readSet(const wchar_t* text, int& at, Element& set) {
    int next = at + 1;
    if (text[next] == L'~') {
        set.noneOf = true;
        ++next;
    }
    while (text[next] != L'\0' && text[next] != L']') {
        const wchar_t first = readCharacter(text, next);
        wchar_t last = first;
        if (text[next] == L'-' && text[next + 1] != L']' && text[next + 1] != L'\0') {
            ++next;
            last = readCharacter(text, next);
        }
        set.ranges.emplace_back(std::min(first, last), std::max(first, last));
    }
    if (text[next] != L']') {
        return false;
    }
    set.kind = Kind::kSet;
    at = next + 1;
    return true;
}

bool KyRefNamePattern::isLetter(const Character& c) {
    // A character with two cases is a letter whatever the process's locale.
    return std::iswalpha(static_cast<wint_t>(c.own)) != 0 || c.upper != c.folded;
}

bool KyRefNamePattern::inSet(const Element& set, const Character& c) {
    const bool member = std::any_of(set.ranges.begin(), set.ranges.end(), [&c](const auto& range) {
        const auto within = [&range](wchar_t ch) {
            return range.first <= ch && ch <= range.second;
        };
        return within(c.own) || within(c.upper) || within(c.folded);
    });
    return member != set.noneOf;
}

bool KyRefNamePattern::matchesElement(const Element& element, const Character& c) {
    const bool digit = std::iswdigit(static_cast<wint_t>(c.own)) != 0;
    switch (element.kind) {
        case Kind::kCharacter:
            return element.character == c.folded;
        case Kind::kDigit:
            return digit;
        case Kind::kLetter:
            return isLetter(c);
        case Kind::kOther:
            return !digit && !isLetter(c);
        case Kind::kSet:
            return inSet(element, c);
        case Kind::kAnyOne:
        case Kind::kAnyRun:
            return true;
    }
    return false;
}

bool KyRefNamePattern::matchesAll(const std::vector<Character>& characters) const {
    // Every element but "*" takes exactly one character, so one step back to
    // the last "*" is enough: linear for the usual patterns, and never
    // recursive.
    const std::size_t count = m_elements.size();
    std::size_t element = 0;
    std::size_t character = 0;
    std::size_t star = count;
    std::size_t resume = 0;
    while (character < characters.size()) {
        if (element < count && m_elements[element].kind == Kind::kAnyRun) {
            star = element++;
            resume = character;
        } else if (element < count && matchesElement(m_elements[element], characters[character])) {
            ++element;
            ++character;
        } else if (star < count) {
            element = star + 1;
            character = ++resume;
        } else {
            return false;
        }
    }
    while (element < count && m_elements[element].kind == Kind::kAnyRun) {
        ++element;
    }
    return element == count;
}

bool KyRefNamePattern::matches(const KyString& candidate) const {
    KyString upper(candidate);
    upper.makeUpper();
    KyString lower(upper);
    lower.makeLower();
    std::vector<Character> characters;
    characters.reserve(static_cast<std::size_t>(candidate.length()));
    for (int at = 0; at < candidate.length(); ++at) {
        characters.push_back(
            Character{candidate.kwszPtr()[at], upper.kwszPtr()[at], lower.kwszPtr()[at]});
    }
    return matchesAll(characters) != m_allBut;
}
