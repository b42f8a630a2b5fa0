// KyDiCollectionReactor: what a client of a collection is told, at the
// refresh pass after the drawing changed. Every operation does nothing by
// default.
//
// One update of a collection tells, in this order: either collectionReset
// (the list was built anew) or itemsChanged and then itemsModified; then
// activeChanged when the collection's activity changed; then
// currentItemChanged when its current item changed. Removed items are still
// alive during the calls; they go once every reactor has returned.
#pragma once

#include "kydi/KyDiDynamicObject.h"

class KYDI_API KyDiCollectionReactor {
public:
    KyDiCollectionReactor();
    virtual ~KyDiCollectionReactor();

    // The items now are the old ones less `removed`, plus `added`.
    virtual void itemsChanged(const KyDiItemArray& added, const KyDiItemArray& removed);
    // These items stand for records that changed (a new name, a new colour).
    virtual void itemsModified(const KyDiItemArray& modified);
    // The list was built anew: read it again.
    virtual void collectionReset();
    virtual void currentItemChanged(KyDiDynamicObject* item);
    // The collection stands (or no longer stands) for a drawing in front.
    virtual void activeChanged(bool active);
};
