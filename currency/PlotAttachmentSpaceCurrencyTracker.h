// Not part of the interface: the tracker of what the plot styles of the
// current layout are attached to ("PLOTATTACHMENTSPACE"), in the words of the
// host's plot service. It is only read: the host settles it.
#pragma once

#include "currency/PlotCurrencyTrackerBase.h"

class PlotAttachmentSpaceCurrencyTracker : public PlotCurrencyTrackerBase {
public:
    using PlotCurrencyTrackerBase::PlotCurrencyTrackerBase;

    void getValue(KyRxValue& out) override;
};
