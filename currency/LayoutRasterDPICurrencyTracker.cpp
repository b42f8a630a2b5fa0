#include "currency/LayoutRasterDPICurrencyTracker.h"

#include "base/resbuf.h"
#include "kydi/KyDiPlotService.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"
#include "sysvars/SysVarValueAccess.h"

void LayoutRasterDPICurrencyTracker::getValue(KyRxValue& out) {
    KyDiPlotService* plot = KyDiHostAccess::plotService();
    short dpi = 0;
    if (plot != nullptr && plot->getRasterDpi(dpi) && dpi != 0) {
        out = dpi;
        return;
    }
    int type = KYRB_SHORT;
    readSysVar(sysVarName().kwszPtr(), type, out);
}

void LayoutRasterDPICurrencyTracker::setValue(const KyRxValue& value) {
    const short* dpi = valueCast<short>(&value);
    if (dpi == nullptr) {
        return;
    }
    KyDiPlotService* plot = KyDiHostAccess::plotService();
    if (plot == nullptr || !plot->setRasterDpi(*dpi)) {
        writeSysVar(sysVarName().kwszPtr(), KYRB_SHORT, value);
    }
}
