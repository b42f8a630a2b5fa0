#include "KyRefObjectSelection.h"

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "KyRefSelectionService.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayerTableRecord.h"

namespace {

bool isPickFirstOn(KyRefHost& host) {
    KyRefResbufPtr value;
    return host.sysVars().get(L"PICKFIRST", value) == KyRefSysVarStatus::kOk &&
           value->resval.rint != 0;
}

bool isEntity(const KyDbObjectId& id) {
    return id.objectClass() != nullptr && id.objectClass()->isDerivedFrom(KyDbEntity::desc());
}

}  // namespace

std::vector<KyDbObjectId> KyRefObjectSelection::pick(KyRefCommandContext& context) {
    KyRefSelectionService* selection = context.host().selectionService();
    if (selection == nullptr || !isPickFirstOn(context.host()) || !selection->hasSelection()) {
        return context.readEntities(L"Select objects: ");
    }
    std::vector<KyDbObjectId> ids;
    for (const KyDbObjectId& id : selection->selection()) {
        if (isEntity(id)) {
            ids.push_back(id);
        }
    }
    context.message(L"%d found", static_cast<int>(ids.size()));
    return ids;
}

std::vector<KyDbObjectId> KyRefObjectSelection::leaveOutLocked(
    KyRefCommandContext& context, const std::vector<KyDbObjectId>& ids) {
    std::vector<KyDbObjectId> kept;
    int locked = 0;
    for (const KyDbObjectId& id : ids) {
        KyRefReadAccess<KyDbEntity> entity(id);
        if (!entity) {
            continue;
        }
        KyRefReadAccess<KyDbLayerTableRecord> layer(entity->layerId());
        if (layer && layer->isLocked()) {
            ++locked;
            continue;
        }
        kept.push_back(id);
    }
    if (locked > 0) {
        context.message(locked == 1 ? L"%d was on a locked layer." : L"%d were on a locked layer.",
                        locked);
    }
    return kept;
}

void KyRefObjectSelection::changeProperties(KyRefCommandContext& context,
                                            std::span<const Property> properties) {
    const std::vector<KyDbObjectId> ids = leaveOutLocked(context, pick(context));
    std::vector<KyRefKeyword> keywords;
    for (const Property& property : properties) {
        keywords.push_back(property.keyword);
    }
    const KyString prompt = KyString::formatted(L"Enter property to change %ls: ",
                                                KyRefKeywords::options(keywords).kwszPtr());
    for (;;) {
        const int chosen = context.readKeyword(prompt, keywords, true);
        if (chosen < 0) {
            return;
        }
        properties[static_cast<std::size_t>(chosen)].change(context, ids);
    }
}
