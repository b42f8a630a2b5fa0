// Not part of the interface: a collection's reactor on its tracker. Told that
// currency may have changed, it asks the collection to check its current item
// at its next update.
#pragma once

#include "kydi/KyDiCurrencyReactor.h"

class KyDiImpCollectionBase;

class DataItemCurrencyReactor final : public KyDiCurrencyReactor {
public:
    explicit DataItemCurrencyReactor(KyDiImpCollectionBase* collection)
        : m_collection(collection) {}
    void currencyChanged() override;

private:
    KyDiImpCollectionBase* m_collection;
};
