// DrawingFieldMutator: the mutations of fuzz_drawing_fields. The input stays
// a JSON document; each mutation changes one field of it: a value replaced
// by one of another type or a near one of the same type (a name or handle
// taken from elsewhere in the drawing, a number at a boundary), a member or
// item dropped, duplicated or moved, a member under another key, or a member
// the format knows added where it may not belong. A text that is no JSON starts over from a small
// drawing, so that the reader sees structurally valid drawings with one
// thing wrong, not syntax errors.
#pragma once

#include <cstdint>
#include <string>

namespace kyfuzz {

class DrawingFieldMutator {
public:
    // `text` changed in one field, serialised; at most `maxSize` bytes, or
    // `text` itself when no mutation fits.
    static std::string mutate(const std::string& text, std::size_t maxSize, std::uint32_t seed);
    // A value of `second` put in place of a value of `first`.
    static std::string crossOver(const std::string& first, const std::string& second,
                                 std::size_t maxSize, std::uint32_t seed);
    // The drawing a text that is no JSON document starts over from.
    static const char* baseDrawing();
};

}  // namespace kyfuzz
