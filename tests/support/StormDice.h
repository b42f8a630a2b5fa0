// Shared test support: the random source of the storms. Its seed is fixed by
// the test, and the environment variable KYDI_STORM_SEED replaces it, so that
// a storm that failed is run again exactly, or run with other seeds by hand.
// The seed in use is printed.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

namespace kytest {

class StormDice {
public:
    explicit StormDice(std::uint32_t seed) : m_seed(seedFromEnvironment(seed)), m_random(m_seed) {
        std::cout << "storm seed " << m_seed << " (KYDI_STORM_SEED replaces it)" << std::endl;
    }

    std::uint32_t seed() const { return m_seed; }
    // 0 to count - 1.
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }
    // True once in `times`.
    bool oneIn(int times) { return pick(times) == 0; }
    template <typename T, std::size_t N>
    const T& among(const T (&values)[N]) {
        return values[pick(static_cast<int>(N))];
    }

    // A whole number from the environment variable `name`, or `fallback`.
    static long long fromEnvironment(const char* name, long long fallback) {
        const char* text = std::getenv(name);
        if (text == nullptr || *text == '\0') {
            return fallback;
        }
        char* end = nullptr;
        const long long value = std::strtoll(text, &end, 10);
        return end != nullptr && *end == '\0' ? value : fallback;
    }

private:
    static std::uint32_t seedFromEnvironment(std::uint32_t seed) {
        return static_cast<std::uint32_t>(fromEnvironment("KYDI_STORM_SEED", seed));
    }

    std::uint32_t m_seed;
    std::mt19937 m_random;
};

}  // namespace kytest
