// KyString: text on its own heap buffer, null while empty. Case mapping works
// on every character the C library knows in a UTF-8 locale, without touching
// the locale of the process.
#include "base/KyString.h"

#include <locale.h>
#include <wctype.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <cwctype>

#include "base/KyRxResourceInstance.h"

namespace {

// Longest formatted text, in characters: beyond it format gives up rather than
// grow without end.
constexpr size_t kMaxFormattedLength = size_t{1} << 26;

wchar_t* duplicate(const wchar_t* text, size_t count) {
    if (text == nullptr || count == 0) {
        return nullptr;
    }
    auto* buffer = new wchar_t[count + 1];
    std::wmemcpy(buffer, text, count);
    buffer[count] = L'\0';
    return buffer;
}

// A UTF-8 locale for case mapping of characters beyond ASCII; the "C" locale
// of the process maps ASCII only. Made once and kept for the process.
locale_t caseLocale() {
    static const locale_t s_locale = [] {
        for (const char* name : {"C.UTF-8", "C.utf8", "en_US.UTF-8"}) {
            locale_t loc = newlocale(LC_CTYPE_MASK, name, static_cast<locale_t>(nullptr));
            if (loc != static_cast<locale_t>(nullptr)) {
                return loc;
            }
        }
        return static_cast<locale_t>(nullptr);
    }();
    return s_locale;
}

// Lower case of the common European alphabets, for a system without a UTF-8
// locale.
wint_t tableLower(wint_t c) {
    if ((c >= 0xC0 && c <= 0xDE && c != 0xD7) || (c >= 0x391 && c <= 0x3AB && c != 0x3A2) ||
        (c >= 0x410 && c <= 0x42F)) {
        return c + 0x20;
    }
    if (c >= 0x400 && c <= 0x40F) {
        return c + 0x50;
    }
    if (c >= 0x100 && c <= 0x17F && c != 0x130 && c != 0x131 && c != 0x138 && c != 0x149 &&
        c != 0x17F) {
        const bool evenIsUpper = (c < 0x139) || (c > 0x148 && c < 0x179);
        if ((c % 2 == 0) == evenIsUpper) {
            return c + 1;
        }
    }
    return c;
}

wint_t tableUpper(wint_t c) {
    if ((c >= 0xE0 && c <= 0xFE && c != 0xF7) || (c >= 0x3B1 && c <= 0x3CB && c != 0x3C2) ||
        (c >= 0x430 && c <= 0x44F)) {
        return c - 0x20;
    }
    if (c >= 0x450 && c <= 0x45F) {
        return c - 0x50;
    }
    if (c > 0x100 && c <= 0x17F && tableLower(c - 1) == c) {
        return c - 1;
    }
    return c;
}

wchar_t toLower(wchar_t ch) {
    const auto c = static_cast<wint_t>(ch);
    // ASCII by arithmetic: the same in every locale, and without a call.
    if (c < 0x80) {
        return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + (L'a' - L'A')) : ch;
    }
    const locale_t loc = caseLocale();
    return static_cast<wchar_t>(loc != static_cast<locale_t>(nullptr) ? towlower_l(c, loc)
                                                                      : tableLower(c));
}

wchar_t toUpper(wchar_t ch) {
    const auto c = static_cast<wint_t>(ch);
    if (c < 0x80) {
        return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - (L'a' - L'A')) : ch;
    }
    const locale_t loc = caseLocale();
    return static_cast<wchar_t>(loc != static_cast<locale_t>(nullptr) ? towupper_l(c, loc)
                                                                      : tableUpper(c));
}

// One character folded for comparison without regard to case: through upper
// case first, so that letters with two lower forms meet.
wchar_t fold(wchar_t ch) {
    return toLower(toUpper(ch));
}

int sign(long long value) {
    return value < 0 ? -1 : (value > 0 ? 1 : 0);
}

}  // namespace

KyString::KyString(const wchar_t* text)
    : m_text(text != nullptr ? duplicate(text, std::wcslen(text)) : nullptr) {}

