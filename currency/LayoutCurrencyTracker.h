// Not part of the interface: the tracker of the current layout among the
// drawing's layouts ("KYRO_LAYOUT"). The current item is the item of the
// layout record the working database has current; when its list has none, an
// item of no record stands in, one for the tracker's life. The layouts'
// currency is only read here: a layout is made current by its name ("LAYOUT").
#pragma once

#include "currency/LayoutCurrencyTrackerBase.h"

class LayoutCurrencyTracker : public LayoutCurrencyTrackerBase {
public:
    using LayoutCurrencyTrackerBase::LayoutCurrencyTrackerBase;
    // Gives up the stand-in item.
    ~LayoutCurrencyTracker() override;
    LayoutCurrencyTracker(const LayoutCurrencyTracker&) = delete;
    LayoutCurrencyTracker& operator=(const LayoutCurrencyTracker&) = delete;

    // Null without a working database.
    KyDiDynamicObject* getCurrentItem() override;

private:
    // The item of the null record, made when first needed.
    KyDiDynamicObject* m_unlistedItem = nullptr;
};
