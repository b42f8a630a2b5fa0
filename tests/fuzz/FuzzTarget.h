// What every fuzz target of this folder shares: the entry points libFuzzer
// calls, and the way a target reports a broken promise. A target that finds
// one prints what it found and aborts, so that libFuzzer keeps the input as a
// crash and the replay driver of the sanitizer build fails on it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kyfuzz {

// The input as text, byte for byte.
inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return std::string_view(reinterpret_cast<const char*>(data), size);
}

// Prints "broken promise: <what>" with the details and aborts.
[[noreturn]] void fail(const std::string& what, const std::string& details = std::string());

// Fails with `what` unless `condition` holds.
inline void check(bool condition, const std::string& what,
                  const std::string& details = std::string()) {
    if (!condition) {
        fail(what, details);
    }
}

}  // namespace kyfuzz
