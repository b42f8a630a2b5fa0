// Not part of the interface: the tracker of the current annotation scale
// ("SCALELIST"), which the system variable CANNOSCALE names. The current item
// is the scale whose value text (its name, for an item without a value) is
// that name; a scale is made current by writing the text to the variable.
#pragma once

#include "currency/DataItemCurrencyTrackerBase.h"

class ScaleListCurrencyTracker : public DataItemCurrencyTrackerBase {
public:
    using DataItemCurrencyTrackerBase::DataItemCurrencyTrackerBase;

    // Null while the variable names no scale, or no item matches.
    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;
};
