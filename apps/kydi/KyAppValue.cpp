#include "KyAppValue.h"

#include <strings.h>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "base/KyString.h"
#include "db/KyCmColor.h"
#include "db/KyCmColorBook.h"
#include "db/KyCmTransparency.h"

namespace {

bool startsWith(const std::string& word, const char* prefix) {
    return word.rfind(prefix, 0) == 0;
}

// A whole word as a decimal integer from `low` to `high`.
bool parseInteger(const std::string& word, int low, int high, int& value) {
    const char* first = word.data();
    const char* last = first + word.size();
    const auto [end, failure] = std::from_chars(first, last, value);
    return failure == std::errc() && end == last && !word.empty() && value >= low && value <= high;
}

bool parseRgb(const std::string& text, int rgb[3]) {
    std::size_t start = 0;
    for (int i = 0; i < 3; ++i) {
        const std::size_t comma = text.find(',', start);
        const bool last = i == 2;
        if (last != (comma == std::string::npos)) {
            return false;
        }
        const std::string part = text.substr(start, last ? std::string::npos : comma - start);
        if (!parseInteger(part, 0, 255, rgb[i])) {
            return false;
        }
        start = comma + 1;
    }
    return true;
}

// Blanks (all that the statement reader takes for blanks), quotes and
// backslashes only read back inside quotes.
bool needsQuotes(const std::string& text) {
    return text.find_first_of(" \t\r\n\"\\") != std::string::npos;
}

}  // namespace

KyAppValue KyAppValue::boolean(bool value) {
    KyAppValue out(Kind::kBoolean);
    out.m_number = value ? 1.0 : 0.0;
    return out;
}

KyAppValue KyAppValue::number(double value) {
    KyAppValue out(Kind::kNumber);
    out.m_number = value;
    return out;
}

KyAppValue KyAppValue::text(std::string text) {
    KyAppValue out(Kind::kText);
    out.m_text = std::move(text);
    return out;
}

KyAppValue KyAppValue::colorIndex(int index) {
    KyAppValue out(Kind::kColorIndex);
    out.m_number = index;
    return out;
}

KyAppValue KyAppValue::trueColor(int red, int green, int blue) {
    KyAppValue out(Kind::kTrueColor);
    out.m_rgb[0] = red;
    out.m_rgb[1] = green;
    out.m_rgb[2] = blue;
    return out;
}

KyAppValue KyAppValue::bookColor(std::string book, std::string name) {
    KyAppValue out(Kind::kBookColor);
    out.m_text = std::move(book);
    out.m_name = std::move(name);
    return out;
}

KyAppValue KyAppValue::byLayer() {
    return KyAppValue(Kind::kByLayer);
}

KyAppValue KyAppValue::byBlock() {
    return KyAppValue(Kind::kByBlock);
}

KyAppValue KyAppValue::alpha(int alpha) {
    KyAppValue out(Kind::kAlpha);
    out.m_number = alpha;
    return out;
}

KyAppValue KyAppValue::object(std::uint64_t handle) {
    KyAppValue out(Kind::kObject);
    out.m_handle = handle;
    return out;
}

std::optional<KyAppValue> KyAppValue::parse(const std::string& word, bool quoted,
                                            std::string& error) {
    if (quoted) {
        return text(word);
    }
    if (word == "true" || word == "false") {
        return boolean(word == "true");
    }
    if (strcasecmp(word.c_str(), "bylayer") == 0) {
        return byLayer();
    }
    if (strcasecmp(word.c_str(), "byblock") == 0) {
        return byBlock();
    }
    double value = 0.0;
    if (parseNumber(word, value)) {
        return number(value);
    }
    if (startsWith(word, "aci:")) {
        int index = 0;
        if (!parseInteger(word.substr(4), 1, 255, index)) {
            error = word + ": expected aci:N with an index 1 to 255";
            return std::nullopt;
        }
        return colorIndex(index);
    }
    if (startsWith(word, "rgb:")) {
        int rgb[3] = {};
        if (!parseRgb(word.substr(4), rgb)) {
            error = word + ": expected rgb:R,G,B with each part 0 to 255";
            return std::nullopt;
        }
        return trueColor(rgb[0], rgb[1], rgb[2]);
    }
    if (startsWith(word, "book:")) {
        const std::size_t dollar = word.find('$', 5);
        if (dollar == std::string::npos || dollar == 5 || dollar + 1 == word.size()) {
            error = word + ": expected book:BOOK$NAME";
            return std::nullopt;
        }
        return bookColor(word.substr(5, dollar - 5), word.substr(dollar + 1));
    }
    if (startsWith(word, "alpha:")) {
        int alphaValue = 0;
        if (!parseInteger(word.substr(6), 0, 255, alphaValue)) {
            error = word + ": expected alpha:N with an alpha 0 to 255";
            return std::nullopt;
        }
        return alpha(alphaValue);
    }
    if (startsWith(word, "#")) {
        const std::string digits = word.substr(1);
        std::uint64_t handle = 0;
        const char* last = digits.data() + digits.size();
        const auto [end, failure] = std::from_chars(digits.data(), last, handle, 16);
        if (digits.empty() || failure != std::errc() || end != last) {
            error = word + ": expected #HANDLE with a hexadecimal handle";
            return std::nullopt;
        }
        return object(handle);
    }
    return text(word);
}

