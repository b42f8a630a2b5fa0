#include "effective/KyDiImpEffectiveSelectionProperty.h"

#include <vector>

#include "collections/KyDiImpDbObjectCollection.h"
#include "currency/DataItemCurrencyTrackerBase.h"
#include "db/KyDbEntity.h"
#include "db/KyDbFullSubentPath.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiEffectiveValue.h"
#include "kydi/KyDiSelectionService.h"
#include "manager/KnownCollectionRegistry.h"
#include "manager/host/KyDiHostAccess.h"

namespace {

constexpr std::uint32_t kDirty = KyDiEffectiveEntry::kEntryDirty;
constexpr std::uint32_t kNotApplicable = KyDiEffectiveEntry::kEntryNotApplicable;
constexpr std::uint32_t kVaries = KyDiEffectiveEntry::kEntryVaries;

bool sameValue(const KyDiEffectiveValue& a, const KyDiEffectiveValue& b) {
    if (a.kind != b.kind) {
        return false;
    }
    switch (a.kind) {
        case KyDiEffectiveValue::kObjectId:
            return a.objectId == b.objectId;
        case KyDiEffectiveValue::kLineWeight:
            return a.lineWeight == b.lineWeight;
        case KyDiEffectiveValue::kColor:
            return a.color == b.color;
        case KyDiEffectiveValue::kTransparency:
            return a.transparency == b.transparency;
        default:
            // A kind without a comparison agrees with itself.
            return true;
    }
}

}  // namespace

KyDiImpEffectiveSelectionProperty::KyDiImpEffectiveSelectionProperty()
    : m_objectReactor(new KyDiObjectModifiedReactor<KyDiImpEffectiveSelectionProperty>(this)) {}

KyDiImpEffectiveSelectionProperty::~KyDiImpEffectiveSelectionProperty() {
    // No object may keep a reactor that is about to go.
    releaseObjectReactors();
    delete m_objectReactor;
}

void KyDiImpEffectiveSelectionProperty::subHostStateChanged() {
    for (const auto& [key, entry] : boundEntries()) {
        markKey(key);
    }
    requestReportAll();
}

void KyDiImpEffectiveSelectionProperty::releaseObjectReactors() {
    for (const KyDbObjectId& id : m_watched) {
        KyDiImpDbObjectCollection::detachFrom(id, nullptr, m_objectReactor);
    }
    m_watched.clear();
}

void KyDiImpEffectiveSelectionProperty::documentChanged() {
    releaseObjectReactors();
}

KyDiDynamicObject* KyDiImpEffectiveSelectionProperty::computeItem(KyDiEffectiveEntry* /*entry*/) {
    return nullptr;
}

void KyDiImpEffectiveSelectionProperty::objectErased(const KyDbObject* /*object*/,
                                                     bool /*erasing*/) {
    subHostStateChanged();
}

void KyDiImpEffectiveSelectionProperty::objectClosed(KyDbObjectId /*id*/) {
    subHostStateChanged();
}

Kyro::ErrorStatus KyDiImpEffectiveSelectionProperty::missingItemStatus() const {
    return Kyro::eOk;
}

bool KyDiImpEffectiveSelectionProperty::readSelection(KyArray<KyDbObjectId>& ids) {
    KyDiSelectionService* selection = KyDiHostAccess::selectionService();
    if (selection == nullptr || !selection->hasSelection()) {
        return false;
    }
    // The sub-entities say nothing of their entities' values.
    KyDiSelectionService::SubentPathArray paths;
    selection->getSelection(ids, paths);
    return !ids.isEmpty();
}

Kyro::ErrorStatus KyDiImpEffectiveSelectionProperty::getEntryItem(KyDiEffectiveEntry* entry,
                                                                  KyDiDynamicObject*& item) {
    KyArray<KyDbObjectId> ids;
    if (!readSelection(ids)) {
        // Nothing is selected: what a new object would get.
        releaseObjectReactors();
        if (entry->tracker == nullptr) {
            return Kyro::eNotApplicable;
        }
        entry->item = entry->tracker->getCurrentItem();
        entry->flags &= ~(kDirty | kNotApplicable | kVaries);
    } else {
        scan(ids);
        watch(ids);
    }
    item = entry->item;
    return (entry->flags & kNotApplicable) != 0 ? Kyro::eNotApplicable : Kyro::eOk;
}

