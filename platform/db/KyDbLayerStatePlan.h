// Internal to the drawing database; not part of the platform's interface.
//
// KyDbLayerStatePlan: what the layers of a drawing lack to match a layer
// state (KyDbLayerStateManager tells the rules): for each layer, the
// properties that differ and the values they are to take, and the layers to
// thaw or freeze in the viewport. A comparison asks whether the plan of a
// state is empty; a restore applies it, so the two never disagree.
//
// It also makes the rows a state saves from the drawing, by the same rules
// for viewports.
#pragma once

#include <vector>

#include "base/KyArray.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbLayerState.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyDbLayerTableRecord;

class KyDbLayerStatePlan {
public:
    // `viewportId` counts only as a viewport entity of `database` and with a
    // mask that covers the freeze in viewports.
    KyDbLayerStatePlan(KyDbDatabase* database, KyDbObjectId viewportId, int mask);

    // Works out the changes `state` asks for, with the restore flags `flags`.
    void build(const KyDbLayerState& state, int flags);
    bool isEmpty() const { return m_changes.empty() && m_thaw.isEmpty() && m_freeze.isEmpty(); }
    // Makes the changes; the status of the first open or write that fails.
    Kyro::ErrorStatus apply() const;

    // One row for each layer of the drawing, in table order.
    std::vector<KyDbLayerState::Layer> rowsOfDrawing() const;

private:
    struct Change {
        KyDbObjectId layer;
        KyDbLayerState::Layer target;
        KyDbObjectId linetype;
        int properties = 0;  // KyDbLayerStateManager::MaskBit of what to write
    };

    // True when the mask covers `bit`.
    bool covers(int bit) const { return (m_mask & bit) == 0; }
    // True when the layer is hidden in the viewport of the plan.
    bool isHiddenInViewport(KyDbObjectId layerId, const KyDbLayerTableRecord& layer) const;
    void planRow(KyDbObjectId layerId, const KyDbLayerTableRecord& layer,
                 const KyDbLayerState::Layer& row);
    void planOther(KyDbObjectId layerId, const KyDbLayerTableRecord& layer, int flags);
    void planFrozen(KyDbObjectId layerId, const KyDbLayerTableRecord& layer, bool frozen,
                    Change& change);

    KyDbDatabase* m_database;
    KyDbObjectId m_viewport;  // null unless it counts
    KyArray<KyDbObjectId> m_frozenInViewport;
    int m_mask;
    std::vector<Change> m_changes;
    KyArray<KyDbObjectId> m_thaw;
    KyArray<KyDbObjectId> m_freeze;
};
