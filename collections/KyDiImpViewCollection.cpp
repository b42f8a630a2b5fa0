#include "collections/KyDiImpViewCollection.h"

#include "db/KyDbDatabase.h"
#include "db/KyDbViewTableRecord.h"
#include "manager/host/KyDiHostAccess.h"

namespace {

// The number of the viewport that is the paper itself.
constexpr short kPaperViewport = 1;

}  // namespace

KyDiImpViewCollection::KyDiImpViewCollection(const wchar_t* name, KyDiCurrencyTracker* tracker,
                                             TableIdGetter getTableId, bool modelViewsOnly)
    : KyDiImpSymbolTableItemCollection(name, tracker, getTableId),
      m_modelViewsOnly(modelViewsOnly) {}

bool KyDiImpViewCollection::subIncludeRecord(const KyDbSymbolTableRecord* record) const {
    const auto* view = kyrxCast<KyDbViewTableRecord>(record);
    if (view == nullptr) {
        return false;
    }
    if (m_modelViewsOnly) {
        return !view->isPaperspaceView();
    }
    return view->isPaperspaceView() == m_paperSpaceViews;
}

void KyDiImpViewCollection::subPrepareUpdate() {
    if (m_modelViewsOnly) {
        return;
    }
    bool onPaper = false;
    if (isActive()) {
        const KyDbDatabase* db = KyDiHostAccess::databaseOf(boundDocument());
        short viewport = 0;
        onPaper = db != nullptr && !db->tilemode() &&
                  KyDiHostAccess::readShort(L"CVPORT", viewport) && viewport == kPaperViewport;
    }
    if (onPaper != m_paperSpaceViews) {
        m_paperSpaceViews = onPaper;
        requestReset();
    }
}

void KyDiImpViewCollection::subInvalidate() {
    requestCurrencyCheck();
}

void KyDiImpViewCollection::objectClosed(KyDbObjectId id) {
    KyDiImpSymbolTableItemCollection::objectClosed(id);
    // A view came or went: the one shown may have a name now, or none. This
    // holds also while a reset is pending.
    if (id == ownerId()) {
        requestCurrencyCheck();
    }
}
