// KyRefDrawingIo: reading and writing drawing files, as the document manager
// asks for it. The reader and writer of kydrawing files registers itself
// here; a host may be given another one (a test's). Without one, opening and
// saving answer an error.
#pragma once

#include <memory>

#include "base/KyString.h"

class KyDbDatabase;

class KyRefDrawingIo {
public:
    virtual ~KyRefDrawingIo() = default;

    // A new database with the drawing of the file `path`; null with `error`
    // saying why (the place in the file and what was expected) when the file
    // can't be read.
    virtual std::unique_ptr<KyDbDatabase> read(const wchar_t* path, KyString& error) = 0;
    // Writes `database` to the file `path`; false with `error` when it can't.
    virtual bool write(KyDbDatabase* database, const wchar_t* path, KyString& error) = 0;

    // The reader and writer of the process, used by every host that was given
    // none of its own. Not owned; null takes it back.
    static void registerInstance(KyRefDrawingIo* io);
    static KyRefDrawingIo* registered();
};
