// Not part of the interface: the tracker of the raster resolution of the
// current layout ("RASTERDPI"). The host's plot service answers it when the
// layout has one (not 0); otherwise the system variable RASTERDPI does. A
// resolution the plot service doesn't take goes to the variable.
#pragma once

#include "currency/LayoutCurrencyTrackerBase.h"

class LayoutRasterDPICurrencyTracker : public LayoutCurrencyTrackerBase {
public:
    using LayoutCurrencyTrackerBase::LayoutCurrencyTrackerBase;

    void getValue(KyRxValue& out) override;
    // A 16-bit value; any other does nothing.
    void setValue(const KyRxValue& value) override;
};
