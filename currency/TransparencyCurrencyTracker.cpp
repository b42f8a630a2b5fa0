#include "currency/TransparencyCurrencyTracker.h"

#include "db/KyCmTransparency.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbReservedStrings.h"
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
    KyString name;
    switch (transparency.method()) {
        case KyCmTransparency::kByLayer:
            name = kydbGetReservedString(KyDb::kByLayer, true);
            break;
        case KyCmTransparency::kByBlock:
            name = kydbGetReservedString(KyDb::kByBlock, true);
            break;
        default:
            // The transparency in whole percent, rounded down:
            // alpha 255 (opaque) is "0", alpha 0 "100".
            name = KyString::formatted(L"%d", (25500 - transparency.alpha() * 100) / 255);
            break;
    }
    return createDataItem(name, KyRxValue(transparency));
}
