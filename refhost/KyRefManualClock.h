// KyRefManualClock: a steady clock that moves only when told, for tests and
// scripts, so that nothing that depends on time ever sleeps. While it lives it
// is the process's steady clock (KyPal::SteadyClock); it starts at 1000
// seconds and goes forward by advance().
#pragma once

#include <cstdint>

class KyRefManualClock {
public:
    static constexpr std::int64_t kStartNanoseconds = 1000LL * 1000 * 1000 * 1000;

    // Installs the clock in place of the real one.
    KyRefManualClock();
    // Puts the real clock back.
    ~KyRefManualClock();
    KyRefManualClock(const KyRefManualClock&) = delete;
    KyRefManualClock& operator=(const KyRefManualClock&) = delete;

    // Moves the clock forward by `milliseconds` (a negative amount is ignored:
    // a steady clock never goes back).
    void advance(std::int64_t milliseconds);
    // The same by `nanoseconds`, for what depends on the clock to the last
    // tick.
    void advanceNanoseconds(std::int64_t nanoseconds);
    // The time the clock shows, in nanoseconds.
    std::int64_t now() const { return m_now; }

private:
    static std::int64_t read(void* clock);

    std::int64_t m_now = kStartNanoseconds;
};
