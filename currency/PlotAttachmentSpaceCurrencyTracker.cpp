#include "currency/PlotAttachmentSpaceCurrencyTracker.h"

#include "kydi/KyDiPlotService.h"

void PlotAttachmentSpaceCurrencyTracker::getValue(KyRxValue& out) {
    readPlotText(&KyDiPlotService::getPlotAttachmentSpace, out);
}
