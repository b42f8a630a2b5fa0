// KyRefTransparencyText: transparencies as the command line and variables
// write them: "ByLayer", "ByBlock", or a percentage of transparency from 0
// (opaque) to 90. The percentage of an alpha is (25500 - alpha * 100) / 255
// in integers, as the data item layer names transparencies.
#pragma once

#include <cstdint>

#include "base/KyString.h"
#include "db/KyCmTransparency.h"

class KyRefTransparencyText {
public:
    static constexpr int kMaximumPercent = 90;

    static KyString format(const KyCmTransparency& transparency);
    // ByLayer and ByBlock in the global or the local form, in any case, or a
    // whole percentage 0 to 90.
    static bool parse(const wchar_t* text, KyCmTransparency& transparency);

    static int percentOf(std::uint8_t alpha);
    // The alpha whose percentage is `percent` (0 to 100).
    static std::uint8_t alphaOf(int percent);
};
