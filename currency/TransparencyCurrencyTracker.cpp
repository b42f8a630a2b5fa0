#include "currency/TransparencyCurrencyTracker.h"

#include "db/KyCmTransparency.h"
#include "db/KyDbDatabase.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiEffectiveValue.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

KyDiDynamicObject* TransparencyCurrencyTracker::getCurrentItem() {
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    return db != nullptr ? makeItem(db->cetransparency()) : nullptr;
}

void TransparencyCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    const KyCmTransparency* wanted =
        item != nullptr ? valueCast<KyCmTransparency>(item->value()) : nullptr;
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    if (wanted != nullptr && db != nullptr && *wanted != db->cetransparency() &&
        wanted->method() != KyCmTransparency::kErrorValue) {
        db->setCetransparency(*wanted);
    }
}

KyDiDynamicObject* TransparencyCurrencyTracker::findItem(const KyDiEffectiveValue& value) {
    return value.kind == KyDiEffectiveValue::kTransparency ? makeItem(value.transparency) : nullptr;
}

KyDiDynamicObject* TransparencyCurrencyTracker::makeItem(const KyCmTransparency& transparency) {
    // The factory names it as a transparency's item is named.
    return createDataItem(KyString(), KyRxValue(transparency));
}
