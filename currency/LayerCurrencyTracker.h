// Not part of the interface: the tracker of the current layer (CLAYER). It
// makes a layer current as the data item tracker does; when that layer is
// off and the user can be asked, it asks whether to turn it on, after the
// command was queued, so that an answer of no leaves the off layer current.
#pragma once

#include "currency/DataItemCurrencyTracker.h"

class LayerCurrencyTracker : public DataItemCurrencyTracker {
public:
    using DataItemCurrencyTracker::DataItemCurrencyTracker;

    void setCurrentItem(KyDiDynamicObject* item) override;
};
