// Shared test support: the virtual table slot of a virtual member function,
// for the tests that hold interfaces to their slot order. Only on the common
// x86 C++ ABI (KYTEST_HAS_VIRTUAL_SLOTS), where a pointer to a virtual member
// holds 1 plus the byte offset of its slot; a virtual destructor takes two
// slots there.
#pragma once

#if (defined(__x86_64__) || defined(__i386__)) && !defined(_WIN32)
#define KYTEST_HAS_VIRTUAL_SLOTS 1

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kytest {

template <typename F>
std::ptrdiff_t slotOf(F function) {
    struct Representation {
        std::uintptr_t pointer;
        std::ptrdiff_t adjustment;
    };
    static_assert(sizeof(F) == sizeof(Representation));
    Representation representation;
    std::memcpy(&representation, &function, sizeof representation);
    EXPECT_EQ(1u, representation.pointer & 1u) << "not a virtual member function";
    return static_cast<std::ptrdiff_t>((representation.pointer - 1) / sizeof(void*));
}

}  // namespace kytest

#else
#define KYTEST_HAS_VIRTUAL_SLOTS 0
#endif
