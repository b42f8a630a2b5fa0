// KyDiObservableEnumCollection: the values of an enumeration (the
// lineweights) as items, with the current one as a tracker follows it.
#pragma once

#include "kydi/KyDiCollection.h"

class KyDiCurrencyReactor;

class KYDI_API KyDiObservableEnumCollection : public KyDiCollection {
public:
    explicit KyDiObservableEnumCollection(KyDiImpCollection* imp);
    ~KyDiObservableEnumCollection() override;

    // The current item as of the last refresh.
    KyDiDynamicObject* getCurrentItem() const;
    // Asks the tracker to make `item` current, within a document lock; the
    // change shows at a later refresh.
    void setCurrentItem(KyDiDynamicObject* item);

    // Told when the current item changed.
    void addReactor(KyDiCurrencyReactor* reactor);
    void removeReactor(KyDiCurrencyReactor* reactor);
};
