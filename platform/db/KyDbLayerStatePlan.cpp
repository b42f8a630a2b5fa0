#include "db/KyDbLayerStatePlan.h"

#include "db/KyDbDatabase.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewport.h"

namespace {

using Manager = KyDbLayerStateManager;

// The ids of the layers of the drawing in table order.
KyArray<KyDbObjectId> layerIds(KyDbDatabase* database) {
    KyArray<KyDbObjectId> ids;
    KyDbObjectPointer<KyDbSymbolTable> table(database->layerTableId(), KyDb::kForRead);
    if (table) {
        table->getRecordIds(ids);
    }
    return ids;
}

KyString recordName(KyDbObjectId id) {
    KyDbObjectPointer<KyDbSymbolTableRecord> record(id, KyDb::kForRead);
    return record ? record->name() : KyString();
}

}  // namespace

KyDbLayerStatePlan::KyDbLayerStatePlan(KyDbDatabase* database, KyDbObjectId viewportId, int mask)
    : m_database(database), m_mask(mask) {
    if (!covers(Manager::kFrozen) || !covers(Manager::kViewportFrozen) ||
        viewportId.database() != database) {
        return;
    }
    KyDbObjectPointer<KyDbViewport> viewport(viewportId, KyDb::kForRead);
    if (viewport) {
        m_viewport = viewportId;
        viewport->getFrozenLayerList(m_frozenInViewport);
    }
}

bool KyDbLayerStatePlan::isHiddenInViewport(KyDbObjectId layerId,
                                            const KyDbLayerTableRecord& layer) const {
    return layer.isFrozen() || m_frozenInViewport.contains(layerId);
}

void KyDbLayerStatePlan::build(const KyDbLayerState& state, int flags) {
    const KyArray<KyDbObjectId> ids = layerIds(m_database);
    for (const KyDbObjectId& id : ids) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForRead);
        if (!layer) {
            continue;
        }
        if (const KyDbLayerState::Layer* row = state.findLayer(layer->name())) {
            planRow(id, *layer.object(), *row);
        } else {
            planOther(id, *layer.object(), flags);
        }
    }
}

void KyDbLayerStatePlan::planFrozen(KyDbObjectId layerId, const KyDbLayerTableRecord& layer,
                                    bool frozen, Change& change) {
    if (!covers(Manager::kFrozen)) {
        return;
    }
    if (m_viewport.isNull()) {
        // The current layer is never frozen.
        if (layer.isFrozen() != frozen && !(frozen && layerId == m_database->clayer())) {
            change.properties |= Manager::kFrozen;
            change.target.frozen = frozen;
        }
        return;
    }
    if (frozen) {
        if (!isHiddenInViewport(layerId, layer)) {
            m_freeze.append(layerId);
        }
        return;
    }
    if (layer.isFrozen()) {
        change.properties |= Manager::kFrozen;
        change.target.frozen = false;
    }
    if (m_frozenInViewport.contains(layerId)) {
        m_thaw.append(layerId);
    }
}

void KyDbLayerStatePlan::planRow(KyDbObjectId layerId, const KyDbLayerTableRecord& layer,
                                 const KyDbLayerState::Layer& row) {
    Change change;
    change.layer = layerId;
    change.target = row;
    if (covers(Manager::kOff) && layer.isOff() != row.off) {
        change.properties |= Manager::kOff;
    }
    planFrozen(layerId, layer, row.frozen, change);
    if (covers(Manager::kLocked) && layer.isLocked() != row.locked) {
        change.properties |= Manager::kLocked;
    }
    if (covers(Manager::kPlottable) && layer.isPlottable() != row.plottable) {
        change.properties |= Manager::kPlottable;
    }
    if (covers(Manager::kColor) && layer.color() != row.color) {
        change.properties |= Manager::kColor;
    }
    if (covers(Manager::kLinetype)) {
        // A linetype the drawing lacks is passed by.
        change.linetype = KyDbRecordReference::recordNamed(
            m_database, m_database->linetypeTableId(), row.linetype.kwszPtr());
        if (!change.linetype.isNull() && change.linetype != layer.linetypeObjectId()) {
            change.properties |= Manager::kLinetype;
        }
    }
    if (covers(Manager::kLineWeight) && layer.lineWeight() != row.lineWeight) {
        change.properties |= Manager::kLineWeight;
    }
    if (covers(Manager::kTransparency) && layer.transparency() != row.transparency) {
        change.properties |= Manager::kTransparency;
    }
    if (covers(Manager::kPlotStyle) && layer.plotStyleName() != row.plotStyle) {
        change.properties |= Manager::kPlotStyle;
    }
    if (change.properties != 0) {
        m_changes.push_back(change);
    }
}

