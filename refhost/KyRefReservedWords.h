// KyRefReservedWords: the words that colours and transparencies share
// (ByLayer, ByBlock) and the names of the first seven colour indices, in the
// global form and in the form of the platform's current language.
#pragma once

#include "base/KyString.h"

class KyRefReservedWords {
public:
    enum Word { kByLayer, kByBlock, kNone };

    static const wchar_t* global(Word word);
    // The local form; the global form when the platform has none.
    static KyString local(Word word);
    // True when `text` is the word in either form, in any case.
    static bool matches(const wchar_t* text, Word word);

    // The colour name of index 1 to 7 ("red" ... "white"); empty otherwise.
    static const wchar_t* globalColorName(int index);
    static KyString localColorName(int index);
    // The index 1 to 7 named by `text` in either form; 0 when none.
    static int colorIndexNamed(const wchar_t* text);
};
