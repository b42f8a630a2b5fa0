// Not part of the interface: the tracker of the current layout's plot style
// table ("PLOTSTYLETABLE"). The current item is the entry of the list of
// tables that names the host's current table, or, for a table the list
// doesn't offer, the tracker's own item with that name. An entry is made
// current through the plot service, by its name.
#pragma once

#include "currency/PlotCurrencyTrackerBase.h"

class PlotStyleTableCurrencyTracker : public PlotCurrencyTrackerBase {
public:
    using PlotCurrencyTrackerBase::PlotCurrencyTrackerBase;

    // Null without a plot service.
    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;
    void getValue(KyRxValue& out) override;
};
