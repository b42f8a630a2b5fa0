#include "collections/KyDiImpSymbolTableItemCollection.h"

#include <memory>

#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableIterator.h"
#include "db/KyDbSymbolTableRecord.h"
#include "kydi/KyDiDataItemFactory.h"

KyDiImpSymbolTableItemCollection::KyDiImpSymbolTableItemCollection(const wchar_t* name,
                                                                   KyDiCurrencyTracker* tracker,
                                                                   TableIdGetter getTableId)
    : KyDiImpDbObjectCollection(name, tracker), m_getTableId(getTableId) {}

void KyDiImpSymbolTableItemCollection::subDrawingContentChanged() {
    requestRefill();
}

bool KyDiImpSymbolTableItemCollection::subIncludeRecord(
    const KyDbSymbolTableRecord* /*record*/) const {
    return true;
}

bool KyDiImpSymbolTableItemCollection::subFillFromDatabase(bool /*initial*/, KyDbDatabase* db,
                                                           KyDbObjectId& owner, KyDiItemArray& list,
                                                           KyArray<KyDbObjectId>& erased,
                                                           void** /*context*/) {
    owner.setNull();
    list.setLogicalLength(0);
    if (db == nullptr || m_getTableId == nullptr) {
        return false;
    }
    owner = (db->*m_getTableId)();
    KyDbObjectPointer<KyDbSymbolTable> table(owner, KyDb::kForRead);
    if (table.openStatus() != Kyro::eOk) {
        return false;
    }
    KyDbSymbolTableIterator* raw = nullptr;
    if (table->newIterator(raw, true, false) != Kyro::eOk || raw == nullptr) {
        return false;
    }
    const std::unique_ptr<KyDbSymbolTableIterator> records(raw);
    for (records->start(true, false); !records->done(); records->step(true, false)) {
        KyDbObjectId id;
        if (records->getRecordId(id) != Kyro::eOk) {
            continue;
        }
        if (id.isErased()) {
            // Watched, so that an undo of the erase is heard.
            if (id.isValid()) {
                erased.append(id);
            }
            continue;
        }
        KyDbObjectPointer<KyDbSymbolTableRecord> record(id, KyDb::kForRead);
        if (record.openStatus() != Kyro::eOk || !subIncludeRecord(record.object())) {
            continue;
        }
        KyString name;
        const bool named = record->getName(name) == Kyro::eOk;
        if (named && name.isEmpty()) {
            continue;
        }
        const KyRxValue value(id);
        KyDiDynamicObject* item =
            m_itemFactory != nullptr ? m_itemFactory(name, value) : createDataItem(name, value);
        list.append(item);
    }
    return true;
}
