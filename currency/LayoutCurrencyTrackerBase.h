// Not part of the interface: the base of the trackers of the current layout
// (its name, its record, its page setup, its raster resolution). The host
// tells of a change of layout as one event (layoutChanged), which reaches
// every tracker of this kind.
#pragma once

#include "currency/ValueCurrencyTrackerBase.h"

class LayoutCurrencyTrackerBase : public ValueCurrencyTrackerBase {
public:
    using ValueCurrencyTrackerBase::ValueCurrencyTrackerBase;
};
