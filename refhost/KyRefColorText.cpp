#include "KyRefColorText.h"

#include <cwchar>
#include <cwctype>

#include "KyRefReservedWords.h"

namespace {

// A whole number from `first` to `last`, the whole text and nothing else.
bool readInteger(const KyString& text, long first, long last, long& value) {
    const KyString trimmed = KyString(text).trim();
    if (trimmed.isEmpty()) {
        return false;
    }
    wchar_t* end = nullptr;
    const long read = std::wcstol(trimmed.kwszPtr(), &end, 10);
    if (end == nullptr || *end != L'\0' || read < first || read > last) {
        return false;
    }
    value = read;
    return true;
}

bool readRgb(const KyString& text, KyCmColor& color) {
    long parts[3] = {0, 0, 0};
    int start = 0;
    for (int part = 0; part < 3; ++part) {
        const int comma = part < 2 ? text.find(L',', start) : text.length();
        if (comma < 0 || !readInteger(text.mid(start, comma - start), 0, 255, parts[part])) {
            return false;
        }
        start = comma + 1;
    }
    return color.setRGB(static_cast<unsigned char>(parts[0]), static_cast<unsigned char>(parts[1]),
                        static_cast<unsigned char>(parts[2])) == Kyro::eOk;
}

}  // namespace

KyString KyRefColorText::format(const KyCmColor& color) {
    if (color.isByLayer()) {
        return KyString(L"BYLAYER");
    }
    if (color.isByBlock()) {
        return KyString(L"BYBLOCK");
    }
    if (color.isByACI()) {
        return KyString::formatted(L"%d", static_cast<int>(color.colorIndex()));
    }
    if (color.isByColor()) {
        if (color.hasBookName()) {
            return KyString::formatted(L"%ls$%ls", color.bookName(), color.colorName());
        }
        if (color.hasColorName()) {
            return KyString(color.colorName());
        }
        return KyString::formatted(L"RGB:%d,%d,%d", static_cast<int>(color.red()),
                                   static_cast<int>(color.green()), static_cast<int>(color.blue()));
    }
    return color.colorNameForDisplay();
}

bool KyRefColorText::parse(const wchar_t* text, KyCmColor& color) {
    const KyString trimmed = KyString(text).trim();
    KyCmColor parsed;
    long index = 0;
    if (KyRefReservedWords::matches(trimmed, KyRefReservedWords::kByLayer)) {
        parsed.setColorMethod(KyCmColor::kByLayer);
    } else if (KyRefReservedWords::matches(trimmed, KyRefReservedWords::kByBlock)) {
        parsed.setColorMethod(KyCmColor::kByBlock);
    } else if (readInteger(trimmed, 0, KyCmColor::kACIbyLayer, index)) {
        parsed.setColorIndex(static_cast<unsigned short>(index));
    } else if (const int named = KyRefReservedWords::colorIndexNamed(trimmed); named != 0) {
        parsed.setColorIndex(static_cast<unsigned short>(named));
    } else if (trimmed.left(4).compareNoCase(L"RGB:") == 0) {
        if (!readRgb(trimmed.mid(4), parsed)) {
            return false;
        }
    } else if (!readRgb(trimmed, parsed)) {
        return false;
    }
    color = parsed;
    return true;
}