KyString::KyString(const wchar_t* text, int count) {
    if (text != nullptr && count > 0) {
        const size_t available = std::wcslen(text);
        m_text = duplicate(text, std::min(available, static_cast<size_t>(count)));
    }
}

KyString::KyString(const KyString& other) : KyString(other.m_text) {}

KyString::KyString(KyString&& other) noexcept : m_text(other.m_text) {
    other.m_text = nullptr;
}

KyString::~KyString() {
    delete[] m_text;
}

KyString& KyString::operator=(const KyString& other) {
    return assign(other);
}

KyString& KyString::operator=(KyString&& other) noexcept {
    if (this != &other) {
        delete[] m_text;
        m_text = other.m_text;
        other.m_text = nullptr;
    }
    return *this;
}

KyString& KyString::operator=(const wchar_t* text) {
    return assign(text);
}

KyString& KyString::assign(const wchar_t* text) {
    // The text may be this string's own buffer: copy before freeing.
    adopt(text != nullptr ? duplicate(text, std::wcslen(text)) : nullptr);
    return *this;
}

KyString& KyString::assign(const KyString& other) {
    if (this != &other) {
        assign(other.m_text);
    }
    return *this;
}

void KyString::setEmpty() {
    adopt(nullptr);
}

void KyString::adopt(wchar_t* buffer) {
    if (buffer != nullptr && buffer[0] == L'\0') {
        delete[] buffer;
        buffer = nullptr;
    }
    delete[] m_text;
    m_text = buffer;
}

KyString& KyString::append(const wchar_t* text) {
    if (text == nullptr || text[0] == L'\0') {
        return *this;
    }
    const size_t own = m_text != nullptr ? std::wcslen(m_text) : 0;
    const size_t added = std::wcslen(text);
    auto* buffer = new wchar_t[own + added + 1];
    if (own > 0) {
        std::wmemcpy(buffer, m_text, own);
    }
    // `text` may point into this string: it is still alive here.
    std::wmemcpy(buffer + own, text, added);
    buffer[own + added] = L'\0';
    adopt(buffer);
    return *this;
}

KyString& KyString::append(wchar_t ch) {
    const wchar_t text[2] = {ch, L'\0'};
    return append(text);
}

KyString KyString::concat(const wchar_t* text) const {
    KyString result(*this);
    result.append(text);
    return result;
}

KyString KyString::concat(const KyString& other) const {
    return concat(other.kwszPtr());
}

KyString& KyString::format(const wchar_t* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    formatV(fmt, args);
    va_end(args);
    return *this;
}

KyString& KyString::formatV(const wchar_t* fmt, va_list args) {
    if (fmt == nullptr) {
        setEmpty();
        return *this;
    }
    // vswprintf answers -1 both when the buffer is short and on an encoding
    // error, so grow and retry; an encoding error (EILSEQ) or the size cap ends it.
    size_t capacity = 256;
    for (;;) {
        auto* buffer = new wchar_t[capacity];
        va_list attempt;
        va_copy(attempt, args);
        errno = 0;
        const int written = std::vswprintf(buffer, capacity, fmt, attempt);
        const int error = errno;
        va_end(attempt);
        if (written >= 0) {
            adopt(buffer);
            return *this;
        }
        delete[] buffer;
        if (error == EILSEQ || capacity >= kMaxFormattedLength) {
            setEmpty();
            return *this;
        }
        capacity *= 4;
    }
}

KyString KyString::formatted(const wchar_t* fmt, ...) {
    KyString result;
    va_list args;
    va_start(args, fmt);
    result.formatV(fmt, args);
    va_end(args);
    return result;
}

int KyString::compare(const wchar_t* text) const {
    const wchar_t* own = kwszPtr();
    const wchar_t* other = text != nullptr ? text : L"";
    return sign(std::wcscmp(own, other));
}

