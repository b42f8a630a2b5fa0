// Not part of the interface: the tracker of the type of the current plot style
// table ("PLOTSTYLETABLETYPE"), in the words of the host's plot service. It is
// only read: the host settles it.
#pragma once

#include "currency/PlotCurrencyTrackerBase.h"

class PlotStyleTableTypeCurrencyTracker : public PlotCurrencyTrackerBase {
public:
    using PlotCurrencyTrackerBase::PlotCurrencyTrackerBase;

    void getValue(KyRxValue& out) override;
};
