// KyDbHandle: the persistent name of an object in its drawing. A 64-bit
// number, unique in its database, never 0 for an object, written as upper-case
// hexadecimal ("1F"). Handles survive saving and reading a drawing, where ids
// (pointers to stubs) do not.
#pragma once

#include <cstddef>
#include <cstdint>

#include "KyPlatformExport.h"
#include "base/KyString.h"

class KYPLATFORM_API KyDbHandle {
public:
    constexpr KyDbHandle() = default;
    constexpr KyDbHandle(std::uint64_t value) : m_value(value) {}  // NOLINT: a handle is its number

    constexpr std::uint64_t value() const { return m_value; }
    constexpr bool isNull() const { return m_value == 0; }

    // Upper-case hexadecimal without leading zeros; "0" for the null handle.
    KyString text() const;
    // The same text into a buffer; false when it does not fit (17 characters
    // always do).
    bool getIntoAsciiBuffer(wchar_t* buffer, std::size_t size) const;
    // Reads hexadecimal text in either case, without prefix or blanks. False,
    // with `handle` untouched, for an empty text, a character that is not a
    // hexadecimal digit, or a number beyond 64 bits.
    static bool fromText(const wchar_t* text, KyDbHandle& handle);

    constexpr bool operator==(const KyDbHandle& other) const = default;
    constexpr auto operator<=>(const KyDbHandle& other) const = default;

private:
    std::uint64_t m_value = 0;
};
