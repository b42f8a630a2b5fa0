// fuzz_drawing_fields: the drawing reader on structurally valid drawings
// with one field changed at a time (DrawingFieldMutator), from a seed corpus
// of drawings of our own.
#include <algorithm>
#include <cstring>
#include <string>

#include "DrawingCheck.h"
#include "DrawingFieldMutator.h"
#include "FuzzTarget.h"

// libFuzzer's own mutations, for the rare input the field mutator can't
// change; absent in the replay driver, which never mutates.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize)
    __attribute__((weak));

namespace {

std::size_t store(const std::string& out, std::uint8_t* data, std::size_t maxSize) {
    const std::size_t size = std::min(out.size(), maxSize);
    std::memcpy(data, out.data(), size);
    return size;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kyfuzz::checkDrawing(kyfuzz::textOf(data, size));
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
    const std::string text(kyfuzz::textOf(data, size));
    const std::string out = kyfuzz::DrawingFieldMutator::mutate(text, maxSize, seed);
    if (out == text && LLVMFuzzerMutate != nullptr) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    return store(out, data, maxSize);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data1, std::size_t size1,
                                                 const std::uint8_t* data2, std::size_t size2,
                                                 std::uint8_t* out, std::size_t maxOutSize,
                                                 unsigned int seed) {
    const std::string crossed = kyfuzz::DrawingFieldMutator::crossOver(
        std::string(kyfuzz::textOf(data1, size1)), std::string(kyfuzz::textOf(data2, size2)),
        maxOutSize, seed);
    return store(crossed, out, maxOutSize);
}
