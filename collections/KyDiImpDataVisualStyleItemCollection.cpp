#include "collections/KyDiImpDataVisualStyleItemCollection.h"

#include "db/KyDbDatabase.h"
#include "kydi/KyDiVisualStyleService.h"
#include "manager/host/KyDiHostAccess.h"

bool KyDiImpDataVisualStyleItemCollection::subFillFromDatabase(bool /*initial*/, KyDbDatabase* db,
                                                               KyDbObjectId& owner,
                                                               KyDiItemArray& list,
                                                               KyArray<KyDbObjectId>& /*erased*/,
                                                               void** /*context*/) {
    if (!beginFill(db, owner, list)) {
        return false;
    }
    owner = db->visualStyleDictionaryId();
    KyArray<KyDbObjectId> ids(0, 16);
    if (KyDiVisualStyleService* styles = KyDiHostAccess::visualStyleService()) {
        styles->getListedStyles(db, ids);
    }
    appendRecords(ids, list);
    return true;
}
