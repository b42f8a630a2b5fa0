#include "KyRefSelectionService.h"

#include "KyRefDocument.h"
#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbTable.h"
#include "rx/KyRxClass.h"

namespace {

bool isPresent(const KyDbObjectId& id) {
    return id.isValid() && !id.isErased();
}

// A path stands while every object on it does.
bool isPresent(const KyDbFullSubentPath& path) {
    const KyArray<KyDbObjectId>& ids = path.objectIds();
    if (ids.isEmpty()) {
        return false;
    }
    for (const KyDbObjectId& id : ids) {
        if (!isPresent(id)) {
            return false;
        }
    }
    return true;
}

template <typename T>
std::vector<T> present(const std::vector<T>& selected) {
    std::vector<T> kept;
    for (const T& entry : selected) {
        if (isPresent(entry)) {
            kept.push_back(entry);
        }
    }
    return kept;
}

void appendIds(KyArray<KyDbObjectId>* out, const std::vector<KyDbObjectId>& ids) {
    if (out == nullptr) {
        return;
    }
    for (const KyDbObjectId& id : ids) {
        out->append(id);
    }
}

}  // namespace

KyRefSelectionService::KyRefSelectionService(KyRefHost& host) : m_host(host) {}

KyDiDocument KyRefSelectionService::currentDocument() const {
    return m_host.documents().currentDocument();
}

std::vector<KyDbObjectId> KyRefSelectionService::selection() const {
    const auto found = m_selections.find(currentDocument());
    return found != m_selections.end() ? present(found->second.ids) : std::vector<KyDbObjectId>();
}

std::vector<KyDbFullSubentPath> KyRefSelectionService::subentPaths() const {
    const auto found = m_selections.find(currentDocument());
    return found != m_selections.end() ? present(found->second.paths)
                                       : std::vector<KyDbFullSubentPath>();
}

void KyRefSelectionService::setSelection(const std::vector<KyDbObjectId>& ids) {
    setSelection(ids, {});
}

void KyRefSelectionService::setSelection(const std::vector<KyDbObjectId>& ids,
                                         const std::vector<KyDbFullSubentPath>& paths) {
    const KyDiDocument document = currentDocument();
    if (document == kKyDiNoDocument) {
        return;
    }
    const bool hadCells = clearCells(document);
    Selection& selected = m_selections[document];
    if (selected.ids == ids && selected.paths == paths && !hadCells) {
        return;
    }
    selected.ids = ids;
    selected.paths = paths;
    m_host.events().raiseHostStateChanged();
}

Kyro::ErrorStatus KyRefSelectionService::selectCells(KyDbObjectId tableId,
                                                     const KyDbCellRange& cells) {
    const KyDiDocument document = currentDocument();
    const KyRefDocument* current = m_host.documents().current();
    if (document == kKyDiNoDocument || current == nullptr) {
        return Kyro::eNoCurrentDocument;
    }
    if (tableId.isValid() && tableId.database() != current->database()) {
        return Kyro::eWrongDatabase;
    }
    // The sub-selection is state of the session: an open for notify sets it,
    // alongside any open the table is in, and tells nobody.
    KyDbTable* table = nullptr;
    if (const Kyro::ErrorStatus status = kydbOpenObject(table, tableId, KyDb::kForNotify);
        status != Kyro::eOk) {
        return status;
    }
    const Kyro::ErrorStatus status = table->setSubSelection(cells);
    table->close();
    if (status != Kyro::eOk) {
        return status;
    }
    const auto previous = m_cellTables.find(document);
    if (previous != m_cellTables.end() && previous->second != tableId) {
        clearCells(document);
    }
    m_cellTables[document] = tableId;
    m_selections[document] = Selection{{tableId}, {}};
    m_host.events().raiseHostStateChanged();
    return Kyro::eOk;
}

bool KyRefSelectionService::clearCells(KyDiDocument document) {
    const auto found = m_cellTables.find(document);
    if (found == m_cellTables.end()) {
        return false;
    }
    const KyDbObjectId tableId = found->second;
    m_cellTables.erase(found);
    // An erased table keeps its cells selected no longer either.
    KyDbTable* table = nullptr;
    if (kydbOpenObject(table, tableId, KyDb::kForNotify, true) == Kyro::eOk) {
        table->clearSubSelection();
        table->close();
    }
    return true;
}

void KyRefSelectionService::clear() {
    setSelection({});
}

bool KyRefSelectionService::hasSelection() {
    return !selection().empty() || !subentPaths().empty();
}

Kyro::ErrorStatus KyRefSelectionService::getSelection(KyArray<KyDbObjectId>& ids,
                                                      SubentPathArray& paths) {
    for (const KyDbObjectId& id : selection()) {
        ids.append(id);
    }
    for (const KyDbFullSubentPath& path : subentPaths()) {
        paths.append(path);
    }
    return Kyro::eOk;
}

KyRefSelectionService::WriteCheck KyRefSelectionService::checkForWrite(
    const KyRxClass* filterClass) const {
    WriteCheck check;
    for (const KyDbObjectId& id : selection()) {
        if (filterClass != nullptr &&
            (id.objectClass() == nullptr || !id.objectClass()->isDerivedFrom(filterClass))) {
            continue;
        }
        ++check.total;
        KyRefReadAccess<KyDbEntity> entity(id);
        if (!entity) {
            check.unwritable.push_back(id);
            continue;
        }
        KyRefReadAccess<KyDbLayerTableRecord> layer(entity->layerId());
        if (layer && layer->isLocked()) {
            check.onLockedLayers.push_back(id);
        }
    }
    return check;
}

Kyro::ErrorStatus KyRefSelectionService::filterForWrite(
    int mode, int& total, int& excludedA, int& excludedB, const KyRxClass* filterClass,
    KyArray<KyDbObjectId>* excludedIdsA, KyArray<KyDbObjectId>* excludedIdsB, const KyString&) {
    if (mode != kChangeProperties) {
        return Kyro::eInvalidInput;
    }
    const WriteCheck check = checkForWrite(filterClass);
    total = check.total;
    excludedA = static_cast<int>(check.onLockedLayers.size());
    excludedB = static_cast<int>(check.unwritable.size());
    appendIds(excludedIdsA, check.onLockedLayers);
    appendIds(excludedIdsB, check.unwritable);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefSelectionService::getSelectionCounts(
    int mode, int& total, int& excluded, int& third, const KyRxClass* filterClass,
    KyArray<KyDbObjectId>* excludedIds, KyArray<KyDbObjectId>* thirdIds, KyString& text) {
    if (mode != kChangeProperties) {
        return Kyro::eInvalidInput;
    }
    const WriteCheck check = checkForWrite(filterClass);
    const int locked = static_cast<int>(check.onLockedLayers.size());
    total = check.total;
    excluded = locked + static_cast<int>(check.unwritable.size());
    third = locked;
    appendIds(excludedIds, check.onLockedLayers);
    appendIds(excludedIds, check.unwritable);
    appendIds(thirdIds, check.onLockedLayers);
    // The message a change of properties prints when it leaves objects on
    // locked layers out.
    if (locked == 0) {
        text = KyString();
    } else {
        text = KyString::formatted(
            locked == 1 ? L"%d was on a locked layer." : L"%d were on a locked layer.", locked);
    }
    return Kyro::eOk;
}
