#include "KyRefSelectionService.h"

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayerTableRecord.h"
#include "rx/KyRxClass.h"

KyRefSelectionService::KyRefSelectionService(KyRefHost& host) : m_host(host) {}

KyDiDocument KyRefSelectionService::currentDocument() const {
    return m_host.documents().currentDocument();
}

std::vector<KyDbObjectId> KyRefSelectionService::selection() const {
    std::vector<KyDbObjectId> ids;
    const auto found = m_selections.find(currentDocument());
    if (found != m_selections.end()) {
        for (const KyDbObjectId& id : found->second) {
            if (id.isValid() && !id.isErased()) {
                ids.push_back(id);
            }
        }
    }
    return ids;
}

void KyRefSelectionService::setSelection(const std::vector<KyDbObjectId>& ids) {
    const KyDiDocument document = currentDocument();
    if (document == kKyDiNoDocument) {
        return;
    }
    std::vector<KyDbObjectId>& selected = m_selections[document];
    if (selected == ids) {
        return;
    }
    selected = ids;
    m_host.events().raiseHostStateChanged();
}

void KyRefSelectionService::clear() {
    setSelection({});
}

bool KyRefSelectionService::hasSelection() {
    return !selection().empty();
}

Kyro::ErrorStatus KyRefSelectionService::getSelection(KyArray<KyDbObjectId>& ids,
                                                      SubentPathArray&) {
    for (const KyDbObjectId& id : selection()) {
        ids.append(id);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefSelectionService::filterForWrite(
    int, int& total, int& excludedA, int& excludedB, const KyRxClass* filterClass,
    KyArray<KyDbObjectId>* excludedIdsA, KyArray<KyDbObjectId>* excludedIdsB, const KyString&) {
    total = 0;
    excludedA = 0;
    excludedB = 0;
    for (const KyDbObjectId& id : selection()) {
        if (filterClass != nullptr &&
            (id.objectClass() == nullptr || !id.objectClass()->isDerivedFrom(filterClass))) {
            continue;
        }
        ++total;
        KyRefReadAccess<KyDbEntity> entity(id);
        if (!entity) {
            ++excludedB;
            if (excludedIdsB != nullptr) {
                excludedIdsB->append(id);
            }
            continue;
        }
        KyRefReadAccess<KyDbLayerTableRecord> layer(entity->layerId());
        if (layer && layer->isLocked()) {
            ++excludedA;
            if (excludedIdsA != nullptr) {
                excludedIdsA->append(id);
            }
        }
    }
    return Kyro::eOk;
}