void KyDbLayerStatePlan::planOther(KyDbObjectId layerId, const KyDbLayerTableRecord& layer,
                                   int flags) {
    Change change;
    change.layer = layerId;
    if ((flags & Manager::kTurnOffOthers) != 0 && covers(Manager::kOff) && !layer.isOff()) {
        change.properties |= Manager::kOff;
        change.target.off = true;
    }
    if ((flags & Manager::kFreezeOthers) != 0) {
        planFrozen(layerId, layer, true, change);
    }
    if (change.properties != 0) {
        m_changes.push_back(change);
    }
}

Kyro::ErrorStatus KyDbLayerStatePlan::apply() const {
    for (const Change& change : m_changes) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(change.layer, KyDb::kForWrite);
        if (!layer) {
            return layer.openStatus();
        }
        const KyDbLayerState::Layer& target = change.target;
        Kyro::ErrorStatus status = Kyro::eOk;
        // Writes one property when the plan has it, until a write fails.
        const auto write = [&change, &status](int bit, auto&& set) {
            if (status == Kyro::eOk && (change.properties & bit) != 0) {
                status = set();
            }
        };
        write(Manager::kOff, [&] { return layer->setIsOff(target.off); });
        write(Manager::kFrozen, [&] { return layer->setIsFrozen(target.frozen); });
        write(Manager::kLocked, [&] { return layer->setIsLocked(target.locked); });
        write(Manager::kPlottable, [&] { return layer->setIsPlottable(target.plottable); });
        write(Manager::kColor, [&] { return layer->setColor(target.color); });
        write(Manager::kLinetype, [&] { return layer->setLinetypeObjectId(change.linetype); });
        write(Manager::kLineWeight, [&] { return layer->setLineWeight(target.lineWeight); });
        write(Manager::kTransparency, [&] { return layer->setTransparency(target.transparency); });
        write(Manager::kPlotStyle,
              [&] { return layer->setPlotStyleName(target.plotStyle.kwszPtr()); });
        if (status != Kyro::eOk) {
            return status;
        }
    }
    if (m_thaw.isEmpty() && m_freeze.isEmpty()) {
        return Kyro::eOk;
    }
    KyDbObjectPointer<KyDbViewport> viewport(m_viewport, KyDb::kForWrite);
    if (!viewport) {
        return viewport.openStatus();
    }
    if (!m_thaw.isEmpty()) {
        if (const Kyro::ErrorStatus status = viewport->thawLayersInViewport(m_thaw);
            status != Kyro::eOk) {
            return status;
        }
    }
    return m_freeze.isEmpty() ? Kyro::eOk : viewport->freezeLayersInViewport(m_freeze);
}

std::vector<KyDbLayerState::Layer> KyDbLayerStatePlan::rowsOfDrawing() const {
    std::vector<KyDbLayerState::Layer> rows;
    const KyArray<KyDbObjectId> ids = layerIds(m_database);
    for (const KyDbObjectId& id : ids) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForRead);
        if (!layer) {
            continue;
        }
        KyDbLayerState::Layer row;
        row.name = layer->name();
        row.off = layer->isOff();
        row.frozen =
            m_viewport.isNull() ? layer->isFrozen() : isHiddenInViewport(id, *layer.object());
        row.locked = layer->isLocked();
        row.plottable = layer->isPlottable();
        row.color = layer->color();
        row.linetype = recordName(layer->linetypeObjectId());
        row.lineWeight = layer->lineWeight();
        row.transparency = layer->transparency();
        row.plotStyle = layer->plotStyleName();
        rows.push_back(row);
    }
    return rows;
}
