#include "collections/KyDiImpRenderPresetCollection.h"

#include "kydi/KyDiRenderService.h"
#include "manager/host/KyDiHostAccess.h"

bool KyDiImpRenderPresetCollection::subFillFromDatabase(bool /*initial*/, KyDbDatabase* db,
                                                        KyDbObjectId& owner, KyDiItemArray& list,
                                                        KyArray<KyDbObjectId>& /*erased*/,
                                                        void** /*context*/) {
    if (!beginFill(db, owner, list)) {
        return false;
    }
    KyArray<KyDbObjectId> ids(0, 16);
    if (KyDiRenderService* render = KyDiHostAccess::renderService()) {
        render->getPresetIds(db, ids);
        render->getPresetDictionaryId(db, owner);
    }
    appendRecords(ids, list);
    return true;
}
