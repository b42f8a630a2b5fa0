#include "collections/KyDiImpCollectionBase.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "collections/DataItemCurrencyReactor.h"
#include "currency/DataItemCurrencyTrackerBase.h"
#include "db/KyDbHostApplicationServices.h"
#include "kydi/KyDiCollectionReactor.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/host/KyDiHostAccess.h"
#include "objects/DataItemOwnership.h"

KyDiDynamicObject* const KyDiImpCollectionBase::kNoItem =
    reinterpret_cast<KyDiDynamicObject*>(std::uintptr_t{8});

void DataItemCurrencyReactor::currencyChanged() {
    m_collection->requestCurrencyCheck();
}

KyDiImpCollectionBase::KyDiImpCollectionBase(const wchar_t* name, KyDiCurrencyTracker* tracker)
    : m_name(name), m_tracker(tracker), m_reactors(0, 8) {
    if (m_tracker != nullptr) {
        m_currencyReactor = new DataItemCurrencyReactor(this);
        m_tracker->addReactor(m_currencyReactor);
    }
}

KyDiImpCollectionBase::KyDiImpCollectionBase(const wchar_t* name)
    : m_name(name), m_reactors(0, 8) {}

KyDiImpCollectionBase::~KyDiImpCollectionBase() {
    // destroy() takes the reactor off the tracker; a collection deleted
    // without it still must not leave its reactor behind.
    if (m_currencyReactor != nullptr) {
        if (m_tracker != nullptr) {
            m_tracker->removeReactor(m_currencyReactor);
        }
        delete m_currencyReactor;
    }
    m_currentItem = nullptr;
    m_previousCurrentItem = nullptr;
    m_reactors.setPhysicalLength(0);
}

KyDiObservableCollection* KyDiImpCollectionBase::newPublicObject() {
    return new KyDiObservableCollection(this);
}

bool KyDiImpCollectionBase::isActive() const {
    return isValidBinding(m_boundDocument) &&
           KyDiHostAccess::databaseOf(m_boundDocument) != nullptr;
}

void KyDiImpCollectionBase::destroy() {
    if (m_tracker != nullptr && m_currencyReactor != nullptr) {
        m_tracker->removeReactor(m_currencyReactor);
    }
    delete m_currencyReactor;
    m_currencyReactor = nullptr;
    m_tracker = nullptr;
    subReleaseResources();
}

void KyDiImpCollectionBase::subPrepareUpdate() {}

void KyDiImpCollectionBase::subApplyItemChanges(KyDiItemArray& /*added*/,
                                                KyDiItemArray& /*removed*/,
                                                KyDiItemArray& /*modified*/) {}

void KyDiImpCollectionBase::subCollectModified(KyDiItemArray& /*modified*/) {}

void KyDiImpCollectionBase::subClearPending() {}

void KyDiImpCollectionBase::requestReset() {
    m_pendingFlags |= kResetPending;
}

void KyDiImpCollectionBase::subHostStateChanged() {}

void KyDiImpCollectionBase::subInvalidate() {}

void KyDiImpCollectionBase::subDrawingContentChanged() {}

void KyDiImpCollectionBase::subCommandEnded(const wchar_t* /*command*/) {}

void KyDiImpCollectionBase::subUcsChanged() {}

void KyDiImpCollectionBase::updateIfPending() {
    if (m_pendingFlags != 0) {
        update();
    }
}

void KyDiImpCollectionBase::discardPending() {
    m_pendingFlags = 0;
}

void KyDiImpCollectionBase::subReleaseResources() {}

void KyDiImpCollectionBase::requestRefill() {
    m_pendingFlags |= kRefillPending;
}

void KyDiImpCollectionBase::requestCurrencyCheck() {
    m_pendingFlags |= kCurrencyPending;
}

void KyDiImpCollectionBase::subDetach(KyDbObject* /*closing*/) {}

void KyDiImpCollectionBase::subAttach() {}

bool KyDiImpCollectionBase::subTooManyChanges() const {
    return false;
}

