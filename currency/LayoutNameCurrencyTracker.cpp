#include "currency/LayoutNameCurrencyTracker.h"

#include "base/resbuf.h"
#include "kydi/KyDiPlotService.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"
#include "sysvars/SysVarValueAccess.h"

void LayoutNameCurrencyTracker::getValue(KyRxValue& out) {
    int type = KYRB_STRING;
    readSysVar(sysVarName().kwszPtr(), type, out);
}

void LayoutNameCurrencyTracker::setValue(const KyRxValue& value) {
    KyDiPlotService* plot = KyDiHostAccess::plotService();
    const KyString* name = valueCast<KyString>(&value);
    if (plot != nullptr && name != nullptr && !name->isEmpty() && plot->setLayoutByName(*name)) {
        notifyReactors();
    }
}
