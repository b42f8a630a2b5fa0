#include "collections/KyDiImpCollection.h"

#include "objects/DataItemOwnership.h"

KyDiImpCollection::~KyDiImpCollection() {
    clearItems();
}

void KyDiImpCollection::clearItems() {
    // Taken out first: a reactor told of a deletion may look at the list.
    const KyDiItemArray doomed = items;
    items.setLogicalLength(0);
    for (int i = 0; i < doomed.length(); ++i) {
        DataItemOwnership::disposeDataItem(doomed[i]);
    }
}
