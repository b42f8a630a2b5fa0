// KyRefNamePattern: one name of a list as a user types it at the command
// line, read as a pattern that matches names in any case:
//   #       a digit
//   @       a letter
//   .       a character that is neither a letter nor a digit
//   *       any run of characters, the empty one too
//   ?       any one character
//   [...]   one character of a set: single characters and ranges ("[a-f]");
//           "[~...]" is one character that is none of them. A "-" first or
//           last in the set stands for itself; "[" without a closing "]"
//           stands for itself.
//   ~       first in the pattern: every name that the rest does not match
//   `       reads the character after it as itself ("`#" is a "#", "`[" a
//           "[", "``" a backquote), also inside a set
// Every other character stands for itself. A literal pattern takes its text
// as it stands: each character is itself, and the pattern matches that one
// name only.
#pragma once

#include <utility>
#include <vector>

#include "base/KyString.h"

class KyRefNamePattern {
public:
    // `typed` read as a pattern.
    static KyRefNamePattern typed(const KyString& typed);
    // `name` taken as it stands.
    static KyRefNamePattern literal(const KyString& name);

    // The name as the user gave it, for messages.
    const KyString& typedText() const { return m_typed; }
    // The name with its backquotes read: the name a command creates when the
    // answer names a new record.
    const KyString& name() const { return m_name; }
    // True when the pattern may match other names than name(): it holds an
    // element that matches a class of characters, or it says "all but".
    bool isWildCard() const { return m_wildCard; }

    // True when `candidate` matches, in any case.
    bool matches(const KyString& candidate) const;

private:
    enum class Kind { kCharacter, kDigit, kLetter, kOther, kAnyOne, kAnyRun, kSet };
    struct Element {
        Kind kind = Kind::kCharacter;
        wchar_t character = L'\0';                          // kCharacter, folded
        bool noneOf = false;                                // kSet
        std::vector<std::pair<wchar_t, wchar_t>> ranges{};  // kSet, first to last
    };
    // One character of a name as the matching sees it.
    struct Character {
        wchar_t own;
        wchar_t upper;
        wchar_t folded;
    };

    KyRefNamePattern() = default;
    // The set that begins after the "[" at `at`; `at` is left after its "]".
    // False, with `at` left alone, when no "]" closes it.
    static bool readSet(const wchar_t* text, int& at, Element& set);
    static bool isLetter(const Character& c);
    static bool inSet(const Element& set, const Character& c);
    static bool matchesElement(const Element& element, const Character& c);
    bool matchesAll(const std::vector<Character>& characters) const;

    KyString m_typed;
    KyString m_name;
    std::vector<Element> m_elements;
    bool m_allBut = false;
    bool m_wildCard = false;
};
