#include "collections/KyDiImpDbObjectCollection.h"

#include <cmath>

#include "db/KyDbObject.h"
#include "db/KyDbOpenObject.h"
#include "kydi/KyDiDbNamedItem.h"

KyDbObjectId KyDiImpDbObjectCollection::idOf(KyDiDynamicObject* item) {
    const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
    return dbItem != nullptr ? dbItem->objectId() : KyDbObjectId();
}

KyDiImpDbObjectCollection::KyDiImpDbObjectCollection(const wchar_t* name,
                                                     KyDiCurrencyTracker* tracker)
    : KyDiImpCollectionBase(name, tracker),
      m_watchedErased(0, 8),
      m_objectReactor(new KyDiObjectModifiedReactor<KyDiImpDbObjectCollection>(this)) {}

KyDiImpDbObjectCollection::KyDiImpDbObjectCollection(const wchar_t* name)
    : KyDiImpCollectionBase(name),
      m_watchedErased(0, 8),
      m_objectReactor(new KyDiObjectModifiedReactor<KyDiImpDbObjectCollection>(this)) {}

KyDiImpDbObjectCollection::~KyDiImpDbObjectCollection() {
    subReleaseResources();
}

void KyDiImpDbObjectCollection::addPendingObject(const KyDbObjectId& id) {
    if (id != m_ownerId) {
        m_pendingObjects.insert(id);
    }
}

void KyDiImpDbObjectCollection::objectGoodbye(const KyDbObject* object) {
    if (boundDocument() != kKyDiNoDocument && boundDocument() != kKyDiUnboundDocument) {
        deactivate(boundDocument(), const_cast<KyDbObject*>(object));
    }
}

void KyDiImpDbObjectCollection::objectClosed(KyDbObjectId id) {
    if ((pendingFlags() & kResetPending) != 0) {
        return;
    }
    if (id == m_ownerId) {
        requestRefill();
    } else {
        addPendingObject(id);
    }
}

void KyDiImpDbObjectCollection::objectErased(const KyDbObject* object, bool /*erasing*/) {
    // Erasing and unerasing alike change the list.
    if (idOf(currentItem()) == object->objectId() && !idOf(currentItem()).isNull()) {
        requestCurrencyCheck();
    }
    requestRefill();
}

void KyDiImpDbObjectCollection::subApplyItemChanges(KyDiItemArray& added, KyDiItemArray& removed,
                                                    KyDiItemArray& modified) {
    // What the merge reported is not reported again as a modification: a
    // record that came (back) is new to the client, not changed.
    for (const KyDiItemArray* reported : {&modified, &removed, &added}) {
        for (int i = 0; i < reported->length(); ++i) {
            m_pendingObjects.erase(idOf((*reported)[i]));
        }
    }
    for (int i = 0; i < added.length(); ++i) {
        attachOnce(idOf(added[i]), m_objectReactor);
    }
    // A record that left the list is heard no more, unless it is watched for
    // the undo of its erase.
    for (int i = 0; i < removed.length(); ++i) {
        const KyDbObjectId id = idOf(removed[i]);
        if (!m_watchedErased.contains(id)) {
            detachFrom(id, nullptr, m_objectReactor);
        }
    }
}

void KyDiImpDbObjectCollection::subCollectModified(KyDiItemArray& modified) {
    for (const KyDbObjectId& id : m_pendingObjects) {
        if (id.isErased()) {
            continue;
        }
        const int index = indexOfRecord(id);
        if (index >= 0) {
            modified.append(items[index]);
        }
    }
}

int KyDiImpDbObjectCollection::indexOfRecord(KyDbObjectId id) {
    // The positions are a hint: a position is trusted only when the item
    // there still stands for the record, and a miss is only believed once
    // the positions were taken afresh from the list as it is.
    const auto hint = m_positions.find(id);
    if (hint != m_positions.end() && hint->second < items.length() &&
        idOf(items[hint->second]) == id) {
        return hint->second;
    }
    m_positions.clear();
    for (int i = 0; i < items.length(); ++i) {
        const KyDbObjectId itemId = idOf(items[i]);
        if (!itemId.isNull()) {
            m_positions.emplace(itemId, i);
        }
    }
    const auto found = m_positions.find(id);
    return found != m_positions.end() ? found->second : -1;
}

void KyDiImpDbObjectCollection::subClearPending() {
    m_pendingObjects.clear();
}

void KyDiImpDbObjectCollection::discardPending() {
    m_pendingObjects.clear();
    KyDiImpCollectionBase::discardPending();
}

