// Not part of the interface: the item cache, which gives items their
// identity. The item of a record is the same object for as long as the
// record's document is open, so a client may compare item pointers across
// refills and document switches; a colour or a transparency has one lasting
// value item.
//
// Items of a record are kept in the table of the document that owns the
// record (records of a database without a document in a table of their own,
// kept to the end). An item whose record is erased lives through the refresh
// pass in which it goes, so that collections can report it as removed, and is
// deleted at the end of that pass; the tables of a closed document go once the
// document has left memory.
#pragma once

#include <map>

#include "base/KyArray.h"
#include "kydi/KyDiTypes.h"
#include "manager/ItemTable.h"

class KyDiDbItem;
class KyDiDynamicObject;
class KyDiItem;
class KyRxValue;
class KyRxValueType;

class LocalDataItemCache {
public:
    LocalDataItemCache() = default;
    // Releases the value items, then the tables.
    ~LocalDataItemCache();
    LocalDataItemCache(const LocalDataItemCache&) = delete;
    LocalDataItemCache& operator=(const LocalDataItemCache&) = delete;

    // The table of the raw current document, or null.
    ItemTable* currentTable() const;
    // The cached item of the record `id`, or null.
    KyDiDbItem* findItem(KyDbObjectId id) const;
    // Keeps `item` as the item of its record, and puts the table's reactor on
    // the record. False for null, or for an item without a record.
    bool addItem(KyDiDbItem* item);
    // The value item whose value equals `value`, or null.
    KyDiItem* findValueItem(const KyRxValue& value) const;
    // Keeps a value item; an equal one kept already keeps its place. False for
    // an item without a value.
    bool addValueItem(KyDiItem* item);
    // Whether the cache keeps `item` (of a record or a value).
    bool keeps(const KyDiItem* item) const;

    // The document is going: its table is set aside and its records heard no
    // more. False when it has no table, or was set aside already.
    bool retireDocument(KyDiDocument document);
    // The tables set aside may go at the end of the next pass: the document
    // has left memory.
    void setReleaseRetired() { m_releaseRetired = true; }
    // Forgets the document it saw last, so that the next pass takes the
    // current one as new.
    void forgetLastDocument() { m_lastDocument = kKyDiUnboundDocument; }
    // The end of a refresh pass: the items of erased records of the current
    // document go, and the tables set aside once their document has gone.
    void endOfRefresh();
    // The items of erased records of the current document, as they stand.
    const std::set<KyDiDbItem*>* erasedItemsOfCurrentDocument() const;

    // Releases every value item, then every table, taking the reactors off
    // the records that are still in memory.
    void releaseValueItems();
    void releaseTables();

private:
    using TableMap = std::map<KyDiDocument, ItemTable*>;

    static bool discardItem(ItemTable& table, KyDiDbItem* item);
    // Whether a known collection still lists the item.
    static bool isHeldByCollection(const KyDiDynamicObject* item);
    ItemTable* tableOf(KyDbObjectId id) const;

    TableMap m_documents;
    std::map<const KyRxValueType*, KyArray<KyDiItem*>> m_valueItems;
    KyDiDocument m_lastDocument = kKyDiUnboundDocument;
    TableMap m_retired;
    bool m_releaseRetired = false;
};