bool KyDiImpCollectionBase::subReservedQuery() const {
    return false;
}

unsigned KyDiImpCollectionBase::subFilterChangeBits(unsigned bits) {
    return bits;
}

void KyDiImpCollectionBase::subSelectionRefreshed(const std::set<KyDiDbItem*>& /*erased*/) {}

void KyDiImpCollectionBase::subMergeItems(KyDiItemArray& added, KyDiItemArray& removed,
                                          KyDiItemArray& modified, KyDiItemArray& newItems) {
    mergeByIdentity(added, removed, modified, newItems);
}

int KyDiImpCollectionBase::s_updatesRunning = 0;

void KyDiImpCollectionBase::update() {
    // While an update runs, its removed items are alive for its reactors: a
    // pass that a reactor forces must not let the item cache free them.
    struct Running {
        Running() { ++s_updatesRunning; }
        ~Running() { --s_updatesRunning; }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;
    } running;
    KyDiItemArray added(0, 8);
    KyDiItemArray removed(0, 8);
    KyDiItemArray modified(0, 8);
    const unsigned bits = subFilterChangeBits(refreshItems(added, removed, modified));
    tellReactors(bits, added, removed, modified);
    // Only now do the items that left go: every reactor has seen them alive.
    for (int i = 0; i < removed.length(); ++i) {
        DataItemOwnership::disposeDataItem(removed[i]);
    }
}

void KyDiImpCollectionBase::removeItems(const std::function<bool(KyDiDynamicObject*)>& leaves) {
    KyDiItemArray removed(0, 8);
    for (int i = 0; i < items.length();) {
        if (leaves(items[i])) {
            removed.append(items[i]);
            items.removeAt(i);
        } else {
            ++i;
        }
    }
    if (removed.isEmpty()) {
        return;
    }
    KyDiItemArray none(0, 8);
    KyDiItemArray unchanged(0, 8);
    subApplyItemChanges(none, removed, unchanged);
    ++s_updatesRunning;
    tellReactors(0, none, removed, unchanged);
    --s_updatesRunning;
    for (int i = 0; i < removed.length(); ++i) {
        DataItemOwnership::disposeDataItem(removed[i]);
    }
}

void KyDiImpCollectionBase::tellReactors(unsigned bits, const KyDiItemArray& added,
                                         const KyDiItemArray& removed,
                                         const KyDiItemArray& modified) {
    // Each walk goes over a copy: a reactor may add or remove reactors while
    // it is told.
    if ((bits & kChangeReset) != 0) {
        const KyDiCollectionReactorArray reactors = m_reactors;
        for (int i = 0; i < reactors.length(); ++i) {
            reactors[i]->collectionReset();
        }
    } else {
        if (!added.isEmpty() || !removed.isEmpty()) {
            const KyDiCollectionReactorArray reactors = m_reactors;
            for (int i = 0; i < reactors.length(); ++i) {
                reactors[i]->itemsChanged(added, removed);
            }
        }
        if (!modified.isEmpty()) {
            const KyDiCollectionReactorArray reactors = m_reactors;
            for (int i = 0; i < reactors.length(); ++i) {
                reactors[i]->itemsModified(modified);
            }
        }
    }
    if ((bits & kChangeActive) != 0) {
        const KyDiCollectionReactorArray reactors = m_reactors;
        for (int i = 0; i < reactors.length(); ++i) {
            reactors[i]->activeChanged(isActive());
        }
    }
    if (m_currentItem != m_previousCurrentItem && m_tracker != nullptr) {
        const KyDiCollectionReactorArray reactors = m_reactors;
        for (int i = 0; i < reactors.length(); ++i) {
            reactors[i]->currentItemChanged(m_currentItem);
        }
    }
}

