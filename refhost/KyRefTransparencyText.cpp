#include "KyRefTransparencyText.h"

#include <cwchar>

#include "KyRefReservedWords.h"

KyString KyRefTransparencyText::format(const KyCmTransparency& transparency) {
    if (transparency.isByLayer()) {
        return KyString(KyRefReservedWords::global(KyRefReservedWords::kByLayer));
    }
    if (transparency.isByBlock()) {
        return KyString(KyRefReservedWords::global(KyRefReservedWords::kByBlock));
    }
    return KyString::formatted(L"%d", percentOf(transparency.alpha()));
}

bool KyRefTransparencyText::parse(const wchar_t* text, KyCmTransparency& transparency) {
    const KyString trimmed = KyString(text).trim();
    if (KyRefReservedWords::matches(trimmed, KyRefReservedWords::kByLayer)) {
        transparency.setMethod(KyCmTransparency::kByLayer);
        return true;
    }
    if (KyRefReservedWords::matches(trimmed, KyRefReservedWords::kByBlock)) {
        transparency.setMethod(KyCmTransparency::kByBlock);
        return true;
    }
    if (trimmed.isEmpty()) {
        return false;
    }
    wchar_t* end = nullptr;
    const long percent = std::wcstol(trimmed.kwszPtr(), &end, 10);
    if (end == nullptr || *end != L'\0' || percent < 0 || percent > kMaximumPercent) {
        return false;
    }
    transparency.setAlpha(alphaOf(static_cast<int>(percent)));
    return true;
}

int KyRefTransparencyText::percentOf(std::uint8_t alpha) {
    return (25500 - static_cast<int>(alpha) * 100) / 255;
}

std::uint8_t KyRefTransparencyText::alphaOf(int percent) {
    // The smallest share of 255 whose percentage rounds down to `percent`:
    // percentOf(alphaOf(p)) == p for every p from 0 to 100.
    const int transparent = (percent * 255 + 99) / 100;
    return static_cast<std::uint8_t>(255 - transparent);
}