int KyString::compareNoCase(const wchar_t* text) const {
    const wchar_t* a = kwszPtr();
    const wchar_t* b = text != nullptr ? text : L"";
    for (;; ++a, ++b) {
        const wchar_t fa = fold(*a);
        const wchar_t fb = fold(*b);
        if (fa != fb) {
            return sign(static_cast<long long>(fa) - static_cast<long long>(fb));
        }
        if (*a == L'\0') {
            return 0;
        }
    }
}

int KyString::length() const {
    return m_text != nullptr ? static_cast<int>(std::wcslen(m_text)) : 0;
}

int KyString::findOneOf(const wchar_t* set, int start) const {
    const int count = length();
    if (set == nullptr || start < 0 || start >= count) {
        return -1;
    }
    const size_t offset = std::wcscspn(m_text + start, set);
    return start + static_cast<int>(offset) < count ? start + static_cast<int>(offset) : -1;
}

int KyString::find(wchar_t ch, int start) const {
    const int count = length();
    if (start < 0 || start >= count) {
        return -1;
    }
    const wchar_t* hit = std::wcschr(m_text + start, ch);
    return hit != nullptr && ch != L'\0' ? static_cast<int>(hit - m_text) : -1;
}

int KyString::find(const wchar_t* text, int start) const {
    const int count = length();
    if (text == nullptr || start < 0 || start > count) {
        return -1;
    }
    if (text[0] == L'\0') {
        return start;
    }
    if (start == count) {
        return -1;
    }
    const wchar_t* hit = std::wcsstr(m_text + start, text);
    return hit != nullptr ? static_cast<int>(hit - m_text) : -1;
}

KyString KyString::mid(int start, int count) const {
    const int total = length();
    if (start < 0) {
        start = 0;
    }
    if (start >= total || count == 0) {
        return KyString();
    }
    const int available = total - start;
    const int taken = (count < 0 || count > available) ? available : count;
    return KyString(m_text + start, taken);
}

KyString KyString::right(int count) const {
    const int total = length();
    if (count <= 0) {
        return KyString();
    }
    return count >= total ? *this : KyString(m_text + (total - count), count);
}

KyString& KyString::makeUpper() {
    if (m_text != nullptr) {
        for (wchar_t* p = m_text; *p != L'\0'; ++p) {
            *p = toUpper(*p);
        }
    }
    return *this;
}

KyString& KyString::makeLower() {
    if (m_text != nullptr) {
        for (wchar_t* p = m_text; *p != L'\0'; ++p) {
            *p = toLower(*p);
        }
    }
    return *this;
}

KyString& KyString::trim() {
    const int total = length();
    int first = 0;
    while (first < total && std::iswspace(static_cast<wint_t>(m_text[first]))) {
        ++first;
    }
    int last = total;
    while (last > first && std::iswspace(static_cast<wint_t>(m_text[last - 1]))) {
        --last;
    }
    if (first > 0 || last < total) {
        adopt(duplicate(m_text + first, static_cast<size_t>(last - first)));
    }
    return *this;
}

bool KyString::loadString(const KyRxResourceInstance& resources, unsigned id) {
    const wchar_t* text = resources.text(id);
    if (text == nullptr) {
        return false;
    }
    assign(text);
    return true;
}

std::string KyString::utf8() const {
    return kyutWideToUtf8(kwszPtr());
}

KyString KyString::fromUtf8(std::string_view text) {
    const std::wstring wide = kyutUtf8ToWide(text);
    return KyString(wide.c_str());
}

