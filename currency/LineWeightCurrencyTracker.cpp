#include "currency/LineWeightCurrencyTracker.h"

#include "db/KyDbDatabase.h"
#include "kydi/KyDiEffectiveValue.h"

int LineWeightCurrencyTracker::getEnumValue() {
    return static_cast<int>(KyDiHostAccess::workingDatabase()->celweight());
}

void LineWeightCurrencyTracker::setEnumValue(int value) {
    if (KyDbDatabase* db = KyDiHostAccess::workingDatabase()) {
        db->setCelweight(static_cast<KyDb::LineWeight>(value));
    }
}

KyDiDynamicObject* LineWeightCurrencyTracker::findItem(const KyDiEffectiveValue& value) {
    return value.kind == KyDiEffectiveValue::kLineWeight ? findEnumItem(value.lineWeight) : nullptr;
}
