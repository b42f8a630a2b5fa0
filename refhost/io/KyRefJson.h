// The JSON value type of drawing files, and the conversions between the
// UTF-8 text of JSON and the wide text of the platform. Members keep the
// order of the file, so dictionary entries come back in their own order and
// a saved file reads like the one that was opened.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "base/KyString.h"

using KyRefJson = nlohmann::ordered_json;

inline KyString kyrefWide(std::string_view utf8) {
    return KyString::fromUtf8(utf8);
}

inline std::string kyrefUtf8(const wchar_t* text) {
    return text != nullptr ? kyutWideToUtf8(text) : std::string();
}
