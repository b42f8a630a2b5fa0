// Not part of the interface: the tracker of the transparency of new objects
// ("TRANSPARENCY", system variable CETRANSPARENCY). It has no list: the item
// of a transparency is its value item, named ByLayer or ByBlock in the user's
// language, or by its percentage of transparency ("0" for opaque). An item is
// made current by a direct write of its value; no command.
#pragma once

#include "currency/DataItemCurrencyTrackerBase.h"

class KyCmTransparency;

class TransparencyCurrencyTracker : public DataItemCurrencyTrackerBase {
public:
    using DataItemCurrencyTrackerBase::DataItemCurrencyTrackerBase;

    // Null without a working database.
    KyDiDynamicObject* getCurrentItem() override;
    // A transparency that differs from the current one and is not the
    // marker of a value that could not be read.
    void setCurrentItem(KyDiDynamicObject* item) override;
    // The item of a transparency; null for any other kind of value.
    KyDiDynamicObject* findItem(const KyDiEffectiveValue& value) override;

private:
    // The value item of `transparency`, which the item factory keeps.
    static KyDiDynamicObject* makeItem(const KyCmTransparency& transparency);
};
