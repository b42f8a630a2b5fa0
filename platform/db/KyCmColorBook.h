// KyCmColorBook: the named colours the process knows, by colour book. A
// named colour is a true colour with a colour name, in a book ("RAL$3020",
// as colorNameForDisplay shows it) or without one ("Signal"). A reader
// registers the named colours of the drawings it reads; a command that takes
// a colour by its book and name finds it here. Names match without regard to
// case; the colours keep the spelling they were registered with.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"
#include "db/KyCmColor.h"
#include "rx/KyRxValue.h"

class KYPLATFORM_API KyCmColorBook {
public:
    // Registers a named true colour under its book and name; a colour of that
    // book and name known already is replaced. eInvalidInput for a colour
    // that is not a named true colour.
    static Kyro::ErrorStatus addColor(const KyCmColor& color);
    // The colour `colorName` of the book `bookName`; a null or empty book
    // name looks among the colours without a book. eKeyNotFound.
    static Kyro::ErrorStatus findColor(const wchar_t* bookName, const wchar_t* colorName,
                                       KyCmColor& color);
    // The same by the display name: "BOOK$NAME", or "NAME" for a colour
    // without a book.
    static Kyro::ErrorStatus findColor(const wchar_t* displayName, KyCmColor& color);
    // The books known, in the order first registered (without the empty book).
    static KyStringArray bookNames();
    // The colour names of a book (null or empty: of no book), in order.
    static KyStringArray colorNames(const wchar_t* bookName);
    // Forgets every colour.
    static void clear();
};
