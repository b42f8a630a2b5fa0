// KyDbLayerStateManager: the saved layer states of one database
// (KyDbDatabase::getLayerStateManager). The states are KyDbLayerState objects
// in a dictionary of their own under the named objects dictionary, at
// kDictionaryKey; their keys are their names, unique without regard to case.
// The dictionary comes into being with the first state saved (or when asked
// for with createIfNotPresent), as a plain KyDbDictionary appended to the
// database, which database reactors hear as objectAppended.
//
// The mask of a state says which properties it leaves out: a bit set leaves
// that property alone in a restore and out of a comparison, so a mask of 0
// covers everything. Bit kHidden marks a state kept out of lists; a hidden
// state's mask has the sign bit set as well (it is negative).
//
// Layers and viewports. A state names its layers; a layer of the drawing
// that the state does not list is left alone (unless a restore flag says
// otherwise), and a layer or linetype that the state names and the drawing
// lacks is passed by. The current layer is never frozen: a state that freezes
// it matches while it is thawed. Given a viewport entity (KyDbViewport) of
// the database, and a mask that covers kFrozen and kViewportFrozen, a state's
// "frozen" says whether the layer is hidden in that viewport: frozen, or
// frozen in the viewport alone. Saving then records a layer frozen in the
// viewport as frozen; a restore thaws a layer the state shows both
// everywhere and in the viewport, and hides a layer the state hides by
// freezing it in the viewport alone (a layer hidden already stays as it is).
// Any other id (null, an entity of another kind) means no viewport.
//
// Writes need what every write needs: a database that requires the document
// lock answers eLockViolation outside one, before anything changed.
#pragma once

#include <vector>

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbLayerState.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;

class KYPLATFORM_API KyDbLayerStateManager {
public:
    // The bits of a state's mask: the properties it leaves out, and hidden.
    enum MaskBit : int {
        kOff = 0x0001,
        kFrozen = 0x0002,
        kLocked = 0x0004,
        kPlottable = 0x0008,
        kColor = 0x0010,
        kLinetype = 0x0020,
        kLineWeight = 0x0040,
        kTransparency = 0x0080,
        kPlotStyle = 0x0100,
        // Leaves out the freezes of a viewport: in a viewport the state looks
        // only at the layers' own freeze.
        kViewportFrozen = 0x0200,
        kHidden = 0x8000,
    };
    // The flags of restoreLayerState.
    enum RestoreFlag : int {
        // Layers the state does not list are turned off (when it covers kOff).
        kTurnOffOthers = 0x1,
        // Layers the state does not list are frozen (when it covers kFrozen);
        // in a viewport, frozen in the viewport.
        kFreezeOthers = 0x2,
    };

    // The key of the layer states dictionary in the named objects dictionary.
    static const wchar_t* const kDictionaryKey;

    explicit KyDbLayerStateManager(KyDbDatabase* database);
    ~KyDbLayerStateManager();
    KyDbLayerStateManager(const KyDbLayerStateManager&) = delete;
    KyDbLayerStateManager& operator=(const KyDbLayerStateManager&) = delete;

    KyDbDatabase* database() const { return m_database; }

    // The layer states dictionary; null when the drawing has none and
    // `createIfNotPresent` is false, or when it can't be made.
    KyDbObjectId layerStatesDictionaryId(bool createIfNotPresent);
    bool hasLayerState(const KyString& name) const;
    // The state `name`, null when none.
    KyDbObjectId layerStateId(const KyString& name) const;

    // Saves the layers of the drawing as the state `name` with `mask`: a new
    // state, or the one of that name with its description kept.
    // eInvalidInput for an empty name.
    Kyro::ErrorStatus saveLayerState(const KyString& name, int mask, KyDbObjectId viewportId);
    // Erases the state. eKeyNotFound when there is none.
    Kyro::ErrorStatus deleteLayerState(const KyString& name);
    Kyro::ErrorStatus getLayerStateMask(const KyString& name, int& mask) const;
    Kyro::ErrorStatus setLayerStateMask(const KyString& name, int mask);

    // True while every layer the state lists matches it in what the mask
    // covers (the layers a restore with no flags would leave as they are);
    // false for an unknown name.
    bool compareLayerStateToDb(const KyString& name, KyDbObjectId viewportId) const;
    // Gives the layers what the state holds, for what `mask` covers (null:
    // the state's own mask), writing a layer only where a value differs. The
    // state itself is opened for write and counts as changed, so its
    // reactors hear objectClosed; it becomes the last restored state.
    // eKeyNotFound for an unknown name; the status of an open or a write
    // that fails.
    Kyro::ErrorStatus restoreLayerState(const KyString& name, KyDbObjectId viewportId,
                                        int restoreFlags, const int* mask = nullptr);
    // The state restored last in this session; eKeyNotFound when none was,
    // or it was deleted since.
    Kyro::ErrorStatus getLastRestoredLayerState(KyString& name, KyDbObjectId& id) const;

private:
    // Puts `rows` and `mask` into the state `name`, made when missing.
    Kyro::ErrorStatus writeLayerState(const KyString& name, int mask,
                                      const std::vector<KyDbLayerState::Layer>& rows);

    KyDbDatabase* m_database;
    KyString m_lastRestoredName;
    KyDbObjectId m_lastRestoredId;
};
