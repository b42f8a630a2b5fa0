// Not part of the interface: the colour tracker's reactor on the system
// variable of the displayed white colour. It does nothing when told; standing
// on the variable keeps the variable alive and refreshed for as long as the
// tracker lives.
#pragma once

#include "kydi/KyDiDataValueReactor.h"

class DataItemCurrencyTrackerBase;

class ColorSysVarReactor final : public KyDiDataValueReactor {
public:
    explicit ColorSysVarReactor(DataItemCurrencyTrackerBase* tracker) : m_tracker(tracker) {}
    DataItemCurrencyTrackerBase* tracker() const { return m_tracker; }

private:
    DataItemCurrencyTrackerBase* m_tracker;
};
