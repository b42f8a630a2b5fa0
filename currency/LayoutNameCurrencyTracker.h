// Not part of the interface: the tracker of the name of the current layout
// ("LAYOUT"), which the system variable CTAB holds. A layout is made current
// by its name through the host's plot service.
#pragma once

#include "currency/LayoutCurrencyTrackerBase.h"

class LayoutNameCurrencyTracker : public LayoutCurrencyTrackerBase {
public:
    using LayoutCurrencyTrackerBase::LayoutCurrencyTrackerBase;

    void getValue(KyRxValue& out) override;
    // A name that is not empty; the reactors hear of a switch the host made.
    void setValue(const KyRxValue& value) override;
};