unsigned KyDiImpCollectionBase::refreshItems(KyDiItemArray& added, KyDiItemArray& removed,
                                             KyDiItemArray& modified) {
    unsigned bits = 0;
    const KyDiDocument document = KyDiHostAccess::currentDocument();
    const bool toldActive = m_wasActive;
    const bool active = isActive();
    if (active != m_wasActive) {
        bits |= kChangeActive;
    } else if ((document != kKyDiNoDocument && !isValidBinding(m_boundDocument)) ||
               (document == kKyDiNoDocument && isValidBinding(m_boundDocument))) {
        bits |= kChangeActive;
    }
    m_wasActive = active;

    subPrepareUpdate();
    if (document != m_boundDocument || (m_pendingFlags & kResetPending) != 0 ||
        subTooManyChanges()) {
        return resetItems(bits, toldActive);
    }
    if ((m_pendingFlags & kRefillPending) != 0) {
        KyDiItemArray newItems(0, 8);
        if (isValidBinding(m_boundDocument)) {
            KyDbDatabase* db = KyDiHostAccess::databaseOf(m_boundDocument);
            if (!subFill(false, db, newItems, &itemsContext)) {
                return resetItems(bits, toldActive);
            }
        }
        subMergeItems(added, removed, modified, newItems);
        subApplyItemChanges(added, removed, modified);
        // The current item left the list: the tracker is asked again.
        if (removed.contains(m_currentItem)) {
            m_pendingFlags |= kCurrencyPending;
        }
    }
    subCollectModified(modified);
    m_previousCurrentItem = m_currentItem;
    if (m_tracker != nullptr && document != kKyDiNoDocument) {
        m_tracker->update();
        if ((m_pendingFlags & kCurrencyPending) != 0) {
            m_currentItem = m_tracker->getCurrentItem();
        }
    }
    m_pendingFlags = 0;
    subClearPending();
    return bits;
}

unsigned KyDiImpCollectionBase::resetItems(unsigned bits, bool toldActive) {
    deactivate(m_boundDocument, nullptr);
    const KyDiDocument document = KyDiHostAccess::rawCurrentDocument();
    if (document != kKyDiNoDocument && document == KyDiHostAccess::dyingDocument()) {
        m_boundDocument = kKyDiNoDocument;
    } else {
        m_boundDocument = document;
        if (KyDbDatabase* db = KyDiHostAccess::databaseOf(document)) {
            fillFrom(db);
        }
    }
    // Other collections that share the tracker look again too.
    if (auto* shared = dynamic_cast<DataItemCurrencyTrackerBase*>(m_tracker)) {
        shared->notifyReactors();
    }
    // The activity told with this reset is the one after it, and only when it
    // differs from what the clients were told (a collection may be inactive
    // while bound: the plot styles of a drawing without named plot styles).
    // The next update does not tell it again.
    m_wasActive = isActive();
    bits = m_wasActive != toldActive ? bits | kChangeActive : bits & ~kChangeActive;
    m_pendingFlags = 0;
    subClearPending();
    return bits | kChangeReset;
}

bool KyDiImpCollectionBase::fillFrom(KyDbDatabase* db) {
    if (!subFill(true, db, items, &itemsContext)) {
        return false;
    }
    if (m_tracker != nullptr) {
        m_currentItem = m_tracker->getCurrentItem();
    }
    subAttach();
    return true;
}

void KyDiImpCollectionBase::bindToDocument(KyDiDocument document) {
    m_boundDocument = document;
    if (KyDbDatabase* db = KyDiHostAccess::databaseOf(document)) {
        fillFrom(db);
    }
}

void KyDiImpCollectionBase::deactivate(KyDiDocument document, KyDbObject* closing) {
    if (document != m_boundDocument || !isValidBinding(document)) {
        return;
    }
    KyDbDatabase* db = KyDiHostAccess::databaseOf(document);
    if (db == nullptr) {
        return;
    }
    // Detaching opens the records, which the host allows in the working
    // database: the document's database stands in for the time it takes.
    KyDbHostApplicationServices* services = kydbHostApplicationServices();
    KyDbDatabase* working = services != nullptr ? services->workingDatabase() : nullptr;
    const bool swap = services != nullptr && working != db;
    if (swap) {
        services->setWorkingDatabase(db);
    }
    subDetach(closing);
    if (swap) {
        services->setWorkingDatabase(working);
    }
    m_previousCurrentItem = kNoItem;
    m_currentItem = nullptr;
    if ((m_traits & kKeepItemsWhenUnbound) == 0) {
        clearItems();
    }
    itemsContext = nullptr;
    m_boundDocument = kKyDiUnboundDocument;
}

