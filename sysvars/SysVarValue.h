// Not part of the interface: the rules by which system variable values are
// compared, copied and written as command text.
#pragma once

#include "base/KyString.h"
#include "base/resbuf.h"

class SysVarValue {
public:
    // Whether two values are the same for the user: reals within 1e-6 of
    // each other (each coordinate of a point), integers equal, texts equal
    // without regard to case. Null, differing codes, and codes outside the
    // value codes (orientations among them) are never equal.
    static bool equal(const resbuf* a, const resbuf* b);
    // A new record holding `value`, with its own copy of a text and no next.
    static resbuf* copy(const resbuf& value);
    // The value as it is typed after a variable's name on the command line;
    // empty for a code that has no text.
    static KyString commandText(const resbuf& value);
    // Makes `out` a text record holding its own copy of `text`.
    static void setText(resbuf& out, const wchar_t* text);
};
