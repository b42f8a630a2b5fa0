// Shared test support: what a live known collection should hold, read from a
// collection of the same row made afresh and filled from the drawing in
// front. Items are compared by display name and, for the items of database
// objects, by handle as well, sorted: the order of a live list may differ
// from a fresh one's after merges.
#pragma once

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "collections/KyDiImpCollectionBase.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiHost.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/KnownCollectionRows.h"
#include "support/CollectionContract.h"

namespace kytest {

// "Walls #1A" for the item of a database object, the display name otherwise.
// With `database`, an object of another database is told apart: drawings
// opened from one file share their handles.
inline std::string itemKey(KyDiDynamicObject* item, const KyDbDatabase* database = nullptr) {
    std::string key = itemName(item);
    if (const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item))) {
        char handle[32];
        std::snprintf(handle, sizeof handle, " #%llX",
                      static_cast<unsigned long long>(dbItem->objectId().handle()));
        key += handle;
        if (database != nullptr && !dbItem->objectId().isNull() &&
            dbItem->objectId().database() != database) {
            key += " of another drawing";
        }
    }
    return key;
}

// The keys of the items, sorted; with `database`, as itemKey tells them.
inline std::vector<std::string> heldItems(KyDiObservableCollection* collection,
                                          const KyDbDatabase* database = nullptr) {
    std::vector<std::string> keys;
    const KyDiItemArray& items = collection->getItems();
    for (int i = 0; i < items.length(); ++i) {
        keys.push_back(itemKey(items[i], database));
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

// The row of the known collection `name`; null for none.
inline const KnownCollectionRow* knownRow(const wchar_t* name) {
    for (const KnownCollectionRow& row : KnownCollectionRows::staticRows()) {
        if (std::wstring(row.name) == name) {
            return &row;
        }
    }
    return nullptr;
}

// The keys of the items that a fresh collection of the row `name` fills from
// the drawing in front and holds after its first update (which sees, for
// one, the space the user works in), sorted; empty for a name without a row
// that makes one.
inline std::vector<std::string> freshItems(const wchar_t* name) {
    const KnownCollectionRow* row = knownRow(name);
    if (row == nullptr || row->newCollection == nullptr) {
        return {};
    }
    KyDiObservableCollection fresh(row->newCollection(row->name, nullptr, row->getTableId));
    auto* body = static_cast<KyDiImpCollectionBase*>(fresh.imp());
    body->bindToDocument(KyDiManager::getHost()->documentManager()->currentDocument());
    body->update();
    std::vector<std::string> keys = heldItems(&fresh);
    fresh.destroy();
    return keys;
}

}  // namespace kytest
