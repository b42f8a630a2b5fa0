#include "currency/RenderPresetObjectReactor.h"

#include "currency/RenderPresetCurrencyTracker.h"

void RenderPresetObjectReactor::modified(void* /*reserved*/) {
    m_tracker->setCurrentItem(m_tracker->getCurrentItem());
}

void RenderPresetObjectReactor::erased() {
    m_tracker->forgetWatchedPreset();
}
