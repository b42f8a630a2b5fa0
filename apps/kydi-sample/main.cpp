// kydi-sample: writes the drawing that the kydi program opens when none is
// named. The drawing is described as data (KySampleDrawing), read by the
// reference host's reader, which checks every reference in it, and written
// by the host's writer:
//
//   kydi-sample samples/sample.kyd
#include <iostream>
#include <memory>

#include "KySampleDrawing.h"
#include "db/KyDbDatabase.h"
#include "io/KyRefDrawingReader.h"
#include "io/KyRefDrawingWriter.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: kydi-sample OUTPUT.kyd\n";
        return 2;
    }
    KyString error;
    const std::unique_ptr<KyDbDatabase> database =
        KyRefDrawingReader::readDocument(KySampleDrawing::json(), error);
    if (database == nullptr) {
        std::cerr << "kydi-sample: the sample does not read back: " << error.utf8() << '\n';
        return 1;
    }
    if (!KyRefDrawingWriter::writeFile(database.get(), KyString::fromUtf8(argv[1]), error)) {
        std::cerr << "kydi-sample: " << error.utf8() << '\n';
        return 1;
    }
    return 0;
}
