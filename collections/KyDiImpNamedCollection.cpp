#include "collections/KyDiImpNamedCollection.h"

#include "kydi/KyDiFunctions.h"

int KyDiImpNamedCollection::subFindItem(const KyDiItemArray& list, KyDiDynamicObject* item) {
    const KyString name = KyDiGetItemName(item);
    for (int i = 0; i < list.length(); ++i) {
        if (KyDiGetItemName(list[i]).compare(name) == 0) {
            return i;
        }
    }
    return -1;
}

void KyDiImpNamedCollection::subMergeItems(KyDiItemArray& added, KyDiItemArray& removed,
                                           KyDiItemArray& /*modified*/, KyDiItemArray& newItems) {
    mergeByName(added, removed, newItems);
}