std::string KyAppValue::format() const {
    switch (m_kind) {
        case Kind::kBoolean:
            return asBoolean() ? "true" : "false";
        case Kind::kNumber:
            return formatNumber(m_number);
        case Kind::kText: {
            std::string error;
            const std::optional<KyAppValue> bare = parse(m_text, false, error);
            const bool readsBack = bare.has_value() && bare->m_kind == Kind::kText;
            return m_text.empty() || needsQuotes(m_text) || !readsBack ? quote(m_text) : m_text;
        }
        case Kind::kColorIndex:
            return "aci:" + std::to_string(asInteger());
        case Kind::kTrueColor:
            return "rgb:" + std::to_string(m_rgb[0]) + "," + std::to_string(m_rgb[1]) + "," +
                   std::to_string(m_rgb[2]);
        case Kind::kBookColor: {
            const std::string body = m_text + "$" + m_name;
            return needsQuotes(body) ? "book:" + quote(body) : "book:" + body;
        }
        case Kind::kByLayer:
            return "bylayer";
        case Kind::kByBlock:
            return "byblock";
        case Kind::kAlpha:
            return "alpha:" + std::to_string(asInteger());
        case Kind::kObject: {
            char digits[17] = {};
            const auto result = std::to_chars(digits, digits + 16, m_handle, 16);
            std::string text(digits, result.ptr);
            for (char& c : text) {
                c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
            }
            return "#" + text;
        }
    }
    return std::string();
}

bool KyAppValue::isColor() const {
    switch (m_kind) {
        case Kind::kColorIndex:
        case Kind::kTrueColor:
        case Kind::kBookColor:
        case Kind::kByLayer:
        case Kind::kByBlock:
            return true;
        default:
            return false;
    }
}

bool KyAppValue::isTransparency() const {
    return m_kind == Kind::kAlpha || m_kind == Kind::kByLayer || m_kind == Kind::kByBlock;
}

bool KyAppValue::toColor(KyCmColor& color) const {
    switch (m_kind) {
        case Kind::kColorIndex:
            return color.setColorIndex(static_cast<unsigned short>(asInteger())) == Kyro::eOk;
        case Kind::kTrueColor:
            return color.setRGB(static_cast<unsigned char>(m_rgb[0]),
                                static_cast<unsigned char>(m_rgb[1]),
                                static_cast<unsigned char>(m_rgb[2])) == Kyro::eOk;
        case Kind::kBookColor:
            return KyCmColorBook::findColor(KyString::fromUtf8(m_text), KyString::fromUtf8(m_name),
                                            color) == Kyro::eOk;
        case Kind::kByLayer:
            return color.setColorMethod(KyCmColor::kByLayer) == Kyro::eOk;
        case Kind::kByBlock:
            return color.setColorMethod(KyCmColor::kByBlock) == Kyro::eOk;
        default:
            return false;
    }
}

bool KyAppValue::toTransparency(KyCmTransparency& transparency) const {
    switch (m_kind) {
        case Kind::kAlpha:
            transparency.setAlpha(static_cast<std::uint8_t>(asInteger()));
            return true;
        case Kind::kByLayer:
            transparency.setMethod(KyCmTransparency::kByLayer);
            return true;
        case Kind::kByBlock:
            transparency.setMethod(KyCmTransparency::kByBlock);
            return true;
        default:
            return false;
    }
}

bool KyAppValue::operator==(const KyAppValue& other) const {
    return m_kind == other.m_kind && m_number == other.m_number && m_text == other.m_text &&
           m_name == other.m_name && m_rgb[0] == other.m_rgb[0] && m_rgb[1] == other.m_rgb[1] &&
           m_rgb[2] == other.m_rgb[2] && m_handle == other.m_handle;
}

std::string KyAppValue::formatNumber(double value) {
    if (value == 0.0) {
        return "0";
    }
    if (std::isfinite(value) && std::trunc(value) == value && std::fabs(value) < 1e15) {
        return std::to_string(static_cast<long long>(value));
    }
    char digits[32] = {};
    const auto result = std::to_chars(digits, digits + sizeof(digits), value);
    return std::string(digits, result.ptr);
}

bool KyAppValue::parseNumber(const std::string& word, double& value) {
    if (word.empty()) {
        return false;
    }
    // from_chars takes no leading plus; a script may write one.
    const char* first = word.data() + (word[0] == '+' ? 1 : 0);
    const char* last = word.data() + word.size();
    double parsed = 0.0;
    const auto [end, failure] = std::from_chars(first, last, parsed);
    if (failure != std::errc() || end != last || !std::isfinite(parsed)) {
        return false;
    }
    value = parsed;
    return true;
}

std::string KyAppValue::quote(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
        }
        out += c;
    }
    out += '"';
    return out;
}
