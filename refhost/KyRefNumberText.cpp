#include "KyRefNumberText.h"

#include <cmath>
#include <cwchar>

#include "base/KyString.h"

bool KyRefNumberText::parseNumber(const wchar_t* text, double& value) {
    const KyString trimmed = KyString(text).trim();
    if (trimmed.isEmpty()) {
        return false;
    }
    wchar_t* end = nullptr;
    const double read = std::wcstod(trimmed.kwszPtr(), &end);
    if (end == nullptr || *end != L'\0' || !std::isfinite(read)) {
        return false;
    }
    value = read;
    return true;
}

bool KyRefNumberText::parsePoint(const wchar_t* text, KyGePoint3d& point) {
    const KyString whole(text);
    double parts[3] = {0.0, 0.0, 0.0};
    int count = 0;
    int start = 0;
    for (;;) {
        const int comma = whole.find(L',', start);
        const int end = comma < 0 ? whole.length() : comma;
        if (count == 3 || !parseNumber(whole.mid(start, end - start), parts[count])) {
            return false;
        }
        ++count;
        if (comma < 0) {
            break;
        }
        start = comma + 1;
    }
    if (count < 2) {
        return false;
    }
    point.set(parts[0], parts[1], parts[2]);
    return true;
}
