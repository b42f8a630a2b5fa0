#include "currency/ShadowDisplayCurrencyTracker.h"

#include "db/KyDbDatabase.h"

int ShadowDisplayCurrencyTracker::getEnumValue() {
    return static_cast<int>(KyDiHostAccess::workingDatabase()->cshadow());
}

void ShadowDisplayCurrencyTracker::setEnumValue(int value) {
    if (KyDbDatabase* db = KyDiHostAccess::workingDatabase()) {
        db->setCshadow(static_cast<KyDb::ShadowFlags>(value));
    }
}
