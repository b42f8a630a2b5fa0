#include "effective/KyDiImpEffectiveProperty.h"

#include <utility>

#include "db/KyAxDocLock.h"
#include "effective/EffectiveEntryTable.h"
#include "effective/EffectivePropertyCurrencyReactor.h"
#include "effective/EffectivePropertyLayerCollectionReactor.h"
#include "effective/EffectivePropertyViewportReactor.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiEffectivePropertyReactor.h"
#include "manager/KnownCollectionRegistry.h"
#include "manager/host/KyDiHostAccess.h"

KyDiImpEffectiveProperty::KyDiImpEffectiveProperty() {
    const auto rows = EffectiveEntryTable::rows();
    m_rows.assign(rows.begin(), rows.end());
}

KyDiImpEffectiveProperty::~KyDiImpEffectiveProperty() {
    m_reactors.setLogicalLength(0);
    releaseDependencyReactors();
    for (KyDiEffectiveEntry& row : m_rows) {
        if (row.currencyReactor == nullptr) {
            continue;
        }
        if (KyDiCurrencyTracker* tracker =
                KnownCollectionRegistry::getCurrencyTracker(row.key, false)) {
            tracker->removeReactor(row.currencyReactor);
        }
        delete row.currencyReactor;
        row.currencyReactor = nullptr;
    }
    m_entries.clear();
    m_changed.clear();
}

void KyDiImpEffectiveProperty::releaseDependencyReactors() {
    delete m_layerReactor;
    m_layerReactor = nullptr;
    delete m_viewportReactor;
    m_viewportReactor = nullptr;
}

void KyDiImpEffectiveProperty::flush() {
    if (m_pending != 0) {
        flushStep();
    }
}

void KyDiImpEffectiveProperty::discardPending() {
    m_pending = 0;
    m_changed.clear();
}

void KyDiImpEffectiveProperty::subHostStateChanged() {}

void KyDiImpEffectiveProperty::releaseObjectReactors() {}

void KyDiImpEffectiveProperty::documentChanged() {}

void KyDiImpEffectiveProperty::entryBound(const wchar_t* /*key*/, KyDiEffectiveEntry* /*entry*/) {}

KyDiDynamicObject* KyDiImpEffectiveProperty::computeItem(KyDiEffectiveEntry* entry) {
    if (entry->tracker == nullptr) {
        return nullptr;
    }
    entry->item = entry->tracker->getCurrentItem();
    entry->flags &= ~(KyDiEffectiveEntry::kEntryDirty | KyDiEffectiveEntry::kEntryNotApplicable);
    return entry->item;
}

