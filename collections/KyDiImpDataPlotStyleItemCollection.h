// Not part of the interface: the named plot styles a new object can take
// ("KYRO_PLOTSTYLENAME"). The list exists only in drawings with named plot
// styles. It begins with the reserved names ByLayer, ByBlock and Normal in
// the user's language (each the dictionary's entry when the drawing has one,
// or else an item of no record), then the styles that the current plot style
// table offers and the drawing's dictionary holds, in dictionary order. A
// change of the current table turns the next update into one reset: the
// table list marks it when its tracker hears of the change, and the list
// itself finds it at its own currency check when another layout, with
// another table, became current.
#pragma once

#include "collections/KyDiImpDictionaryItemCollection.h"

class KyDiPlotService;

class KyDiImpDataPlotStyleItemCollection : public KyDiImpDictionaryItemCollection {
public:
    using KyDiImpDictionaryItemCollection::KyDiImpDictionaryItemCollection;

    // Also false in a drawing with colour-dependent plot styles.
    bool isActive() const override;
    // The list of the table is to be read anew.
    void markTableChanged() { m_plotStyleTableChanged = true; }
    // Once after the table changed.
    bool subTooManyChanges() const override;
    // Also marks the table changed when the current one is not the one the
    // list was filled from.
    void requestCurrencyCheck() override;
    bool subFillFromDatabase(bool initial, KyDbDatabase* db, KyDbObjectId& owner,
                             KyDiItemArray& list, KyArray<KyDbObjectId>& erased,
                             void** context) override;

private:
    // Keeps the current table as the one the list was filled from.
    void noteFilledTable(KyDiPlotService* plot);

    // Asked, and cleared, by the update that follows.
    mutable bool m_plotStyleTableChanged = false;
    // The table of the last fill; empty before one, and without a table.
    KyString m_filledTable;
};
