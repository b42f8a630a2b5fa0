#include "KyRefGeometryInput.h"

#include "KyRefCommandContext.h"
#include "KyRefNumberText.h"

KyGePoint3d KyRefGeometryInput::readPoint(KyRefCommandContext& context, const wchar_t* prompt) {
    const std::optional<KyGePoint3d> point = readPointOrEnd(context, prompt);
    if (!point.has_value()) {
        context.fail(L"Requires a point.");
    }
    return *point;
}

std::optional<KyGePoint3d> KyRefGeometryInput::readPointOrEnd(KyRefCommandContext& context,
                                                              const wchar_t* prompt) {
    const KyString answer = context.readWord(prompt);
    if (answer.isEmpty()) {
        return std::nullopt;
    }
    KyGePoint3d point;
    if (!KyRefNumberText::parsePoint(answer, point)) {
        context.fail(L"Invalid point \"%ls\".", answer.kwszPtr());
    }
    return point;
}

double KyRefGeometryInput::readNumber(KyRefCommandContext& context, const wchar_t* prompt,
                                      Range range, std::optional<double> defaultValue) {
    const std::optional<double> value = readNumberOrEnd(context, prompt, range);
    if (value.has_value()) {
        return *value;
    }
    if (!defaultValue.has_value()) {
        context.fail(L"Requires a number.");
    }
    return *defaultValue;
}

std::optional<double> KyRefGeometryInput::readNumberOrEnd(KyRefCommandContext& context,
                                                          const wchar_t* prompt, Range range) {
    const KyString answer = context.readWord(prompt);
    if (answer.isEmpty()) {
        return std::nullopt;
    }
    double value = 0.0;
    if (!KyRefNumberText::parseNumber(answer, value)) {
        context.fail(L"Requires a number.");
    }
    if (range == Range::kPositive && !(value > 0.0)) {
        context.fail(L"Requires a positive number.");
    }
    if (range == Range::kNotZero && value == 0.0) {
        context.fail(L"Requires a number other than zero.");
    }
    return value;
}
