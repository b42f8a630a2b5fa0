#include "currency/PlotStyleTableTypeCurrencyTracker.h"

#include "kydi/KyDiPlotService.h"

void PlotStyleTableTypeCurrencyTracker::getValue(KyRxValue& out) {
    readPlotText(&KyDiPlotService::getPlotStyleTableType, out);
}
