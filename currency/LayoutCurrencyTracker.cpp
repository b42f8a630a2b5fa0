#include "currency/LayoutCurrencyTracker.h"

#include "db/KyDbDatabase.h"
#include "kydi/KyDiDataItemFactory.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

LayoutCurrencyTracker::~LayoutCurrencyTracker() {
    deleteItem(m_unlistedItem);
}

KyDiDynamicObject* LayoutCurrencyTracker::getCurrentItem() {
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    if (db == nullptr) {
        return nullptr;
    }
    if (KyDiDynamicObject* listed = itemOfRecord(kydbCurrentLayoutId(db))) {
        return listed;
    }
    if (m_unlistedItem == nullptr) {
        m_unlistedItem = createDataItem(KyString(), KyRxValue(KyDbObjectId()));
    }
    return m_unlistedItem;
}