// UTF-8 by hand, so that files and terminals read alike in every locale. A
// byte that does not start or continue a valid sequence becomes U+FFFD; so do
// overlong forms, surrogates and values beyond U+10FFFF.
std::wstring kyutUtf8ToWide(std::string_view text) {
    constexpr char32_t kReplacement = 0xFFFD;
    std::wstring result;
    result.reserve(text.size());
    auto put = [&result](char32_t c) {
        if constexpr (sizeof(wchar_t) == 2) {
            if (c >= 0x10000) {
                c -= 0x10000;
                result.push_back(static_cast<wchar_t>(0xD800 + (c >> 10)));
                result.push_back(static_cast<wchar_t>(0xDC00 + (c & 0x3FF)));
                return;
            }
        }
        result.push_back(static_cast<wchar_t>(c));
    };
    const size_t size = text.size();
    size_t i = 0;
    while (i < size) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80) {
            put(lead);
            ++i;
            continue;
        }
        int extra = 0;
        char32_t value = 0;
        unsigned char low = 0x80;  // bounds of the first continuation byte
        unsigned char high = 0xBF;
        if (lead >= 0xC2 && lead <= 0xDF) {
            extra = 1;
            value = lead & 0x1F;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            extra = 2;
            value = lead & 0x0F;
            low = lead == 0xE0 ? 0xA0 : 0x80;
            high = lead == 0xED ? 0x9F : 0xBF;
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            extra = 3;
            value = lead & 0x07;
            low = lead == 0xF0 ? 0x90 : 0x80;
            high = lead == 0xF4 ? 0x8F : 0xBF;
        } else {
            put(kReplacement);
            ++i;
            continue;
        }
        // Take continuation bytes while they fit; a broken sequence gives one
        // replacement and decoding goes on at the byte that broke it.
        size_t next = i + 1;
        bool complete = true;
        for (int k = 0; k < extra; ++k, ++next) {
            if (next >= size) {
                complete = false;
                break;
            }
            const auto byte = static_cast<unsigned char>(text[next]);
            const unsigned char min = k == 0 ? low : 0x80;
            const unsigned char max = k == 0 ? high : 0xBF;
            if (byte < min || byte > max) {
                complete = false;
                break;
            }
            value = (value << 6) | (byte & 0x3F);
        }
        put(complete ? value : kReplacement);
        i = next;
    }
    return result;
}

std::string kyutWideToUtf8(std::wstring_view text) {
    std::string result;
    result.reserve(text.size());
    const size_t size = text.size();
    for (size_t i = 0; i < size; ++i) {
        auto c = static_cast<char32_t>(text[i]);
        if constexpr (sizeof(wchar_t) == 2) {
            c &= 0xFFFF;
            if (c >= 0xD800 && c <= 0xDBFF && i + 1 < size) {
                const auto second = static_cast<char32_t>(text[i + 1]) & 0xFFFF;
                if (second >= 0xDC00 && second <= 0xDFFF) {
                    c = 0x10000 + ((c - 0xD800) << 10) + (second - 0xDC00);
                    ++i;
                }
            }
        }
        if ((c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) {
            c = 0xFFFD;
        }
        if (c < 0x80) {
            result.push_back(static_cast<char>(c));
        } else if (c < 0x800) {
            result.push_back(static_cast<char>(0xC0 | (c >> 6)));
            result.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else if (c < 0x10000) {
            result.push_back(static_cast<char>(0xE0 | (c >> 12)));
            result.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            result.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else {
            result.push_back(static_cast<char>(0xF0 | (c >> 18)));
            result.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
            result.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            result.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        }
    }
    return result;
}

// Free strings live on the C heap, so that any part of the process can free
// them with kyutDelBuffer.
void kyutNewString(const wchar_t* source, wchar_t*& destination) {
    if (source == nullptr) {
        destination = nullptr;
        return;
    }
    const size_t bytes = (std::wcslen(source) + 1) * sizeof(wchar_t);
    auto* copy = static_cast<wchar_t*>(std::malloc(bytes));
    if (copy != nullptr) {
        std::memcpy(copy, source, bytes);
    }
    destination = copy;
}

void kyutUpdString(const wchar_t* source, wchar_t*& destination) {
    // Copy first: the source may be the string that is replaced.
    wchar_t* copy = nullptr;
    kyutNewString(source, copy);
    std::free(destination);
    destination = copy;
}

void kyutDelBuffer(void*& buffer) {
    std::free(buffer);
    buffer = nullptr;
}
