// Not part of the interface: the tracker of the plot style of new objects
// ("KYRO_PLOTSTYLENAME"), which the system variable CPLOTSTYLE names in the
// user's language. The current item is the entry of that name; a style is
// made current by writing its name to the variable. Without a plot service
// the drawing has no plot styles to offer, and nothing is current.
#pragma once

#include "currency/PlotCurrencyTrackerBase.h"

class PlotStyleCurrencyTracker : public PlotCurrencyTrackerBase {
public:
    using PlotCurrencyTrackerBase::PlotCurrencyTrackerBase;

    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;
};
