#include "currency/PlotStyleCurrencyTracker.h"

#include "base/resbuf.h"
#include "kydi/KyDiFunctions.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"
#include "sysvars/SysVarValueAccess.h"

KyDiDynamicObject* PlotStyleCurrencyTracker::getCurrentItem() {
    if (KyDiHostAccess::plotService() == nullptr) {
        return nullptr;
    }
    int type = KYRB_STRING;
    KyRxValue value;
    readSysVar(sysVarName().kwszPtr(), type, value);
    const KyString* name = valueCast<KyString>(&value);
    if (name == nullptr) {
        return nullptr;
    }
    // The drawing's plot style names are keys of a dictionary, which ignores
    // case.
    return firstItem([name](KyDiDynamicObject* item) {
        return KyDiGetItemName(item).compareNoCase(*name) == 0;
    });
}

void PlotStyleCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    if (item == nullptr || KyDiHostAccess::plotService() == nullptr) {
        return;
    }
    writeSysVar(sysVarName().kwszPtr(), KYRB_STRING, KyRxValue(KyDiGetItemName(item)));
}