Kyro::ErrorStatus KyDiImpEffectiveProperty::getEntryItem(KyDiEffectiveEntry* entry,
                                                         KyDiDynamicObject*& item) {
    item = computeItem(entry);
    return item != nullptr ? Kyro::eOk : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDiImpEffectiveProperty::setEntryItem(KyDiEffectiveEntry* entry,
                                                         KyDiDynamicObject* item) {
    KyDiCurrencyTracker* tracker = KnownCollectionRegistry::getCurrencyTracker(entry->key, false);
    if (tracker == nullptr) {
        return Kyro::eInvalidInput;
    }
    tracker->setCurrentItem(item);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDiImpEffectiveProperty::missingItemStatus() const {
    // A key whose tracker finds nothing current reads so every time, not
    // only while its item is stale.
    return Kyro::eInvalidInput;
}

KyDiDocument KyDiImpEffectiveProperty::currentDocument() {
    return KyDiHostAccess::currentDocument();
}

KyDiDynamicObject* KyDiImpEffectiveProperty::getItem(const wchar_t* key) {
    if (currentDocument() != m_document || KyDiHostAccess::workingDatabase() == nullptr) {
        return nullptr;
    }
    KyDiEffectiveEntry* found = entry(key);
    if (found == nullptr) {
        return nullptr;
    }
    return (found->flags & KyDiEffectiveEntry::kEntryDirty) != 0 ? computeItem(found) : found->item;
}

Kyro::ErrorStatus KyDiImpEffectiveProperty::getItem(const wchar_t* key, KyDiDynamicObject*& item) {
    if (currentDocument() != m_document) {
        return Kyro::eNotApplicable;
    }
    item = nullptr;
    if (KyDiHostAccess::workingDatabase() == nullptr) {
        return Kyro::eNotApplicable;
    }
    KyDiEffectiveEntry* found = entry(key);
    if (found == nullptr) {
        return Kyro::eNotApplicable;
    }
    if ((found->flags & KyDiEffectiveEntry::kEntryDirty) != 0) {
        if (const Kyro::ErrorStatus status = getEntryItem(found, item); status != Kyro::eOk) {
            return status;
        }
    } else {
        item = found->item;
    }
    if ((found->flags & KyDiEffectiveEntry::kEntryNotApplicable) != 0) {
        return Kyro::eNotApplicable;
    }
    // The selected objects differ: no item stands for all of them.
    if ((found->flags & KyDiEffectiveEntry::kEntryVaries) != 0) {
        item = nullptr;
        return Kyro::eOk;
    }
    return item != nullptr ? Kyro::eOk : missingItemStatus();
}

Kyro::ErrorStatus KyDiImpEffectiveProperty::setItem(const wchar_t* key, KyDiDynamicObject* item) {
    if (item == nullptr) {
        return Kyro::eInvalidInput;
    }
    KyDiEffectiveEntry* found = entry(key);
    if (found == nullptr) {
        return Kyro::eInvalidInput;
    }
    const KyAxDocLock lock;
    if (lock.lockStatus() != Kyro::eOk) {
        return lock.lockStatus();
    }
    const Kyro::ErrorStatus status = setEntryItem(found, item);
    // Marked also when the tracker refused: the next read tells what holds.
    markKey(found->key);
    return status;
}

KyDiEffectiveEntry* KyDiImpEffectiveProperty::entry(const wchar_t* key) {
    if (const auto found = m_entries.find(key); found != m_entries.end()) {
        return found->second;
    }
    const int index = EffectiveEntryTable::find(key);
    if (index < 0) {
        entryBound(key, nullptr);
        return nullptr;
    }
    // A key given by another pointer than the table's own.
    if (const auto found = m_entries.find(m_rows[index].key); found != m_entries.end()) {
        return found->second;
    }
    return bind(index);
}

KyDiEffectiveEntry* KyDiImpEffectiveProperty::bind(int index) {
    KyDiEffectiveEntry& row = m_rows[index];
    if ((row.flags & KyDiEffectiveEntry::kEntryViewportDependent) != 0) {
        if (EffectiveEntryTable::takeDependency(index,
                                                KyDiEffectiveEntry::kEntryViewportDependent)) {
            if (m_viewportReactor == nullptr) {
                m_viewportReactor = new EffectivePropertyViewportReactor(this);
            }
            m_viewportReactor->addKey(row.key);
        }
        row.flags &= ~KyDiEffectiveEntry::kEntryViewportDependent;
    }
    if ((row.flags & KyDiEffectiveEntry::kEntryLayerDependent) != 0) {
        if (EffectiveEntryTable::takeDependency(index, KyDiEffectiveEntry::kEntryLayerDependent)) {
            if (m_layerReactor == nullptr) {
                m_layerReactor = new EffectivePropertyLayerCollectionReactor(this);
            }
            m_layerReactor->addKey(row.key);
        }
        row.flags &= ~KyDiEffectiveEntry::kEntryLayerDependent;
    }
    // Making the layer collection brings the effective property along to the
    // document in front, and a client told of that may have bound the key.
    if (const auto bound = m_entries.find(row.key); bound != m_entries.end()) {
        return bound->second;
    }
    KyDiCurrencyTracker* tracker = KnownCollectionRegistry::getCurrencyTracker(row.key, true);
    if (tracker == nullptr) {
        entryBound(row.key, nullptr);
        return nullptr;
    }
    row.currencyReactor = new EffectivePropertyCurrencyReactor(this, row.key);
    tracker->addReactor(row.currencyReactor);
    m_entries[row.key] = &row;
    row.tracker = tracker;
    entryBound(row.key, &row);
    return &row;
}

void KyDiImpEffectiveProperty::markKey(const wchar_t* key) {
    const auto found = m_entries.find(key);
    if (found == m_entries.end()) {
        return;
    }
    found->second->flags |= KyDiEffectiveEntry::kEntryDirty;
    m_changed.insert(found->second);
    m_pending |= kFlushRequested;
}

void KyDiImpEffectiveProperty::releaseDocument() {
    documentChanged();
    m_document = kKyDiUnboundDocument;
}

void KyDiImpEffectiveProperty::flushStep() {
    const KyDiDocument current = currentDocument();
    if (current != m_document || m_documentChanging) {
        if (current != kKyDiNoDocument && KyDiHostAccess::databaseOf(current) != nullptr &&
            current != m_document) {
            m_documentChanging = true;
            m_document = current;
            documentChanged();
        }
        m_documentChanging = false;
        // Whatever the instance showed belonged to another document.
        if (m_document != kKyDiUnboundDocument) {
            for (const auto& [key, bound] : m_entries) {
                markKey(key);
            }
        }
    }
    report();
}

void KyDiImpEffectiveProperty::report() {
    // What was marked is taken out before anybody is told: a mark made while
    // a reactor is told waits for the next flush.
    const std::set<KyDiEffectiveEntry*> changed = std::exchange(m_changed, {});
    const bool all = changed.size() >= m_entries.size() || (m_pending & kReportAll) != 0;
    m_pending = 0;
    if (changed.empty()) {
        return;
    }
    for (KyDiEffectiveEntry* entry : changed) {
        entry->flags |= KyDiEffectiveEntry::kEntryDirty;
    }
    // A reactor may leave while it is told.
    const KyArray<KyDiEffectivePropertyReactor*> reactors = m_reactors;
    if (all) {
        for (int i = 0; i < reactors.length(); ++i) {
            reactors[i]->allPropertiesChanged();
        }
        return;
    }
    for (const KyDiEffectiveEntry* entry : changed) {
        for (int i = 0; i < reactors.length(); ++i) {
            reactors[i]->propertyChanged(entry->key);
        }
    }
}

void KyDiImpEffectiveProperty::addReactor(KyDiEffectivePropertyReactor* reactor) {
    if (reactor != nullptr) {
        m_reactors.append(reactor);
    }
}

void KyDiImpEffectiveProperty::removeReactor(KyDiEffectivePropertyReactor* reactor) {
    if (reactor != nullptr) {
        m_reactors.remove(reactor);
    }
}
