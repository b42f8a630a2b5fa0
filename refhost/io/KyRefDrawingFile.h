// KyRefDrawingFile: the document manager's reader and writer of drawing
// files, for kydrawing files (KyRefDrawingReader, KyRefDrawingWriter). One
// instance registers itself as the process's reader and writer when the
// program starts, so that every host opens and saves documents with it.
#pragma once

#include "KyRefDrawingIo.h"

class KyRefDrawingFile : public KyRefDrawingIo {
public:
    std::unique_ptr<KyDbDatabase> read(const wchar_t* path, KyString& error) override;
    bool write(KyDbDatabase* database, const wchar_t* path, KyString& error) override;

    // The instance of the process.
    static KyRefDrawingFile& instance();
};
