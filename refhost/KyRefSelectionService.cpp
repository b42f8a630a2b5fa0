#include "KyRefSelectionService.h"

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayerTableRecord.h"
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
    Selection& selected = m_selections[document];
    if (selected.ids == ids && selected.paths == paths) {
        return;
    }
    selected.ids = ids;
    selected.paths = paths;
    m_host.events().raiseHostStateChanged();
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
