#include "KyRefDrawingFile.h"

#include "KyRefDrawingReader.h"
#include "KyRefDrawingWriter.h"
#include "db/KyDbDatabase.h"

namespace {

// Registers the instance before main runs; a host given a reader of its own
// (a test's) still uses that one.
const bool g_registered = [] {
    KyRefDrawingIo::registerInstance(&KyRefDrawingFile::instance());
    return true;
}();

}  // namespace

KyRefDrawingFile& KyRefDrawingFile::instance() {
    static KyRefDrawingFile file;
    return file;
}

std::unique_ptr<KyDbDatabase> KyRefDrawingFile::read(const wchar_t* path, KyString& error) {
    KyString problem;
    std::unique_ptr<KyDbDatabase> database = KyRefDrawingReader::readFile(path, problem);
    if (database == nullptr) {
        error = KyString::formatted(L"Cannot open \"%ls\": %ls", path, problem.kwszPtr());
    }
    return database;
}

bool KyRefDrawingFile::write(KyDbDatabase* database, const wchar_t* path, KyString& error) {
    return KyRefDrawingWriter::writeFile(database, path, error);
}
