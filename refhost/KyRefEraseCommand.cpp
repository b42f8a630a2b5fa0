#include "KyRefEraseCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "KyRefSelectionService.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"

namespace {

bool isPickFirstOn(KyRefHost& host) {
    KyRefResbufPtr value;
    return host.sysVars().get(L"PICKFIRST", value) == KyRefSysVarStatus::kOk &&
           value->resval.rint != 0;
}

}  // namespace

void KyRefEraseCommand::run(KyRefCommandContext& context) {
    KyRefSelectionService* selection = context.host().selectionService();
    std::vector<KyDbObjectId> ids;
    if (selection != nullptr && isPickFirstOn(context.host()) && selection->hasSelection()) {
        ids = selection->selection();
        context.message(L"%d found", static_cast<int>(ids.size()));
    } else {
        ids = context.readEntities(L"Select objects: ");
    }
    int locked = 0;
    for (const KyDbObjectId& id : ids) {
        KyDbObjectPointer<KyDbEntity> entity(id, KyDb::kForWrite);
        if (!entity) {
            continue;
        }
        KyRefReadAccess<KyDbLayerTableRecord> layer(entity->layerId());
        if (layer && layer->isLocked()) {
            ++locked;
            continue;
        }
        entity->erase(true);
    }
    if (locked > 0) {
        context.message(locked == 1 ? L"%d was on a locked layer." : L"%d were on a locked layer.",
                        locked);
    }
    if (selection != nullptr) {
        selection->clear();
    }
}
