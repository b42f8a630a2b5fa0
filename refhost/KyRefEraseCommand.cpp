#include "KyRefEraseCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefObjectSelection.h"
#include "KyRefSelectionService.h"
#include "db/KyDbEntity.h"

void KyRefEraseCommand::run(KyRefCommandContext& context) {
    const std::vector<KyDbObjectId> ids =
        KyRefObjectSelection::leaveOutLocked(context, KyRefObjectSelection::pick(context));
    KyRefObjectSelection::change<KyDbEntity>(ids, [](KyDbEntity& entity) { entity.erase(true); });
    if (KyRefSelectionService* selection = context.host().selectionService()) {
        selection->clear();
    }
}
