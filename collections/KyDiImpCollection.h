// Not part of the interface: the body of every collection, the items it shows
// and the context it filled them with. Used on its own as the body of a plain
// collection of an enumeration's values. The items are given up by the
// ownership rule of items: those the item cache keeps stay alive.
#pragma once

#include "kydi/KyDiDynamicObject.h"

class KyDiImpCollection {
public:
    KyDiImpCollection() : items(0, 8) {}
    // Gives up the items.
    virtual ~KyDiImpCollection();
    KyDiImpCollection(const KyDiImpCollection&) = delete;
    KyDiImpCollection& operator=(const KyDiImpCollection&) = delete;

    // Gives up every item and empties the list, keeping its block.
    void clearItems();

    // In display order.
    KyDiItemArray items;
    // Opaque to all but the class that fills it; 0 until a fill sets it.
    void* itemsContext = nullptr;
};
