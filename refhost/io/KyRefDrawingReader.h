// KyRefDrawingReader: reads a kydrawing file into a new database. The
// database holds the file's handles, and what the file left out comes from
// the standard content of a new drawing. What the database does not model is
// kept beside it (KyRefDrawingExtras), so that KyRefDrawingWriter gives the
// file back as it was. A file that can't be read gives no database and an
// error that names the JSON path of the fault and what was expected there
// (`layers[12].color: expected a layer colour ...`).
#pragma once

#include <memory>
#include <string_view>

#include "KyRefJson.h"
#include "base/KyString.h"

class KyDbDatabase;

class KyRefDrawingReader {
public:
    // The newest version of the format this reader reads.
    static constexpr int kVersion = 1;

    static std::unique_ptr<KyDbDatabase> readFile(const wchar_t* path, KyString& error);
    // Reads the text of a file.
    static std::unique_ptr<KyDbDatabase> readText(std::string_view text, KyString& error);
    // Reads a parsed document.
    static std::unique_ptr<KyDbDatabase> readDocument(const KyRefJson& document, KyString& error);
};
