// KyRefHeaderRows: the drawing variables whose file form differs from a
// plain value: current items given by name (CLAYER, CELTYPE, TEXTSTYLE,
// DIMSTYLE, CMATERIAL, the current table, multileader, section and detail
// view styles, UCSBASE), colours, transparencies, lineweights, the shadow
// kind and the switches TILEMODE and PSTYLEMODE (1 or 0 in a file, true or
// false in the database). Any other variable is a plain value: a number, a
// text, true or false, or a point; anything else is kept as it is.
//
// The current table, multileader, section and detail view styles are kept in
// the variable dictionary of a file and in the header of the database: the
// reader moves them to the header, the writer back into their entries.
#pragma once

#include <span>
#include <string_view>

#include "KyRefJson.h"
#include "KyRefJsonNode.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyRefReadContext;
class KyRefWriteContext;

struct KyRefHeaderRow {
    enum class Form { kRecord, kEntry, kColor, kTransparency, kLineWeight, kShadow, kFlag };

    const char* name;
    Form form;
    // For current items: the table or dictionary that holds them.
    KyDbObjectId (KyDbDatabase::*container)() const;
    // For current items: what they are, in messages.
    const char* what;
    // For current items: "" gives none (the world's UCSBASE).
    bool noneAllowed;
    // Kept in the variable dictionary of a file.
    bool inVariableDictionary;
};

class KyRefHeaderRows {
public:
    static std::span<const KyRefHeaderRow> rows();
    // The row of a variable, in any case; null for a plain variable.
    static const KyRefHeaderRow* find(std::string_view name);

    // Reads the header of a file (the object at `node`) into the database.
    static void read(KyRefReadContext& context, const KyRefJsonNode& node);
    // Sets the variables that the file kept in its variable dictionary.
    static void readDeferred(KyRefReadContext& context);
    // Notes the variables that the reader filled because the file left them
    // out, so that a save leaves them out while they keep their value.
    static void noteFilled(KyRefReadContext& context);
    // The header of the database as a file keeps it.
    static KyRefJson write(KyRefWriteContext& context);
};
