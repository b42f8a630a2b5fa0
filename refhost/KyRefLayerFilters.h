// KyRefLayerFilters: the layer filters of a drawing. The host keeps them as
// the drawing file wrote them, a tree under its root filter beside the
// file's other extras (KyRefDrawingExtras); the current filter is the one the
// root names as "current", and a save writes that back. A drawing that was
// not read from a file has none.
#pragma once

#include "base/KyString.h"

class KyDbDatabase;

class KyRefLayerFilters {
public:
    // The filter named `name` (any case) anywhere in the tree, its name as
    // the drawing spells it in `spelling`; false when there is none.
    static bool find(const KyDbDatabase* database, const wchar_t* name, KyString& spelling);
    // Makes the filter named `name` current; false when there is none.
    static bool setCurrent(const KyDbDatabase* database, const wchar_t* name);
    // The name of the current filter; empty when the drawing names none.
    static KyString current(const KyDbDatabase* database);
};
