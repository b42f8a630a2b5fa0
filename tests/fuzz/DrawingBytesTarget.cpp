// fuzz_drawing_bytes: the drawing reader on any bytes at all, read from
// memory as the reader reads the text of a file.
#include "DrawingCheck.h"
#include "FuzzTarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kyfuzz::checkDrawing(kyfuzz::textOf(data, size));
    return 0;
}