void KyDiImpDbObjectCollection::subReleaseResources() {
    if (m_objectReactor == nullptr) {
        return;
    }
    // The reactor leaves every record it stands on before it goes.
    deactivate(boundDocument(), nullptr);
    delete m_objectReactor;
    m_objectReactor = nullptr;
}

bool KyDiImpDbObjectCollection::attachOnce(KyDbObjectId id, KyDbObjectReactor* reactor) {
    KyDbObject* object = nullptr;
    if (id.isNull() || reactor == nullptr ||
        kydbOpenObject(object, id, KyDb::kForNotify, true) != Kyro::eOk) {
        return false;
    }
    if (!object->reactors()->contains(reactor)) {
        object->addReactor(reactor);
    }
    object->close();
    return true;
}

bool KyDiImpDbObjectCollection::detachFrom(KyDbObjectId id, const KyDbObject* closing,
                                           KyDbObjectReactor* reactor) {
    if (id.isNull() || reactor == nullptr) {
        return false;
    }
    if (closing != nullptr && closing->objectId() == id) {
        const_cast<KyDbObject*>(closing)->removeReactor(reactor);
        return true;
    }
    KyDbObject* object = nullptr;
    if (!id.isValid() || kydbOpenObject(object, id, KyDb::kForNotify, true) != Kyro::eOk) {
        return false;
    }
    if (object->reactors()->contains(reactor)) {
        object->removeReactor(reactor);
    }
    object->close();
    return true;
}

bool KyDiImpDbObjectCollection::subFill(bool initial, KyDbDatabase* db, KyDiItemArray& list,
                                        void** context) {
    KyArray<KyDbObjectId> erased(0, 8);
    KyDbObjectId owner;
    bool filled = subFillFromDatabase(initial, db, owner, list, erased, context);
    if (initial) {
        m_ownerId = owner;
    } else if (owner != m_ownerId) {
        // The list's owner itself changed (its dictionary was replaced or
        // went): a reset lets go of the old one and listens to the new one.
        filled = false;
    }
    if (filled) {
        for (int i = 0; i < erased.length(); ++i) {
            if (!m_watchedErased.contains(erased[i])) {
                m_watchedErased.append(erased[i]);
                attachOnce(erased[i], m_objectReactor);
            }
        }
    }
    return filled;
}

void KyDiImpDbObjectCollection::subAttach() {
    attachOnce(m_ownerId, m_objectReactor);
    for (int i = 0; i < items.length(); ++i) {
        attachOnce(idOf(items[i]), m_objectReactor);
    }
    for (int i = 0; i < m_watchedErased.length(); ++i) {
        attachOnce(m_watchedErased[i], m_objectReactor);
    }
}

void KyDiImpDbObjectCollection::subDetach(KyDbObject* closing) {
    m_pendingObjects.clear();
    if (!m_ownerId.isNull()) {
        detachFrom(m_ownerId, closing, m_objectReactor);
        m_ownerId.setNull();
    }
    for (int i = 0; i < items.length(); ++i) {
        detachFrom(idOf(items[i]), closing, m_objectReactor);
    }
    for (int i = 0; i < m_watchedErased.length(); ++i) {
        detachFrom(m_watchedErased[i], nullptr, m_objectReactor);
    }
    m_watchedErased.setLogicalLength(0);
}

int KyDiImpDbObjectCollection::subFindItem(const KyDiItemArray& list, KyDiDynamicObject* item) {
    const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
    if (dbItem == nullptr) {
        return -1;
    }
    const KyDbObjectId id = dbItem->objectId();
    if (!id.isNull()) {
        for (int i = 0; i < list.length(); ++i) {
            if (idOf(list[i]) == id) {
                return i;
            }
        }
        return -1;
    }
    // A row without a record is matched by its name.
    const auto* named = kyrxCast<KyDiDbNamedItem>(static_cast<const KyRxObject*>(dbItem));
    if (named == nullptr || named->name().isEmpty()) {
        return -1;
    }
    for (int i = 0; i < list.length(); ++i) {
        const auto* other = kyrxCast<KyDiDbNamedItem>(static_cast<KyRxObject*>(list[i]));
        if (other != nullptr && other->name().compare(named->name()) == 0) {
            return i;
        }
    }
    return -1;
}

bool KyDiImpDbObjectCollection::subTooManyChanges() const {
    const int count = items.length();
    if (count < 5) {
        return false;
    }
    // Each pending record is looked for in the whole list: past the square
    // root of its length, a reset costs less.
    const auto limit = static_cast<std::size_t>(std::sqrt(static_cast<float>(count)));
    return m_pendingObjects.size() > limit;
}
