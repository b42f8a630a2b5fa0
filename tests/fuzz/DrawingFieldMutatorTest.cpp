// The field mutator writes JSON whatever it is given: a chain of mutations
// and crossings over from drawings with texts beyond ASCII stays a JSON
// document within the size it was allowed. (A fault here would only show in
// the fuzz run, where the target's process ends on it.)
#include <gtest/gtest.h>

#include <string>

#include "DrawingFieldMutator.h"
#include "io/KyRefJson.h"

namespace {

using kyfuzz::DrawingFieldMutator;

// A small drawing whose texts are of two- to four-byte characters, where a
// byte cut from the middle of one breaks the text.
std::string drawingBeyondAscii() {
    return KyRefJson({{"format", "kydrawing"},
                      {"version", 1},
                      {"header", {{"PROJECTNAME", "Grundri\u00df \u00c4u\u00dferes"}}},
                      {"layers",
                       {{{"handle", "10"}, {"name", "\u00c4\u00d6\u00dc"}},
                        {{"handle", "20"},
                         {"name", "\u5efa\u7269"},
                         {"description", "\U0001F3E0\U0001F3E1"}}}}})
        .dump();
}

bool isJsonObject(const std::string& text) {
    const KyRefJson parsed = KyRefJson::parse(text, nullptr, false);
    return !parsed.is_discarded() && parsed.is_object();
}

TEST(DrawingFieldMutator, AChainOfMutationsAndCrossingsStaysJsonWithinItsSize) {
    const std::string start = drawingBeyondAscii();
    std::string text = start;
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        const std::size_t maxSize = seed % 7 == 0 ? 2048 : 65536;
        const std::string out = seed % 5 == 0
                                    ? DrawingFieldMutator::crossOver(text, start, maxSize, seed)
                                    : DrawingFieldMutator::mutate(text, maxSize, seed);
        ASSERT_TRUE(isJsonObject(out) || out == text) << "seed " << seed << ":\n" << out;
        ASSERT_LE(out.size(), std::max(maxSize, text.size())) << "seed " << seed;
        // Now and then the chain starts over, so that it does not drift far
        // from a drawing.
        text = seed % 50 == 0 ? start : out;
    }
}

TEST(DrawingFieldMutator, TextThatIsNoJsonStartsOverFromTheBaseDrawing) {
    const std::string out = DrawingFieldMutator::mutate("\xff{not json", 65536, 7);
    EXPECT_TRUE(isJsonObject(out)) << out;
}

}  // namespace
