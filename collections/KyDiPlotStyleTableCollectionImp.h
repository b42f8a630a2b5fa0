// Not part of the interface: the named plot style tables the host offers
// ("PLOTSTYLETABLE"), by their names, from the host's plot service. When the
// current table may have changed, the list of plot styles
// ("KYRO_PLOTSTYLENAME") is told to read its table anew. A change of the
// drawing's content refills it, as the host may offer other tables.
#pragma once

#include "collections/KyDiImpNamedCollection.h"

class KyDiPlotStyleTableCollectionImp : public KyDiImpNamedCollection {
public:
    using KyDiImpNamedCollection::KyDiImpNamedCollection;

    bool subFill(bool initial, KyDbDatabase* db, KyDiItemArray& list, void** context) override;
    void requestCurrencyCheck() override;
    void subDrawingContentChanged() override;
};
