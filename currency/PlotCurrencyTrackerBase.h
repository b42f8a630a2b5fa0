// Not part of the interface: the base of the trackers of the current
// layout's plot settings (what plot styles attach to, the type and the name of
// the plot style table, the plot style). The host tells of a change of them
// as one event (plotSettingsChanged), which reaches every tracker of this
// kind.
#pragma once

#include "currency/ValueCurrencyTrackerBase.h"

class PlotCurrencyTrackerBase : public ValueCurrencyTrackerBase {
public:
    using ValueCurrencyTrackerBase::ValueCurrencyTrackerBase;
};
