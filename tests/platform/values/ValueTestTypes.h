// Payload types that the value tests define for themselves: plain records of
// exactly 24 bytes and of 25 and 40 bytes, on either side of a value's own
// buffer, and non-blittable records of both sides that count their lives.
#pragma once

#include <array>
#include <cstddef>

#include "rx/KyRxValue.h"

struct Bytes24 {
    std::array<unsigned char, 24> bytes{};
    bool operator==(const Bytes24&) const = default;
};

struct Bytes25 {
    std::array<unsigned char, 25> bytes{};
    bool operator==(const Bytes25&) const = default;
};

struct Bytes40 {
    std::array<unsigned char, 40> bytes{};
    bool operator==(const Bytes40&) const = default;
};

// Lives of all Tracked objects: constructions, destructions, and faults (a
// destruction or an assignment of an object that is not alive).
struct TrackedCounts {
    int constructed = 0;
    int destroyed = 0;
    int assigned = 0;
    int faults = 0;
    int alive() const { return constructed - destroyed; }
};
extern TrackedCounts g_tracked;

// A non-blittable payload of `Size` bytes that counts its lives and notices
// use after destruction.
template <std::size_t Size>
class Tracked {
public:
    explicit Tracked(int tag = 0) : m_tag(tag) { ++g_tracked.constructed; }
    Tracked(const Tracked& other) : m_tag(other.m_tag) {
        if (!other.m_alive) {
            ++g_tracked.faults;
        }
        ++g_tracked.constructed;
    }
    Tracked& operator=(const Tracked& other) {
        if (!m_alive || !other.m_alive) {
            ++g_tracked.faults;
        }
        m_tag = other.m_tag;
        ++g_tracked.assigned;
        return *this;
    }
    ~Tracked() {
        if (!m_alive) {
            ++g_tracked.faults;
        }
        m_alive = false;
        ++g_tracked.destroyed;
    }
    bool operator==(const Tracked& other) const { return m_tag == other.m_tag; }
    int tag() const { return m_tag; }

private:
    int m_tag;
    bool m_alive = true;
    std::array<unsigned char, Size - sizeof(int) - sizeof(bool) - 3> m_padding{};
};

using SmallTracked = Tracked<24>;
using LargeTracked = Tracked<64>;
static_assert(sizeof(SmallTracked) == 24 && sizeof(LargeTracked) == 64);

template <>
const KyRxValueType& KyRxValueType::Desc<Bytes24>::value();
template <>
const KyRxValueType& KyRxValueType::Desc<Bytes25>::value();
template <>
const KyRxValueType& KyRxValueType::Desc<Bytes40>::value();
template <>
const KyRxValueType& KyRxValueType::Desc<SmallTracked>::value();
template <>
const KyRxValueType& KyRxValueType::Desc<LargeTracked>::value();
