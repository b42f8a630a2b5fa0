#include "manager/LocalDataItemCache.h"

#include "collections/KyDiImpCollectionBase.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/KyDiManagerState.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

LocalDataItemCache::~LocalDataItemCache() {
    releaseValueItems();
    releaseTables();
}

ItemTable* LocalDataItemCache::currentTable() const {
    const KyDiDocument document = KyDiHostAccess::rawCurrentDocument();
    if (document == kKyDiNoDocument || document == kKyDiUnboundDocument) {
        return nullptr;
    }
    const auto found = m_documents.find(document);
    return found != m_documents.end() ? found->second : nullptr;
}

ItemTable* LocalDataItemCache::tableOf(KyDbObjectId id) const {
    const KyDiDocument document = KyDiHostAccess::documentOf(id.database());
    if (const auto found = m_documents.find(document); found != m_documents.end()) {
        return found->second;
    }
    // A document that is going keeps its items in the table set aside, which
    // goes with it.
    const auto retired = m_retired.find(document);
    return retired != m_retired.end() ? retired->second : nullptr;
}

KyDiDbItem* LocalDataItemCache::findItem(KyDbObjectId id) const {
    const ItemTable* table = id.isNull() ? nullptr : tableOf(id);
    if (table == nullptr) {
        return nullptr;
    }
    const auto found = table->items.find(id);
    return found != table->items.end() ? found->second : nullptr;
}

bool LocalDataItemCache::addItem(KyDiDbItem* item) {
    if (item == nullptr || item->objectId().isNull()) {
        return false;
    }
    const KyDbObjectId id = item->objectId();
    const KyDiDocument document = KyDiHostAccess::documentOf(id.database());
    if (const auto retired = m_retired.find(document); retired != m_retired.end()) {
        // Its records are heard no more.
        retired->second->items.emplace(id, item);
        return true;
    }
    ItemTable*& table = m_documents[document];
    if (table == nullptr) {
        table = new ItemTable();
    }
    if (table->items.contains(id)) {
        return true;
    }
    // An item whose record can't be opened works all the same; it just hears
    // nothing.
    table->attachTo(id);
    table->items.emplace(id, item);
    return true;
}

KyDiItem* LocalDataItemCache::findValueItem(const KyRxValue& value) const {
    const auto found = m_valueItems.find(&value.type());
    if (found == m_valueItems.end()) {
        return nullptr;
    }
    const KyArray<KyDiItem*>& items = found->second;
    for (int i = 0; i < items.length(); ++i) {
        const KyRxValue* itemValue = items[i]->value();
        if (itemValue != nullptr && *itemValue == value) {
            return items[i];
        }
    }
    return nullptr;
}

bool LocalDataItemCache::addValueItem(KyDiItem* item) {
    const KyRxValue* value = item != nullptr ? item->value() : nullptr;
    if (value == nullptr || value->isEmpty()) {
        return false;
    }
    if (findValueItem(*value) != nullptr) {
        return true;
    }
    auto [entry, made] = m_valueItems.try_emplace(&value->type(), 10, 8);
    entry->second.append(item);
    return true;
}

bool LocalDataItemCache::keeps(const KyDiItem* item) const {
    if (item == nullptr) {
        return false;
    }
    if (const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<const KyRxObject*>(item))) {
        return findItem(dbItem->objectId()) == dbItem;
    }
    const KyRxValue* value = const_cast<KyDiItem*>(item)->value();
    return value != nullptr && findValueItem(*value) == item;
}

bool LocalDataItemCache::retireDocument(KyDiDocument document) {
    if (m_retired.contains(document)) {
        return false;
    }
    const auto found = m_documents.find(document);
    if (found == m_documents.end()) {
        return false;
    }
    ItemTable* table = found->second;
    m_retired[document] = table;
    table->detachFromAll();
    m_documents.erase(found);
    return true;
}

const std::set<KyDiDbItem*>* LocalDataItemCache::erasedItemsOfCurrentDocument() const {
    const ItemTable* table = currentTable();
    return table != nullptr ? &table->erasedItems : nullptr;
}

void LocalDataItemCache::endOfRefresh() {
    if (m_releaseRetired && !m_retired.empty()) {
        const TableMap retired = std::move(m_retired);
        m_retired.clear();
        for (const auto& [document, table] : retired) {
            table->deleteItems();
            delete table;
        }
    }
    // Erased items go at the end of the pass that reported them; when the
    // document has just changed, those of the one left wait for its return.
    const KyDiDocument document = KyDiHostAccess::currentDocument();
    if (document == m_lastDocument) {
        const auto found = m_documents.find(document);
        // A pass forced from inside an update leaves the erased items to the
        // pass around it: that update's reactors still hold them.
        if (found != m_documents.end() && !found->second->erasedItems.empty() &&
            !KyDiImpCollectionBase::isAnyUpdateRunning()) {
            ItemTable& table = *found->second;
            const std::set<KyDiDbItem*> erased = std::move(table.erasedItems);
            table.erasedItems.clear();
            for (KyDiDbItem* item : erased) {
                // A collection that has not let go of the item yet (its
                // refill was dropped while the host was busy) still shows
                // it: the item waits for a later pass.
                if (isHeldByCollection(item)) {
                    table.erasedItems.insert(item);
                } else {
                    discardItem(table, item);
                }
            }
        }
        return;
    }
    m_releaseRetired = false;
    if (document != kKyDiNoDocument && KyDiHostAccess::databaseOf(document) != nullptr) {
        m_lastDocument = document;
    }
}

bool LocalDataItemCache::isHeldByCollection(const KyDiDynamicObject* item) {
    const KyDiManagerState& state = kydiManagerState();
    auto holds = [item](const KyDiObservableCollection* collection) {
        const KyDiItemArray& items = collection->getItems();
        return items.contains(const_cast<KyDiDynamicObject*>(item));
    };
    for (const auto& [name, collection] : state.knownCollections) {
        if (holds(collection) || collection->getCurrentItem() == item) {
            return true;
        }
    }
    for (const KyDiObservableCollection* collection : state.replacedCollections) {
        if (holds(collection)) {
            return true;
        }
    }
    return false;
}

bool LocalDataItemCache::discardItem(ItemTable& table, KyDiDbItem* item) {
    if (item == nullptr) {
        return false;
    }
    const auto found = table.items.find(item->objectId());
    if (found == table.items.end() || found->second != item) {
        return false;
    }
    table.detachFrom(item->objectId());
    table.items.erase(found);
    delete item;
    return true;
}

void LocalDataItemCache::releaseValueItems() {
    auto valueItems = std::move(m_valueItems);
    m_valueItems.clear();
    for (auto& [type, items] : valueItems) {
        for (int i = 0; i < items.length(); ++i) {
            delete items[i];
        }
    }
}

void LocalDataItemCache::releaseTables() {
    for (TableMap* tables : {&m_documents, &m_retired}) {
        const TableMap doomed = std::move(*tables);
        tables->clear();
        for (const auto& [document, table] : doomed) {
            table->detachFromAll();
            table->deleteItems();
            delete table;
        }
    }
}
