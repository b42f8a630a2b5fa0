// Not part of the interface: the tracker of the layer filters
// ("LAYERFILTERS"). The current filter is whatever the collection of layer
// filters says; a filter is made current by the -LAYER command's Filter Set
// option, when the row gives a command at all.
#pragma once

#include "currency/DataItemCurrencyTrackerBase.h"

class LayerFilterCurrencyTracker : public DataItemCurrencyTrackerBase {
public:
    using DataItemCurrencyTrackerBase::DataItemCurrencyTrackerBase;

    // Null while no collection of layer filters can be made.
    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;
};