void KyDiImpEffectiveSelectionProperty::scan(const KyArray<KyDbObjectId>& ids) {
    struct Pair {
        KyDiEffectiveEntry* entry;
        KyDiEffectiveValue common;
    };
    std::vector<Pair> pairs;
    for (KyDiEffectiveEntry& row : rows()) {
        if (row.tracker == nullptr || (row.flags & kDirty) == 0) {
            continue;
        }
        row.flags &= ~(kDirty | kNotApplicable | kVaries);
        pairs.push_back({&row, KyDiEffectiveValue()});
    }
    if (pairs.empty()) {
        return;
    }
    for (int i = 0; i < ids.length(); ++i) {
        // What isn't an entity has none of these values; it is skipped, and
        // when it comes first the others are compared to an empty value.
        KyDbObjectPointer<KyDbEntity> entity(ids[i], KyDb::kForRead);
        if (!entity) {
            continue;
        }
        for (Pair& pair : pairs) {
            KyDiEffectiveEntry& row = *pair.entry;
            if ((row.flags & (kNotApplicable | kVaries)) != 0) {
                continue;
            }
            KyDiEffectiveValue read;
            if (row.selectionGetter == nullptr ||
                row.selectionGetter(entity.object(), read) != Kyro::eOk) {
                row.flags |= kNotApplicable;
                continue;
            }
            fold(row, i, read, pair.common);
        }
    }
    for (Pair& pair : pairs) {
        KyDiEffectiveEntry& row = *pair.entry;
        row.item = nullptr;
        if ((row.flags & (kNotApplicable | kVaries)) != 0) {
            continue;
        }
        if (auto* tracker = dynamic_cast<DataItemCurrencyTrackerBase*>(row.tracker)) {
            row.item = tracker->findItem(pair.common);
        }
    }
}

void KyDiImpEffectiveSelectionProperty::fold(KyDiEffectiveEntry& entry, int index,
                                             const KyDiEffectiveValue& read,
                                             KyDiEffectiveValue& common) {
    if (index == 0) {
        common = read;
    } else if (!sameValue(common, read)) {
        entry.flags |= kVaries;
    }
}

void KyDiImpEffectiveSelectionProperty::watch(const KyArray<KyDbObjectId>& ids) {
    // The set keeps everything selected since the selection was last empty.
    for (int i = 0; i < ids.length(); ++i) {
        if (ids[i].isNull()) {
            continue;
        }
        KyDiImpDbObjectCollection::attachOnce(ids[i], m_objectReactor);
        m_watched.insert(ids[i]);
    }
}

Kyro::ErrorStatus KyDiImpEffectiveSelectionProperty::setEntryItem(KyDiEffectiveEntry* entry,
                                                                  KyDiDynamicObject* item) {
    KyDiCurrencyTracker* tracker = KnownCollectionRegistry::getCurrencyTracker(entry->key, false);
    if (tracker == nullptr) {
        return Kyro::eInvalidInput;
    }
    KyArray<KyDbObjectId> ids;
    if (!readSelection(ids)) {
        tracker->setCurrentItem(item);
        return Kyro::eOk;
    }
    KyDiSelectionService* selection = KyDiHostAccess::selectionService();
    if (item == nullptr || entry->selectionSetter == nullptr || selection == nullptr) {
        return Kyro::eInvalidInput;
    }
    int total = 0;
    int excluded = 0;
    int third = 0;
    KyString text;
    selection->getSelectionCounts(KyDiSelectionService::kChangeProperties, total, excluded, third,
                                  nullptr, nullptr, nullptr, text);
    // When every selected object must be left alone, nothing is sent.
    if (excluded < total) {
        entry->selectionSetter(item, m_watched);
    }
    return Kyro::eOk;
}
