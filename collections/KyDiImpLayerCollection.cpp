#include "collections/KyDiImpLayerCollection.h"

#include "db/KyDbDatabase.h"
#include "db/KyDbDatabaseReactor.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbTrace.h"
#include "db/KyDbViewport.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextChange.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiViewportService.h"
#include "manager/host/KyDiHostAccess.h"

// Hears layers appended to the bound drawing.
class KyDiImpLayerCollectionDbReactor : public KyDbDatabaseReactor {
public:
    explicit KyDiImpLayerCollectionDbReactor(KyDiImpLayerCollection* owner) : m_owner(owner) {}

    void objectAppended(const KyDbDatabase* /*database*/, const KyDbObject* object) override {
        if (m_owner->isActive() && object != nullptr &&
            kyrxCast<KyDbLayerTableRecord>(object) != nullptr) {
            m_owner->requestRefill();
        }
    }

private:
    KyDiImpLayerCollection* m_owner;
};

namespace {

KyDiDynamicObject* makeLayerItem(const KyString& name, const KyRxValue& value) {
    return createDataItem(name, value, nullptr, nullptr, true);
}

// The change mask bit of the viewport context that means another viewport,
// or the viewport object changed.
constexpr unsigned char kViewportChanged = 0x2;

}  // namespace

KyDiImpLayerCollection::KyDiImpLayerCollection(const wchar_t* name, KyDiCurrencyTracker* tracker,
                                               TableIdGetter getTableId)
    : KyDiImpSymbolTableItemCollection(name, tracker, getTableId),
      m_viewportFrozenLayers(new IdSet()),
      m_overriddenLayers(new IdSet()) {
    setItemFactory(&makeLayerItem);
    if (KyDiContextManager* contexts = KyDiManager::getContextManager()) {
        m_viewportContext = contexts->getContext(L"VIEWPORT", true);
        if (m_viewportContext != nullptr) {
            contexts->addReactor(this);
        }
    }
    m_databaseReactor = new KyDiImpLayerCollectionDbReactor(this);
}

KyDiImpLayerCollection::~KyDiImpLayerCollection() {
    // Lets go of the records and the drawing while the reactors still stand.
    KyDiImpLayerCollection::subReleaseResources();
    delete m_viewportFrozenLayers;
    delete m_overriddenLayers;
    delete m_databaseReactor;
}

void KyDiImpLayerCollection::subCommandEnded(const wchar_t* command) {
    if (command == nullptr) {
        return;
    }
    // The first letter is compared exactly, the rest without case.
    const wchar_t* attach = nullptr;
    switch (command[0]) {
        case L'-':
            attach = L"-XATTACH";
            break;
        case L'X':
            attach = L"XATTACH";
            break;
        case L'_':
            attach = L"_XATTACH";
            break;
        default:
            return;
    }
    if (KyString(command).compareNoCase(attach) == 0) {
        requestRefill();
    }
}

void KyDiImpLayerCollection::subReleaseResources() {
    if (m_viewportContext != nullptr) {
        if (KyDiContextManager* contexts = KyDiManager::getContextManager()) {
            contexts->removeReactor(this);
        }
        m_viewportContext = nullptr;
    }
    KyDiImpSymbolTableItemCollection::subReleaseResources();
}

void KyDiImpLayerCollection::subDetach(KyDbObject* closing) {
    if (isActive()) {
        if (KyDbDatabase* db = KyDiHostAccess::databaseOf(boundDocument())) {
            db->removeReactor(m_databaseReactor);
        }
    }
    m_viewportFrozenLayers->clear();
    m_overriddenLayers->clear();
    KyDiImpSymbolTableItemCollection::subDetach(closing);
}

void KyDiImpLayerCollection::subAttach() {
    KyDiImpSymbolTableItemCollection::subAttach();
    refreshViewportState();
    // What the binding finds is the starting point, not a change.
    mutablePendingObjects().clear();
}

