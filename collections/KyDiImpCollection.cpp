#include "collections/KyDiImpCollection.h"

#include "objects/DataItemOwnership.h"

KyDiImpCollection::~KyDiImpCollection() {
    const KyDiItemArray doomed = std::move(items);
    items.removeAll();
    for (int i = 0; i < doomed.length(); ++i) {
        DataItemOwnership::disposeDataItem(doomed[i]);
    }
}
