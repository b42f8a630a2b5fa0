// Not part of the interface: the tracker of how new objects cast and receive
// shadows ("SHADOWDISPLAY", system variable CSHADOW), over the items of the
// shadow flags' enumeration. It is reached by its name alone: the
// enumeration's collection is a plain list, without a current item.
#pragma once

#include "currency/EnumCurrencyTrackerBase.h"
#include "db/KyDbEnums.h"

class ShadowDisplayCurrencyTracker : public EnumCurrencyTrackerBase<KyDb::ShadowFlags> {
public:
    using EnumCurrencyTrackerBase::EnumCurrencyTrackerBase;

    int getEnumValue() override;
    void setEnumValue(int value) override;
};
