#include "KyRefManualClock.h"

#include "pal/KyPal.h"

KyRefManualClock::KyRefManualClock() {
    KyPal::SteadyClock::setSource(&KyRefManualClock::read, this);
}

KyRefManualClock::~KyRefManualClock() {
    KyPal::SteadyClock::setSource(nullptr, nullptr);
}

void KyRefManualClock::advance(std::int64_t milliseconds) {
    advanceNanoseconds(milliseconds * 1000 * 1000);
}

void KyRefManualClock::advanceNanoseconds(std::int64_t nanoseconds) {
    if (nanoseconds > 0) {
        m_now += nanoseconds;
    }
}

std::int64_t KyRefManualClock::read(void* clock) {
    return static_cast<const KyRefManualClock*>(clock)->m_now;
}
