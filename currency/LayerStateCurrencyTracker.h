// Not part of the interface: the tracker of the current layer state. A state
// is current while it is the one restored last and the layers still match it
// in the current viewport; a hidden state never is. Making a state current
// restores it directly, in one undo step labelled as the layer command, and
// has the host redraw the layers that changed.
#pragma once

#include "currency/DataItemCurrencyTracker.h"

class KyDiImpLayerCollection;

class LayerStateCurrencyTracker : public DataItemCurrencyTracker {
public:
    using DataItemCurrencyTracker::DataItemCurrencyTracker;

    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;

private:
    // The "LAYER" collection's implementation, made when needed; null when
    // the registry has none.
    static KyDiImpLayerCollection* findLayerCollection();

    KyDiImpLayerCollection* m_layerCollection = nullptr;
};
