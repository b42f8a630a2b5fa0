#include "currency/LayoutPageSetupCurrencyTracker.h"

#include "kydi/KyDiPlotService.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

KyDiDynamicObject* LayoutPageSetupCurrencyTracker::getCurrentItem() {
    if (KyDiHostAccess::plotService() == nullptr) {
        return nullptr;
    }
    // A layout without a page setup of its own has the empty name.
    KyRxValue name(KyString{});
    getValue(name);
    return showValue(name);
}

void LayoutPageSetupCurrencyTracker::getValue(KyRxValue& out) {
    readPlotText(&KyDiPlotService::getPageSetupName, out);
}
