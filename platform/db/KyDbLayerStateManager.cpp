#include "db/KyDbLayerStateManager.h"

#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLayerState.h"
#include "db/KyDbLayerStatePlan.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbUndoController.h"

const wchar_t* const KyDbLayerStateManager::kDictionaryKey = L"KYRO_LAYERSTATES";

KyDbLayerStateManager::KyDbLayerStateManager(KyDbDatabase* database) : m_database(database) {}

KyDbLayerStateManager::~KyDbLayerStateManager() = default;

KyDbObjectId KyDbLayerStateManager::layerStatesDictionaryId(bool createIfNotPresent) {
    KyDbObjectId id = m_database->namedObjectsEntryId(kDictionaryKey);
    if (!id.isNull() || !createIfNotPresent) {
        return id;
    }
    KyDbObjectPointer<KyDbDictionary> root(m_database->namedObjectsDictionaryId(), KyDb::kForWrite);
    if (!root) {
        return KyDbObjectId();
    }
    auto* dictionary = new KyDbDictionary();
    if (root->setAt(kDictionaryKey, dictionary, id) != Kyro::eOk) {
        delete dictionary;
        return KyDbObjectId();
    }
    dictionary->close();
    return id;
}

KyDbObjectId KyDbLayerStateManager::layerStateId(const KyString& name) const {
    const KyDbObjectId dictionaryId = m_database->namedObjectsEntryId(kDictionaryKey);
    KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForRead);
    KyDbObjectId id;
    if (!dictionary || name.isEmpty() || dictionary->getAt(name.kwszPtr(), id) != Kyro::eOk ||
        id.objectClass() != KyDbLayerState::desc()) {
        return KyDbObjectId();
    }
    return id;
}

bool KyDbLayerStateManager::hasLayerState(const KyString& name) const {
    return !layerStateId(name).isNull();
}

Kyro::ErrorStatus KyDbLayerStateManager::saveLayerState(const KyString& name, int mask,
                                                        KyDbObjectId viewportId) {
    if (name.isEmpty()) {
        return Kyro::eInvalidInput;
    }
    if (const Kyro::ErrorStatus status = m_database->checkWriteLock(); status != Kyro::eOk) {
        return status;
    }
    // The dictionary that the first save makes and the state are one step
    // of undo.
    KyDbUndoController* undo = m_database->undoController();
    undo->beginUndoGroup();
    const Kyro::ErrorStatus status = writeLayerState(
        name, mask, KyDbLayerStatePlan(m_database, viewportId, mask).rowsOfDrawing());
    undo->endUndoGroup();
    return status;
}

Kyro::ErrorStatus KyDbLayerStateManager::writeLayerState(
    const KyString& name, int mask, const std::vector<KyDbLayerState::Layer>& rows) {
    if (const KyDbObjectId existing = layerStateId(name); !existing.isNull()) {
        KyDbObjectPointer<KyDbLayerState> state(existing, KyDb::kForWrite);
        if (!state) {
            return state.openStatus();
        }
        if (const Kyro::ErrorStatus status = state->setMask(mask); status != Kyro::eOk) {
            return status;
        }
        return state->setLayers(rows);
    }
    KyDbObjectPointer<KyDbDictionary> dictionary(layerStatesDictionaryId(true), KyDb::kForWrite);
    if (!dictionary) {
        return dictionary.openStatus();
    }
    auto* state = new KyDbLayerState();
    state->setMask(mask);
    if (const Kyro::ErrorStatus status = state->setLayers(rows); status != Kyro::eOk) {
        delete state;
        return status;
    }
    KyDbObjectId id;
    if (const Kyro::ErrorStatus status = dictionary->setAt(name.kwszPtr(), state, id);
        status != Kyro::eOk) {
        delete state;
        return status;
    }
    return state->close();
}

Kyro::ErrorStatus KyDbLayerStateManager::deleteLayerState(const KyString& name) {
    const KyDbObjectId id = layerStateId(name);
    if (id.isNull()) {
        return Kyro::eKeyNotFound;
    }
    KyDbObjectPointer<KyDbLayerState> state(id, KyDb::kForWrite);
    return state ? state->erase(true) : state.openStatus();
}

Kyro::ErrorStatus KyDbLayerStateManager::getLayerStateMask(const KyString& name, int& mask) const {
    KyDbObjectPointer<KyDbLayerState> state(layerStateId(name), KyDb::kForRead);
    if (!state) {
        return Kyro::eKeyNotFound;
    }
    mask = state->mask();
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerStateManager::setLayerStateMask(const KyString& name, int mask) {
    const KyDbObjectId id = layerStateId(name);
    if (id.isNull()) {
        return Kyro::eKeyNotFound;
    }
    KyDbObjectPointer<KyDbLayerState> state(id, KyDb::kForWrite);
    return state ? state->setMask(mask) : state.openStatus();
}

bool KyDbLayerStateManager::compareLayerStateToDb(const KyString& name,
                                                  KyDbObjectId viewportId) const {
    KyDbObjectPointer<KyDbLayerState> state(layerStateId(name), KyDb::kForRead);
    if (!state) {
        return false;
    }
    KyDbLayerStatePlan plan(m_database, viewportId, state->mask());
    plan.build(*state.object(), 0);
    return plan.isEmpty();
}

Kyro::ErrorStatus KyDbLayerStateManager::restoreLayerState(const KyString& name,
                                                           KyDbObjectId viewportId,
                                                           int restoreFlags, const int* mask) {
    const KyDbObjectId id = layerStateId(name);
    if (id.isNull()) {
        return Kyro::eKeyNotFound;
    }
    // The state is opened first: without the lock nothing has changed yet.
    KyDbObjectPointer<KyDbLayerState> state(id, KyDb::kForWrite);
    if (!state) {
        return state.openStatus();
    }
    KyDbLayerStatePlan plan(m_database, viewportId, mask != nullptr ? *mask : state->mask());
    plan.build(*state.object(), restoreFlags);
    if (const Kyro::ErrorStatus status = plan.apply(); status != Kyro::eOk) {
        return status;
    }
    KyDbObjectPointer<KyDbDictionary> dictionary(state->ownerId(), KyDb::kForRead);
    if (!dictionary || dictionary->nameAt(id, m_lastRestoredName) != Kyro::eOk) {
        m_lastRestoredName = name;
    }
    m_lastRestoredId = id;
    return state->noteRestored();
}

Kyro::ErrorStatus KyDbLayerStateManager::getLastRestoredLayerState(KyString& name,
                                                                   KyDbObjectId& id) const {
    if (m_lastRestoredId.isNull() || !m_lastRestoredId.isValid() || m_lastRestoredId.isErased()) {
        return Kyro::eKeyNotFound;
    }
    // The state's name as it stands now: it may have been renamed since.
    name = m_lastRestoredName;
    {
        KyDbObjectPointer<KyDbLayerState> state(m_lastRestoredId, KyDb::kForRead);
        KyDbObjectPointer<KyDbDictionary> dictionary(state ? state->ownerId() : KyDbObjectId(),
                                                     KyDb::kForRead);
        KyString current;
        if (dictionary && dictionary->nameAt(m_lastRestoredId, current) == Kyro::eOk) {
            name = current;
        }
    }
    id = m_lastRestoredId;
    return Kyro::eOk;
}
