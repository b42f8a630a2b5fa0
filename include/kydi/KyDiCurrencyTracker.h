// KyDiCurrencyTracker: which item of a collection is current, and how
// another one is made current. The host keeps currency in many places (a
// header field of the drawing, a system variable, a host service); a tracker
// hides where. The manager owns every tracker.
#pragma once

#include "kydi/KyDiExport.h"

class KyDiCurrencyReactor;
class KyDiDynamicObject;

class KYDI_API KyDiCurrencyTracker {
public:
    KyDiCurrencyTracker();
    virtual ~KyDiCurrencyTracker();
    KyDiCurrencyTracker(const KyDiCurrencyTracker&) = delete;
    KyDiCurrencyTracker& operator=(const KyDiCurrencyTracker&) = delete;

    // The current item among the items of the tracker's collection; null
    // when none of them is current.
    virtual KyDiDynamicObject* getCurrentItem() = 0;
    // Makes `item` current, by the command a user would type or by a direct
    // write; nothing has changed when it returns.
    virtual void setCurrentItem(KyDiDynamicObject* item) = 0;
    // Brings what the tracker keeps up to date; the default keeps nothing.
    virtual void update();
    virtual void addReactor(KyDiCurrencyReactor* reactor) = 0;
    virtual void removeReactor(KyDiCurrencyReactor* reactor) = 0;
};
