// KyRefColorText: colours as the host's command line and variables write
// them: "BYLAYER", "BYBLOCK", an index ("1" to "255"), "RGB:r,g,b", and a
// named colour as "BOOK$NAME" (or its name alone without a book).
#pragma once

#include "base/KyString.h"
#include "db/KyCmColor.h"

class KyRefColorText {
public:
    static KyString format(const KyCmColor& color);
    // Reads a colour as a user types it: ByLayer and ByBlock in the global or
    // the local form, in any case; an index 0 (ByBlock) to 256 (ByLayer); the
    // names of the indices 1 to 7 ("red" ... "white", also in the local form);
    // "RGB:r,g,b" or "r,g,b" with each part 0 to 255. False for anything else
    // (a colour of a colour book needs the book, which the host has not).
    static bool parse(const wchar_t* text, KyCmColor& color);
};