bool KyDiImpLayerCollection::subFillFromDatabase(bool initial, KyDbDatabase* db,
                                                 KyDbObjectId& owner, KyDiItemArray& list,
                                                 KyArray<KyDbObjectId>& erased, void** context) {
    const bool filled = KyDiImpSymbolTableItemCollection::subFillFromDatabase(
        initial, db, owner, list, erased, context);
    if (filled && initial) {
        db->addReactor(m_databaseReactor);
    }
    return filled;
}

bool KyDiImpLayerCollection::hasOverrides(KyDbObjectId id) const {
    if (m_currentViewportId.isNull()) {
        return false;
    }
    KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForRead);
    return layer.openStatus() == Kyro::eOk && layer->hasOverrides(m_currentViewportId);
}

void KyDiImpLayerCollection::objectClosed(KyDbObjectId id) {
    if (id != ownerId()) {
        if (hasOverrides(id)) {
            m_overriddenLayers->insert(id);
        } else {
            m_overriddenLayers->erase(id);
        }
    }
    KyDiImpSymbolTableItemCollection::objectClosed(id);
}

bool KyDiImpLayerCollection::subIncludeRecord(const KyDbSymbolTableRecord* record) const {
    return record != nullptr && kyrxCast<KyDbLayerTableRecord>(record) != nullptr &&
           !kydbiSkipDisplayForTrace(record->objectId());
}

void KyDiImpLayerCollection::contextChanged(const KyDiContextChange* change) {
    if (change == nullptr || change->context != m_viewportContext ||
        change->changeData == nullptr) {
        return;
    }
    if ((*static_cast<const unsigned char*>(change->changeData) & kViewportChanged) != 0) {
        refreshViewportState();
    }
}

void KyDiImpLayerCollection::activeContextsChanged() {
    if (m_viewportContext != nullptr && m_viewportContext->isActive()) {
        refreshViewportState();
    }
}

void KyDiImpLayerCollection::refreshViewportState() {
    if (KyDiViewportService* viewports = KyDiHostAccess::viewportService()) {
        KyDbObjectId id;
        if (viewports->viewportId(id) == Kyro::eOk) {
            m_currentViewportId = id;
        }
    }
    PendingObjects& pending = mutablePendingObjects();

    // The frozen layers: each one newly frozen, and each one no longer
    // frozen, is a change.
    IdSet* frozenNow = nullptr;
    if (!m_currentViewportId.isNull()) {
        KyDbObjectPointer<KyDbViewport> viewport(m_currentViewportId, KyDb::kForRead);
        KyArray<KyDbObjectId> frozen;
        if (viewport.openStatus() == Kyro::eOk &&
            viewport->getFrozenLayerList(frozen) == Kyro::eOk && !frozen.isEmpty()) {
            frozenNow = new IdSet();
            for (const KyDbObjectId& id : frozen) {
                if (m_viewportFrozenLayers->erase(id) == 0) {
                    pending.insert(id);
                }
                frozenNow->insert(id);
            }
        }
    }
    for (const KyDbObjectId& id : *m_viewportFrozenLayers) {
        pending.insert(id);
    }
    m_viewportFrozenLayers->clear();
    if (frozenNow != nullptr) {
        delete m_viewportFrozenLayers;
        m_viewportFrozenLayers = frozenNow;
    }

    // The overrides: a layer that has them is a change at every refresh, and
    // once more when it has lost them.
    auto* overriddenNow = new IdSet();
    for (int i = 0; i < items.length(); ++i) {
        const auto* item = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(items[i]));
        if (item == nullptr) {
            continue;
        }
        const KyDbObjectId id = item->objectId();
        const bool has = hasOverrides(id);
        if (has) {
            overriddenNow->insert(id);
        }
        if (pending.count(id) == 0 && (has || m_overriddenLayers->count(id) != 0)) {
            pending.insert(id);
        }
    }
    delete m_overriddenLayers;
    m_overriddenLayers = overriddenNow;
}
