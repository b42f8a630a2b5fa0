// KyRefDrawingWriter: writes a database as a kydrawing file. A database read
// from a file is written back as the file was, with the changes made since:
// its extras (KyRefDrawingExtras) give back what the database does not
// model, the members the file left out, and leave out what the reader added
// as long as none of it changed.
#pragma once

#include <string>

#include "KyRefJson.h"
#include "base/KyString.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyRefWriteContext;

class KyRefDrawingWriter {
public:
    // The drawing as a JSON document.
    static KyRefJson toJson(KyDbDatabase* database);
    // The text of the file.
    static std::string toText(KyDbDatabase* database);
    // Writes the file `path` (through a file beside it, so a failed write
    // leaves the old file whole); false with `error` when it can't.
    static bool writeFile(KyDbDatabase* database, const wchar_t* path, KyString& error);

    // The JSON of one record (with a block's entities), entity or object of
    // the named objects dictionary; null for anything else.
    static KyRefJson objectJson(KyRefWriteContext& context, KyDbObjectId id);
};
