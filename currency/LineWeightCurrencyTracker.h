// Not part of the interface: the tracker of the lineweight of new objects
// ("LINEWEIGHT", system variable CELWEIGHT), over the items of the
// lineweights' enumeration.
#pragma once

#include "currency/EnumCurrencyTrackerBase.h"
#include "db/KyDbEnums.h"

class LineWeightCurrencyTracker : public EnumCurrencyTrackerBase<KyDb::LineWeight> {
public:
    using EnumCurrencyTrackerBase::EnumCurrencyTrackerBase;

    int getEnumValue() override;
    void setEnumValue(int value) override;
    // The item of a lineweight; null for any other kind of value.
    KyDiDynamicObject* findItem(const KyDiEffectiveValue& value) override;
};
