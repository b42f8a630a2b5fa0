#include "collections/KyDiPlotStyleTableCollectionImp.h"

#include "collections/KyDiImpDataPlotStyleItemCollection.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydi/KyDiPlotService.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

bool KyDiPlotStyleTableCollectionImp::subFill(bool /*initial*/, KyDbDatabase* db,
                                              KyDiItemArray& list, void** /*context*/) {
    list.setLogicalLength(0);
    if (db == nullptr) {
        return false;
    }
    KyDiPlotService* plot = KyDiHostAccess::plotService();
    if (plot == nullptr) {
        return true;
    }
    KyArray<KyString> names(0, 8);
    plot->listPlotStyleTables(names, true, false);
    for (int i = 0; i < names.length(); ++i) {
        if (KyDiDynamicObject* item = createDataItem(names[i], KyRxValue())) {
            list.append(item);
        }
    }
    return true;
}

void KyDiPlotStyleTableCollectionImp::subDrawingContentChanged() {
    requestRefill();
}

void KyDiPlotStyleTableCollectionImp::requestCurrencyCheck() {
    KyDiImpNamedCollection::requestCurrencyCheck();
    KyDiObservableCollection* styles = KyDiManager::getKnownCollection(L"KYRO_PLOTSTYLENAME");
    if (auto* body = styles != nullptr
                         ? dynamic_cast<KyDiImpDataPlotStyleItemCollection*>(styles->imp())
                         : nullptr) {
        body->markTableChanged();
    }
}
