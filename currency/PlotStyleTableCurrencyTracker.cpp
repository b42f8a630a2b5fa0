#include "currency/PlotStyleTableCurrencyTracker.h"

#include "kydi/KyDiPlotService.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

KyDiDynamicObject* PlotStyleTableCurrencyTracker::getCurrentItem() {
    if (KyDiHostAccess::plotService() == nullptr) {
        return nullptr;
    }
    KyRxValue value;
    getValue(value);
    // Table names are file names, which the host takes without regard to case.
    const KyString name = value.text();
    if (KyDiDynamicObject* listed = firstItem([&name](KyDiDynamicObject* item) {
            return valueTextOf(item).compareNoCase(name) == 0;
        })) {
        return listed;
    }
    return showValue(value);
}

void PlotStyleTableCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    KyDiPlotService* plot = KyDiHostAccess::plotService();
    const KyString name = valueTextOf(item);
    if (item != nullptr && plot != nullptr && !name.isEmpty()) {
        plot->setPlotStyleTable(&name);
    }
}

void PlotStyleTableCurrencyTracker::getValue(KyRxValue& out) {
    readPlotText(&KyDiPlotService::getPlotStyleTable, out);
}
