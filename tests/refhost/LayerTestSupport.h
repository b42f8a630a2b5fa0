// Support for the tests of the layer commands: a fixture whose current
// drawing is read from JSON text (written to a folder of the test process's
// own), the drawing those tests start from, and a layer's state in one
// comparable line.
#pragma once

#include <filesystem>
#include <string>

#include "RefHostTestSupport.h"
#include "db/KyDbObjectId.h"

class KyRefDocument;

namespace refhost {

// A drawing with the layers 0, Walls, Doors and Frozen (frozen), the
// linetype DASHED, named plot styles Normal and Thick, a layout shown with
// three viewports (the paper and two more, handles 41 and 42), and layer
// filters ("Walls only", and "Group" with "Nested" inside it).
extern const char* const kLayerDrawing;

class LayerFixture : public RefHostTest {
protected:
    LayerFixture();
    ~LayerFixture() override;

    // Writes `text` to the file `name` in the test's folder; its path.
    std::filesystem::path writeFile(const std::string& name, const std::string& text) const;
    // Opens the drawing `json` as the current document, and takes what its
    // opening showed and raised.
    KyRefDocument* openDrawing(const std::string& json, const std::string& name = "plan.kyd");

    KyDbObjectId layer(const wchar_t* name) const;
    KyDbObjectId linetype(const wchar_t* name) const;
    KyDbObjectId block(const wchar_t* name) const;
    KyDbObjectId object(const wchar_t* handle) const;

    // "color=1 linetype=Continuous lineweight=-3 transparency=0 plotStyle=Normal
    // off=0 frozen=0 locked=0 plot=1 description=" ("missing" when the drawing
    // has no such layer).
    std::string state(const wchar_t* name) const;
    // The overrides of a layer in the viewport with `handle`: "color=1
    // linetype=DASHED lineweight=25 transparency=50 plotStyle=Thick frozen=1",
    // each part only when overridden (frozen only when frozen there).
    std::string overrides(const wchar_t* name, const wchar_t* viewport) const;
    // Registers the named colour "Signal" (without a book) and the colour
    // "3020" of the book "RAL".
    static void addNamedColors();

    std::filesystem::path folder;
};

}  // namespace refhost
