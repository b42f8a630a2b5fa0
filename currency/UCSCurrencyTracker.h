// Not part of the interface: the tracker of the user coordinate systems
// ("UCS_PLANES"). The host's UCS service names the current one. A named UCS
// of the drawing is the item of its record; World and the orthographic planes
// have no record, and each time one of them is current the tracker makes an
// item of its own for it, which lives as long as the tracker. A UCS is made
// current by the UCS command: a named one by Named Restore, World and the
// planes by their keywords.
#pragma once

#include "currency/DataItemCurrencyTracker.h"

class UCSCurrencyTracker : public DataItemCurrencyTracker {
public:
    UCSCurrencyTracker(const wchar_t* collectionName, const wchar_t* sysVarName,
                       const wchar_t* commandFormat, Getter getter, Setter setter);
    // Gives up the items made for UCSs without a record.
    ~UCSCurrencyTracker() override;
    UCSCurrencyTracker(const UCSCurrencyTracker&) = delete;
    UCSCurrencyTracker& operator=(const UCSCurrencyTracker&) = delete;

    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;

private:
    // Items made for UCSs without a record, owned.
    KyDiItemArray m_transientItems;
};
