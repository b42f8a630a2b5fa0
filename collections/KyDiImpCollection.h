// Not part of the interface: the implementation behind a public collection,
// the items it shows and the context it filled them with. The items belong to
// the collection, except those the item cache keeps.
#pragma once

#include "kydi/KyDiDynamicObject.h"

class KyDiImpCollection {
public:
    KyDiImpCollection() : items(0, 8) {}
    // Gives up the items, each by the ownership rule of items.
    virtual ~KyDiImpCollection();
    KyDiImpCollection(const KyDiImpCollection&) = delete;
    KyDiImpCollection& operator=(const KyDiImpCollection&) = delete;

    KyDiItemArray items;
    void* itemsContext = nullptr;
};
