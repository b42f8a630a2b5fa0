#include "rx/KyRxValueText.h"

#include <cwchar>

std::wstring kyrxDoubleText(double value) {
    wchar_t buffer[64];
    std::swprintf(buffer, 64, L"%.15g", value);
    if (std::wcstod(buffer, nullptr) != value) {
        std::swprintf(buffer, 64, L"%.17g", value);
    }
    return buffer;
}
