#include "objects/DataItemOwnership.h"

#include "kydi/KyDiItem.h"
#include "manager/KyDiManagerState.h"
#include "manager/LocalDataItemCache.h"

void DataItemOwnership::disposeDataItem(KyDiDynamicObject* item) {
    if (item == nullptr) {
        return;
    }
    const LocalDataItemCache* cache = kydiManagerState().localItemCache;
    const auto* kept = kyrxCast<KyDiItem>(static_cast<KyRxObject*>(item));
    if (cache != nullptr && cache->keeps(kept)) {
        return;
    }
    delete item;
}
