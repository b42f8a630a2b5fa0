// KyRefFormulas: the "formulas" member of an entity in a drawing file: the
// formula that drives each of its numeric members that holds one, by the
// member's name in the file: {"height": "2.5*2"}. The member beside it keeps
// the formula's value, so a file reads the same numbers without formulas.
//
// The reader sets the formulas after the plain members, so the value of a
// formula stands over the number the file gave. A value that is not an
// object, a member that can't hold a formula, a formula that is not a string,
// does not parse or divides by zero, and a value the entity refuses fail at
// their own path.
#pragma once

#include <functional>
#include <initializer_list>
#include <utility>

#include "KyRefJson.h"
#include "KyRefJsonNode.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"

class KyRefFormulas {
public:
    // A member of an entity kind that may hold a formula.
    struct Slot {
        const char* member;
        // What the formula's value must be, for messages ("a positive height").
        const char* expected;
        // Sets the formula and its value on the entity being read.
        std::function<Kyro::ErrorStatus(const wchar_t* text)> set;
    };

    // Reads the "formulas" member of the entity at `node`, if any.
    static void read(const KyRefJsonNode& node, std::initializer_list<Slot> slots);
    // Writes "formulas" into `out`: every formula that is set, by member name;
    // an empty object when none is.
    static void write(KyRefJson& out,
                      std::initializer_list<std::pair<const char*, const KyString*>> formulas);
};
