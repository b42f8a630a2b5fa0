// The collection fixture with what the tracker tests share: a tracker by its
// name, items of values as a client would bring them, and a currency reactor
// that counts what it is told.
#pragma once

#include <vector>

#include "collections/CollectionFixture.h"
#include "currency/DataItemCurrencyTrackerBase.h"
#include "kydi/KyDiCurrencyReactor.h"
#include "kydi/KyDiDataItemFactory.h"
#include "manager/KnownCollectionRegistry.h"

namespace kytest {

class CurrencyCounter final : public KyDiCurrencyReactor {
public:
    void currencyChanged() override { ++count; }
    int count = 0;
};

class TrackerFixture : public CollectionFixture {
protected:
    using CollectionFixture::CollectionFixture;

    void TearDown() override {
        for (KyDiDynamicObject* item : m_made) {
            deleteItem(item);
        }
        CollectionFixture::TearDown();
    }

    // The tracker of `name`, made from its row.
    static DataItemCurrencyTrackerBase* tracker(const wchar_t* name) {
        return dynamic_cast<DataItemCurrencyTrackerBase*>(
            KnownCollectionRegistry::getCurrencyTracker(name, true));
    }
    // An item of `value` from elsewhere (a client's), given up at the end.
    KyDiDynamicObject* valueItem(const KyRxValue& value) {
        m_made.push_back(createDataItem(KyString(), value));
        return m_made.back();
    }

private:
    std::vector<KyDiDynamicObject*> m_made;
};

}  // namespace kytest
