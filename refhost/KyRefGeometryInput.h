// KyRefGeometryInput: the points and numbers a drawing command reads, one
// answer each (KyRefNumberText says how they are typed). A text that is no
// point or no number in range ends the command with an error line, and what
// the command made so far is taken back with it.
#pragma once

#include <optional>

#include "ge/KyGePoint3d.h"

class KyRefCommandContext;

class KyRefGeometryInput {
public:
    enum class Range { kAny, kPositive, kNotZero };

    // A point; an empty answer is no point.
    static KyGePoint3d readPoint(KyRefCommandContext& context, const wchar_t* prompt);
    // A point, or nothing for an empty answer.
    static std::optional<KyGePoint3d> readPointOrEnd(KyRefCommandContext& context,
                                                     const wchar_t* prompt);
    // A number in `range`; an empty answer takes `defaultValue` when there is
    // one.
    static double readNumber(KyRefCommandContext& context, const wchar_t* prompt, Range range,
                             std::optional<double> defaultValue = std::nullopt);
    // A number in `range`, or nothing for an empty answer.
    static std::optional<double> readNumberOrEnd(KyRefCommandContext& context,
                                                 const wchar_t* prompt, Range range);
};
