#include "collections/KyDiImpDataPlotStyleItemCollection.h"

#include <array>
#include <memory>
#include <utility>

#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbReservedStrings.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiPlotService.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

namespace {

// ByLayer, ByBlock and Normal in the user's language, read once per process.
const std::array<KyString, 3>& reservedNames() {
    static const std::array<KyString, 3> s_names = {
        KyString(kydbGetReservedString(KyDb::kByLayer, true)),
        KyString(kydbGetReservedString(KyDb::kByBlock, true)),
        KyString(kydbGetReservedString(KyDb::kNormal, true)),
    };
    return s_names;
}

bool isReserved(const KyString& name) {
    for (const KyString& reserved : reservedNames()) {
        if (reserved.compare(name) == 0) {
            return true;
        }
    }
    return false;
}

bool offered(const KyArray<KyString>& names, const wchar_t* name) {
    for (int i = 0; i < names.length(); ++i) {
        if (names[i].compareNoCase(name) == 0) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool KyDiImpDataPlotStyleItemCollection::isActive() const {
    if (!KyDiImpDictionaryItemCollection::isActive()) {
        return false;
    }
    const KyDbDatabase* db = KyDiHostAccess::databaseOf(boundDocument());
    return db != nullptr && !db->plotStyleMode();
}

bool KyDiImpDataPlotStyleItemCollection::subTooManyChanges() const {
    return std::exchange(m_plotStyleTableChanged, false);
}

void KyDiImpDataPlotStyleItemCollection::noteFilledTable(KyDiPlotService* plot) {
    if (plot == nullptr || !plot->getPlotStyleTable(m_filledTable)) {
        m_filledTable = KyString();
    }
}

void KyDiImpDataPlotStyleItemCollection::requestCurrencyCheck() {
    KyDiImpDictionaryItemCollection::requestCurrencyCheck();
    KyDiPlotService* plot = KyDiHostAccess::plotService();
    KyString table;
    if (plot != nullptr && plot->getPlotStyleTable(table) && table.compare(m_filledTable) != 0) {
        markTableChanged();
    }
}

bool KyDiImpDataPlotStyleItemCollection::subFillFromDatabase(bool /*initial*/, KyDbDatabase* db,
                                                             KyDbObjectId& owner,
                                                             KyDiItemArray& list,
                                                             KyArray<KyDbObjectId>& /*erased*/,
                                                             void** /*context*/) {
    if (!beginFill(db, owner, list)) {
        return false;
    }
    // A drawing with colour-dependent plot styles has no named ones.
    KyDiPlotService* plot = KyDiHostAccess::plotService();
    if (db->plotStyleMode() || plot == nullptr) {
        // Still filled from the drawing's table: only another one is a
        // change that fills the list anew.
        noteFilledTable(plot);
        return true;
    }
    // The styles of the current table; no table, no list.
    KyArray<KyString> names(0, 16);
    if (!plot->getPlotStyleNames(db, owner, names)) {
        return false;
    }
    noteFilledTable(plot);
    owner = db->plotStyleNameDictionaryId();
    KyDbObjectPointer<KyDbDictionary> dictionary(owner, KyDb::kForRead);
    if (dictionary.openStatus() != Kyro::eOk) {
        return false;
    }
    for (const KyString& name : reservedNames()) {
        KyDbObjectId id;
        if (dictionary->getAt(name.kwszPtr(), id) == Kyro::eOk && !id.isNull()) {
            list.append(createDataItem(name, KyRxValue(id), nullptr, &owner));
        } else {
            list.append(createDataItem(name, KyRxValue(KyDbObjectId())));
        }
        names.remove(name);
    }
    const std::unique_ptr<KyDbDictionaryIterator> entries(dictionary->newIterator());
    for (; !entries->done(); entries->next()) {
        const KyString name(entries->name());
        if (!isReserved(name) && offered(names, name.kwszPtr())) {
            list.append(createDataItem(name, KyRxValue(entries->objectId()), nullptr, &owner));
        }
    }
    return true;
}
