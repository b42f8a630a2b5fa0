#include "db/KyDbHandle.h"

KyString KyDbHandle::text() const {
    wchar_t buffer[17];
    getIntoAsciiBuffer(buffer, 17);
    return KyString(buffer);
}

bool KyDbHandle::getIntoAsciiBuffer(wchar_t* buffer, std::size_t size) const {
    static const wchar_t kDigits[] = L"0123456789ABCDEF";
    wchar_t reversed[16];
    std::size_t count = 0;
    std::uint64_t rest = m_value;
    do {
        reversed[count++] = kDigits[rest & 0xF];
        rest >>= 4;
    } while (rest != 0);
    if (buffer == nullptr || size < count + 1) {
        return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        buffer[i] = reversed[count - 1 - i];
    }
    buffer[count] = L'\0';
    return true;
}

bool KyDbHandle::fromText(const wchar_t* text, KyDbHandle& handle) {
    if (text == nullptr || text[0] == L'\0') {
        return false;
    }
    std::uint64_t value = 0;
    for (const wchar_t* p = text; *p != L'\0'; ++p) {
        unsigned digit = 0;
        if (*p >= L'0' && *p <= L'9') {
            digit = static_cast<unsigned>(*p - L'0');
        } else if (*p >= L'A' && *p <= L'F') {
            digit = static_cast<unsigned>(*p - L'A') + 10;
        } else if (*p >= L'a' && *p <= L'f') {
            digit = static_cast<unsigned>(*p - L'a') + 10;
        } else {
            return false;
        }
        if ((value >> 60) != 0) {
            return false;
        }
        value = (value << 4) | digit;
    }
    handle = KyDbHandle(value);
    return true;
}
