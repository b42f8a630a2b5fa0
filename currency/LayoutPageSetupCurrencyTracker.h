// Not part of the interface: the tracker of the page setup of the current
// layout ("PAGESETUP"), by its name as the host's plot service gives it. It is
// only read. Without a plot service nothing is current.
#pragma once

#include "currency/LayoutCurrencyTrackerBase.h"

class LayoutPageSetupCurrencyTracker : public LayoutCurrencyTrackerBase {
public:
    using LayoutCurrencyTrackerBase::LayoutCurrencyTrackerBase;

    KyDiDynamicObject* getCurrentItem() override;
    void getValue(KyRxValue& out) override;
};
