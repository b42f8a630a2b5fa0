#include "currency/ViewCurrencyTracker.h"

#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewTableRecord.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiViewportService.h"
#include "manager/host/KyDiHostAccess.h"

namespace {

// The key of the current viewport; null without a viewport service or when
// the service names none.
KyDbObjectId currentViewportKey(KyDiViewportService* viewports) {
    KyDbObjectId key;
    if (viewports != nullptr && viewports->viewportKey(key) != Kyro::eOk) {
        key.setNull();
    }
    return key;
}

}  // namespace

ViewCurrencyTracker::ViewCurrencyTracker(const wchar_t* collectionName, const wchar_t* sysVarName,
                                         const wchar_t* commandFormat, Getter getter, Setter setter)
    : DataItemCurrencyTracker(collectionName, sysVarName, commandFormat, getter, setter) {}

KyDbObjectId ViewCurrencyTracker::matchingView(const KyDbSymbolTable* views, const KyString& name) {
    KyDbObjectId id;
    if (views->getIdAt(name.kwszPtr(), id, false) != Kyro::eOk) {
        return KyDbObjectId();
    }
    KyDbObjectPointer<KyDbViewTableRecord> view(id, KyDb::kForRead);
    if (!view) {
        return KyDbObjectId();
    }
    KyDiViewportService* viewports = KyDiHostAccess::viewportService();
    return viewports == nullptr || viewports->matchesView(view.object()) ? id : KyDbObjectId();
}

KyDiDynamicObject* ViewCurrencyTracker::getCurrentItem() {
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    if (db == nullptr) {
        return nullptr;
    }
    const KyDbObjectPointer<KyDbSymbolTable> views(db->viewTableId(), KyDb::kForRead);
    if (!views) {
        return nullptr;
    }
    KyDiViewportService* viewports = KyDiHostAccess::viewportService();
    const KyDbObjectId key = currentViewportKey(viewports);
    if (!key.isNull()) {
        const auto remembered = m_viewNames.find(key);
        if (remembered != m_viewNames.end() &&
            !matchingView(views.object(), remembered->second).isNull()) {
            return nullptr;
        }
    }
    // From the end: of two views that show the same, the later one wins.
    const KyDiItemArray& items = collectionItems();
    for (int i = items.length() - 1; i >= 0; --i) {
        const KyString name = KyDiGetItemName(items[i]);
        if (!matchingView(views.object(), name).isNull()) {
            if (!key.isNull()) {
                m_viewNames[key] = name;
            }
            return items[i];
        }
    }
    return nullptr;
}

void ViewCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
    KyDiViewportService* viewports = KyDiHostAccess::viewportService();
    if (dbItem == nullptr || dbItem->objectId().isNull() || viewports == nullptr) {
        return;
    }
    const KyDbObjectId id = dbItem->objectId();
    KyDbObjectPointer<KyDbViewTableRecord> view(id, KyDb::kForRead);
    KyString name;
    if (!view || view->getName(name) != Kyro::eOk) {
        return;
    }
    if (!viewports->matchesView(view.object())) {
        viewports->restoreView(id);
    }
    if (const KyDbObjectId key = currentViewportKey(viewports); !key.isNull() && !name.isEmpty()) {
        m_viewNames[key] = name;
    }
}