void KyDiImpCollectionBase::mergeByIdentity(KyDiItemArray& added, KyDiItemArray& removed,
                                            KyDiItemArray& modified, KyDiItemArray& newItems) {
    // An item the cache keeps comes back as the same object: most matches
    // are found by address, and only what isn't is looked for by the
    // collection's own rule. A large list thus merges in linear time.
    std::unordered_map<KyDiDynamicObject*, int> byAddress;
    byAddress.reserve(static_cast<std::size_t>(newItems.length()));
    for (int i = 0; i < newItems.length(); ++i) {
        byAddress.emplace(newItems[i], i);
    }
    std::vector<bool> matched(static_cast<std::size_t>(newItems.length()), false);
    std::vector<bool> kept(static_cast<std::size_t>(items.length()), true);
    for (int i = items.length() - 1; i >= 0; --i) {
        KyDiDynamicObject* entry = items[i];
        const auto same = byAddress.find(entry);
        int k = same != byAddress.end() ? same->second : subFindItem(newItems, entry);
        if (k >= 0 && matched[static_cast<std::size_t>(k)]) {
            k = -1;
        }
        if (k < 0) {
            removed.append(entry);
            kept[static_cast<std::size_t>(i)] = false;
            continue;
        }
        matched[static_cast<std::size_t>(k)] = true;
        // For an item the cache keeps, the new pointer is the same object;
        // its name is read from the record as it stands now. Any other new
        // object (an entry of no record, matched by its name) is given up:
        // the entry stays.
        if (newItems[k] != entry) {
            if (KyDiGetItemName(newItems[k]).compare(KyDiGetItemName(entry)) != 0) {
                modified.append(entry);
            }
            DataItemOwnership::disposeDataItem(newItems[k]);
        }
    }
    if (!removed.isEmpty()) {
        int to = 0;
        for (int i = 0; i < items.length(); ++i) {
            if (kept[static_cast<std::size_t>(i)]) {
                items[to++] = items[i];
            }
        }
        items.setLogicalLength(to);
    }
    for (int i = 0; i < newItems.length(); ++i) {
        if (!matched[static_cast<std::size_t>(i)]) {
            added.append(newItems[i]);
            items.append(newItems[i]);
        }
    }
    newItems.setLogicalLength(0);
}

void KyDiImpCollectionBase::mergeByName(KyDiItemArray& added, KyDiItemArray& removed,
                                        KyDiItemArray& newItems) {
    std::map<KyString, int, KyStringLess> byName;
    for (int i = 0; i < newItems.length(); ++i) {
        byName[KyDiGetItemName(newItems[i])] = i;
    }
    std::set<KyDiDynamicObject*> discarded;
    std::set<KyDiDynamicObject*> matched;
    for (int i = items.length() - 1; i >= 0; --i) {
        KyDiDynamicObject* entry = items[i];
        const auto found = byName.find(KyDiGetItemName(entry));
        if (found == byName.end()) {
            removed.append(entry);
            items.removeAt(i);
            continue;
        }
        KyDiDynamicObject* fresh = newItems[found->second];
        if (fresh != nullptr && fresh != entry && !discarded.contains(fresh)) {
            DataItemOwnership::disposeDataItem(fresh);
            discarded.insert(fresh);
        }
        matched.insert(fresh);
    }
    for (int i = 0; i < newItems.length(); ++i) {
        if (!matched.contains(newItems[i])) {
            added.append(newItems[i]);
            items.append(newItems[i]);
        }
    }
    newItems.setLogicalLength(0);
}
