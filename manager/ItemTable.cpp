#include "manager/ItemTable.h"

#include "db/KyDbObject.h"
#include "db/KyDbOpenObject.h"
#include "kydi/KyDiDbItem.h"

void ItemTable::objectErased(const KyDbObject* object, bool erasing) {
    const auto found = items.find(object->objectId());
    if (found == items.end()) {
        return;
    }
    if (erasing) {
        erasedItems.insert(found->second);
    } else {
        erasedItems.erase(found->second);
    }
}

void ItemTable::objectGoodbye(const KyDbObject* object) {
    if (object == nullptr) {
        return;
    }
    const_cast<KyDbObject*>(object)->removeReactor(&reactor);
    goneIds.insert(object->objectId());
}

bool ItemTable::attachTo(KyDbObjectId id) {
    KyDbObject* object = nullptr;
    if (id.isNull() || kydbOpenObject(object, id, KyDb::kForNotify, true) != Kyro::eOk) {
        return false;
    }
    if (!object->reactors()->contains(&reactor)) {
        object->addReactor(&reactor);
    }
    object->close();
    return true;
}

void ItemTable::detachFrom(KyDbObjectId id) {
    KyDbObject* object = nullptr;
    if (id.isNull() || goneIds.contains(id) || !id.isValid() ||
        kydbOpenObject(object, id, KyDb::kForNotify, true) != Kyro::eOk) {
        return;
    }
    if (object->reactors()->contains(&reactor)) {
        object->removeReactor(&reactor);
    }
    object->close();
}

void ItemTable::detachFromAll() {
    for (const auto& [id, item] : items) {
        detachFrom(id);
    }
}

void ItemTable::deleteItems() {
    // Taken out first: a reactor told of a deletion may look into the cache.
    const std::map<KyDbObjectId, KyDiDbItem*> doomed = std::move(items);
    items.clear();
    erasedItems.clear();
    for (const auto& [id, item] : doomed) {
        delete item;
    }
}
