// Not part of the interface: what the collection of layer filters offers its
// tracker. The collection hears from the host which filter is current, and
// only it can tell which of its items stands for that filter.
#pragma once

class KyDiDynamicObject;

class LayerFilterCurrencySource {
public:
    // The item of the current filter; null when no item stands for it.
    virtual KyDiDynamicObject* currentFilterItem() = 0;

protected:
    ~LayerFilterCurrencySource() = default;
};
