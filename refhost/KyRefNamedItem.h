// KyRefNamedItem: a record of a symbol table or an entry of a dictionary, as
// a user names it at the command line: in any case, and for the names the
// platform reserves ("Standard", "ByLayer", the standard visual styles) in
// the global or the local form. Erased records and entries are not found.
#pragma once

#include "base/KyString.h"
#include "db/KyDbObjectId.h"

class KyRefNamedItem {
public:
    // The record or entry `name` of the table or dictionary `container`;
    // null when it has none.
    static KyDbObjectId find(KyDbObjectId container, const wchar_t* name);
    // The name of `id` in `container`: a record's name or a dictionary key;
    // empty for the null id or an id the container doesn't hold.
    static KyString nameOf(KyDbObjectId container, KyDbObjectId id);
};
