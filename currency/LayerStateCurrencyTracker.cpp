#include "currency/LayerStateCurrencyTracker.h"

#include "collections/KyDiImpLayerCollection.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbUndoController.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiHost.h"
#include "kydi/KyDiLayerService.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydi/KyDiRegenerationService.h"
#include "kydi/KyDiViewportService.h"
#include "manager/KnownCollectionRegistry.h"
#include "manager/host/KyDiHostAccess.h"

namespace {

// The viewport entity whose freezes a state is compared with; null without
// one or without the service.
KyDbObjectId currentViewport() {
    KyDbObjectId id;
    if (KyDiViewportService* viewports = KyDiHostAccess::viewportService()) {
        if (viewports->viewportId(id) != Kyro::eOk) {
            id.setNull();
        }
    }
    return id;
}

KyDbLayerStateManager* layerStates() {
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    return db != nullptr ? db->getLayerStateManager() : nullptr;
}

}  // namespace

KyDiDynamicObject* LayerStateCurrencyTracker::getCurrentItem() {
    KyDbLayerStateManager* states = layerStates();
    if (states == nullptr) {
        return nullptr;
    }
    KyString name;
    KyDbObjectId id;
    if (states->getLastRestoredLayerState(name, id) != Kyro::eOk || name.isEmpty()) {
        return nullptr;
    }
    int mask = KyDbLayerStateManager::kHidden;
    if (states->getLayerStateMask(name, mask) != Kyro::eOk ||
        (mask & KyDbLayerStateManager::kHidden) != 0 ||
        KyDiHostAccess::viewportService() == nullptr) {
        return nullptr;
    }
    // Current only as long as nothing has drifted from it.
    if (!states->compareLayerStateToDb(name, currentViewport())) {
        return nullptr;
    }
    return itemOfRecord(id);
}

KyDiImpLayerCollection* LayerStateCurrencyTracker::findLayerCollection() {
    KyDiObservableCollection* layers = KnownCollectionRegistry::getKnownCollection(L"LAYER");
    return layers != nullptr ? dynamic_cast<KyDiImpLayerCollection*>(layers->imp()) : nullptr;
}

void LayerStateCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    KyDbLayerStateManager* states = db != nullptr ? db->getLayerStateManager() : nullptr;
    if (dbItem == nullptr || dbItem->objectId().isNull() || states == nullptr) {
        return;
    }
    KyString name;
    {
        KyDbObjectPointer<KyDbDictionary> dictionary(states->layerStatesDictionaryId(false),
                                                     KyDb::kForRead);
        if (dictionary.openStatus() != Kyro::eOk ||
            dictionary->nameAt(dbItem->objectId(), name) != Kyro::eOk) {
            return;
        }
    }
    int mask = 0;
    if (states->getLayerStateMask(name, mask) != Kyro::eOk) {
        return;
    }
    const KyDbObjectId viewportId = currentViewport();
    KyDiLayerService* layerService = KyDiHostAccess::layerService();
    if (layerService == nullptr) {
        return;
    }
    KyDiEditorService* editor = KyDiHostAccess::editor();
    const wchar_t* label = editor != nullptr ? editor->localCommandName(L"-LAYER") : nullptr;

    // The layers are written here, not by a command: the document is locked
    // for the length of the restore, which is one step of undo.
    const KyAxDocLock lock(db);
    KyDbUndoController* undo = db->undoController();
    if (undo != nullptr) {
        undo->beginUndoGroup(KyDbUndoController::kBeginGroupCode, label);
    }
    if (m_layerCollection == nullptr) {
        m_layerCollection = findLayerCollection();
    }
    if (states->restoreLayerState(name, viewportId, layerService->restoreFlags(), &mask) !=
        Kyro::eOk) {
        if (undo != nullptr) {
            undo->endUndoGroup(KyDbUndoController::kEndGroupCode);
        }
        return;
    }
    if (m_layerCollection == nullptr) {
        m_layerCollection = findLayerCollection();
    }
    // The layers the restore changed are those the layer list heard close.
    KyArray<KyDbObjectId> changed;
    if (m_layerCollection != nullptr) {
        for (const KyDbObjectId& id : m_layerCollection->pendingObjects()) {
            changed.append(id);
        }
    }
    KyDiHost* host = KyDiHostAccess::host();
    KyDiRegenerationService* regeneration = host != nullptr ? host->regenerationService() : nullptr;
    if (!changed.isEmpty() && regeneration != nullptr) {
        regeneration->regenLayers(changed, regeneration->regenMode());
    }
    if (editor != nullptr) {
        editor->prompt(L"");
    }
    if (undo != nullptr) {
        undo->endUndoGroup(KyDbUndoController::kEndGroupCode);
    }
}
