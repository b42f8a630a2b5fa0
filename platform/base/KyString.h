// KyString: the host's text type. One pointer wide, value semantics, its own
// heap buffer. An empty string holds no buffer and converts to L"".
#pragma once

#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>

#include "KyPlatformExport.h"

class KyRxResourceInstance;

class KYPLATFORM_API KyString {
public:
    KyString() noexcept = default;
    KyString(const wchar_t* text);  // NOLINT(google-explicit-constructor): texts convert freely
    KyString(const wchar_t* text, int count);
    KyString(const KyString& other);
    KyString(KyString&& other) noexcept;
    ~KyString();

    KyString& operator=(const KyString& other);
    KyString& operator=(KyString&& other) noexcept;
    KyString& operator=(const wchar_t* text);

    KyString& assign(const wchar_t* text);
    KyString& assign(const KyString& other);
    void setEmpty();

    // Appends in place.
    KyString& append(const wchar_t* text);
    KyString& append(const KyString& other) { return append(other.kwszPtr()); }
    KyString& append(wchar_t ch);
    KyString& operator+=(const wchar_t* text) { return append(text); }
    KyString& operator+=(const KyString& other) { return append(other); }
    // Answers a new string; this one is left alone.
    KyString concat(const wchar_t* text) const;
    KyString concat(const KyString& other) const;

    // Replaces the text with printf-formatted text (wide printf: %ls takes a
    // wide string, %d an integer, %f a double).
    KyString& format(const wchar_t* fmt, ...);
    KyString& formatV(const wchar_t* fmt, va_list args);
    static KyString formatted(const wchar_t* fmt, ...);

    // Three-way ordering, 0 when equal.
    int compare(const wchar_t* text) const;
    int compare(const KyString& other) const { return compare(other.kwszPtr()); }
    int compareNoCase(const wchar_t* text) const;
    int compareNoCase(const KyString& other) const { return compareNoCase(other.kwszPtr()); }

    int length() const;
    bool isEmpty() const { return m_text == nullptr || m_text[0] == L'\0'; }

    // Index of the first character of `set` at or after `start`, -1 if none.
    int findOneOf(const wchar_t* set, int start = 0) const;
    int find(wchar_t ch, int start = 0) const;
    int find(const wchar_t* text, int start = 0) const;
    KyString mid(int start, int count = -1) const;
    KyString left(int count) const { return count > 0 ? mid(0, count) : KyString(); }
    KyString right(int count) const;
    KyString& makeUpper();
    KyString& makeLower();
    KyString& trim();

    // Loads text `id` of a resource module in the current language; false
    // (and the string left alone) when the module or the text is absent.
    bool loadString(const KyRxResourceInstance& resources, unsigned id);

    const wchar_t* kwszPtr() const { return m_text != nullptr ? m_text : L""; }
    operator const wchar_t*() const { return kwszPtr(); }  // NOLINT(google-explicit-constructor)

    // UTF-8 conversions for files and terminals.
    std::string utf8() const;
    static KyString fromUtf8(std::string_view text);

    bool operator==(const KyString& other) const { return compare(other) == 0; }
    bool operator==(const wchar_t* text) const { return compare(text) == 0; }
    bool operator<(const KyString& other) const { return compare(other) < 0; }

private:
    void adopt(wchar_t* buffer);
    wchar_t* m_text = nullptr;
};

static_assert(sizeof(KyString) == sizeof(void*), "KyString is one pointer wide");

// Ordering for maps keyed by name: case-sensitive, as KyString::compare.
struct KyStringLess {
    bool operator()(const KyString& a, const KyString& b) const { return a.compare(b) < 0; }
};
// Ordering for maps whose names match without regard to case.
struct KyStringLessNoCase {
    bool operator()(const KyString& a, const KyString& b) const { return a.compareNoCase(b) < 0; }
};

// UTF-8 <-> wide text.
KYPLATFORM_API std::wstring kyutUtf8ToWide(std::string_view text);
KYPLATFORM_API std::string kyutWideToUtf8(std::wstring_view text);

// Free strings: C strings on the platform's heap, for fixed names.
KYPLATFORM_API void kyutNewString(const wchar_t* source, wchar_t*& destination);
KYPLATFORM_API void kyutUpdString(const wchar_t* source, wchar_t*& destination);
KYPLATFORM_API void kyutDelBuffer(void*& buffer);
template <typename T>
inline void kyutDelString(T*& buffer) {
    void* p = buffer;
    kyutDelBuffer(p);
    buffer = nullptr;
}
