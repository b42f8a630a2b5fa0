// KyRefCommandWord: a command as typed, taken apart: "'" first runs it
// transparently (inside a command that waits at a prompt), "_" asks for the
// global name rather than the local one, "." for the built-in command rather
// than a redefinition of it; "_" and "." come in either order. "'_.-LAYER" is
// the transparent, global, built-in -LAYER.
#pragma once

#include "base/KyString.h"

struct KyRefCommandWord {
    bool transparent = false;
    bool global = false;
    bool builtIn = false;
    KyString name;

    static KyRefCommandWord parse(const wchar_t* typed);
};
