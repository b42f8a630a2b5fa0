// Not part of the interface: the cached items of one document, keyed by the
// ids of their records. One reactor, put on every record that has an item,
// notes which items' records are erased (so that they go at a safe moment)
// and which records left memory (so that nothing opens them again).
#pragma once

#include <map>
#include <set>

#include "db/KyDbObjectId.h"
#include "manager/KyDiObjectModifiedReactor.h"

class KyDbObject;
class KyDiDbItem;

class ItemTable {
public:
    ItemTable() : reactor(this) {}
    ItemTable(const ItemTable&) = delete;
    ItemTable& operator=(const ItemTable&) = delete;

    // Owned.
    std::map<KyDbObjectId, KyDiDbItem*> items;
    KyDiObjectModifiedReactor<ItemTable> reactor;
    // Items whose record is erased now; an unerase takes the item out again,
    // so an erase and its undo leave no trace.
    std::set<KyDiDbItem*> erasedItems;
    // Records that left memory with their database.
    std::set<KyDbObjectId> goneIds;

    void objectErased(const KyDbObject* object, bool erasing);
    void objectGoodbye(const KyDbObject* object);

    // Puts the reactor on the record of `id`, once; false when the record
    // can't be opened.
    bool attachTo(KyDbObjectId id);
    // Takes the reactor off the record of `id` when it is still there.
    void detachFrom(KyDbObjectId id);
    // Takes the reactor off every record that is still in memory.
    void detachFromAll();
    // Deletes every item and empties the table.
    void deleteItems();
};
