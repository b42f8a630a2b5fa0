// KyAppSubentText: the written form of a selected sub-entity in a script,
// HANDLE/KIND:INDEX: `4A/face:0`, `4A/edge:1`, `4A/vertex:2`,
// `58/attribute:0` (the handle may start with `#`). The index counts from 0
// within the kind, as the drawing database counts the parts of an entity.
#pragma once

#include <string>

#include "db/KyDbCellRange.h"
#include "db/KyDbFullSubentPath.h"

class KyAppSubentText {
public:
    // True when `word` holds a `/`, which sets it apart from a plain handle.
    static bool isSubent(const std::string& word);
    // Splits `word` into the text of its handle and its part; false when the
    // handle is missing or the part is not KIND:INDEX with a known kind and a
    // whole number of 0 or more.
    static bool parse(const std::string& word, std::string& handle, KyDbSubentId& subentId);
    // `#4A/face:0`: the handles of the path's objects, then the part.
    static std::string format(const KyDbFullSubentPath& path);
    // `face 0`: the part as an error message names it.
    static std::string describe(const KyDbSubentId& subentId);

    // Cells of a table: HANDLE/cells:ROW,COLUMN (one cell) or
    // HANDLE/cells:ROW,COLUMN,ROW,COLUMN (the rectangle between two cells),
    // rows and columns from 0. isCells tells the form apart by its kind word.
    static bool isCells(const std::string& word);
    static bool parseCells(const std::string& word, std::string& handle, KyDbCellRange& cells);
    // `cells:1,2` or `cells:1,0,2,2`.
    static std::string formatCells(const KyDbCellRange& cells);
};
