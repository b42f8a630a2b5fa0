#include "manager/KnownCollectionRegistry.h"

#include "db/KyDbEnums.h"

#include <cwchar>
#include <utility>

#include "collections/KyDiImpCollectionBase.h"
#include "collections/KyDiImpDictionaryItemCollection.h"
#include "effective/KyDiImpEffectiveProperty.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiEffectiveProperty.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydi/KyDiObservableEnumCollection.h"
#include "manager/KyDiManagerState.h"
#include "manager/host/IKyDiSymbolTableRegisterHost.h"
#include "manager/host/KyDiHostAccess.h"
#include "objects/KyDiObservableEnumCollectionImp.h"
#include "rx/KyRxMember.h"
#include "rx/KyRxMethod.h"
#include "rx/KyRxValue.h"

namespace {

// The rows' names are matched exactly, character by character.
bool sameName(const wchar_t* a, const wchar_t* b) {
    return a != nullptr && b != nullptr && std::wcscmp(a, b) == 0;
}

KyDiImpCollectionBase* bodyOf(KyDiObservableCollection* collection) {
    return static_cast<KyDiImpCollectionBase*>(collection->imp());
}

// Makes the tracker of a row, and keeps it under the row's name (also a null
// one, which the next demand takes as absent).
KyDiCurrencyTracker* makeTracker(const wchar_t* name, NewTracker newTracker, const wchar_t* sysVar,
                                 const wchar_t* commandFormat, KyDbIdGetter getCurrent,
                                 KyDbIdSetter setCurrent) {
    KyDiCurrencyTracker* tracker = newTracker(name, sysVar, commandFormat, getCurrent, setCurrent);
    kydiManagerState().currencyTrackers[name] = tracker;
    return tracker;
}

// The tracker of the first row named `name` in a table closed by a null
// name, made and kept under the name; null, and nothing kept, when no row
// with a factory has the name or the factory gives none.
KyDiCurrencyTracker* trackerOfRow(const KnownEnumRow* rows, const wchar_t* name) {
    for (const KnownEnumRow* row = rows; row->name != nullptr; ++row) {
        if (sameName(row->name, name) && row->newTracker != nullptr) {
            KyDiCurrencyTracker* tracker =
                row->newTracker(row->name, row->sysVar, row->commandFormat, nullptr, nullptr);
            if (tracker != nullptr) {
                kydiManagerState().currencyTrackers[row->name] = tracker;
            }
            return tracker;
        }
    }
    return nullptr;
}

}  // namespace

void KnownCollectionRegistry::install() {
    KyDiManagerState& state = kydiManagerState();
    // A module's rows come ahead of the static ones.
    if (IKyDiSymbolTableRegisterHost* symbolTables = IKyDiSymbolTableRegisterHost::instance()) {
        symbolTables->registerDataItemFactories();
    }
    for (const KnownCollectionRow& row : KnownCollectionRows::staticRows()) {
        state.knownCollectionRows.push_back(row);
    }
    const std::vector<KnownCollectionRow> rows = state.knownCollectionRows;
    for (const KnownCollectionRow& row : rows) {
        if (row.path != nullptr) {
            state.knownCollectionPaths[row.path] = row.name;
        }
    }
}

void KnownCollectionRegistry::registerDataItemFactory(const wchar_t* name,
                                                      NewCollection newCollection) {
    KnownCollectionRow row;
    row.name = name;
    row.newCollection = newCollection;
    kydiManagerState().knownCollectionRows.push_back(row);
}

KyDiObservableCollection* KnownCollectionRegistry::getKnownCollection(const wchar_t* name) {
    if (name == nullptr) {
        return nullptr;
    }
    const auto& collections = kydiManagerState().knownCollections;
    if (const auto found = collections.find(name); found != collections.end()) {
        return found->second;
    }
    return getKnownCollection(name, nullptr);
}

KyDiObservableCollection* KnownCollectionRegistry::getKnownCollection(
    const wchar_t* name, KyDiCurrencyTracker* tracker) {
    KyDiManagerState& state = kydiManagerState();
    if (state.managerShutDown || name == nullptr) {
        return nullptr;
    }
    KyDiObservableCollection* collection = newKnownCollection(name);
    if (collection == nullptr && tracker != nullptr) {
        // A dictionary no row knows: the name is its path of keys, and the
        // caller brings the tracker.
        collection = (new KyDiImpDictionaryItemCollection(name, tracker))->newPublicObject();
    }
    if (collection != nullptr) {
        auto [entry, inserted] = state.knownCollections.try_emplace(name, collection);
        if (!inserted) {
            // The collection it replaces stays alive, out of reach by name.
            state.replacedCollections.push_back(std::exchange(entry->second, collection));
        }
        // A document being destroyed counts as none: nothing binds to it.
        bodyOf(collection)->bindToDocument(KyDiHostAccess::currentDocument());
    }
    // The effective property comes along to the document in front: a client
    // that reads it next finds it bound.
    if (KyDiEffectiveProperty* effective = state.effectiveProperty) {
        const KyDiDocument current = KyDiHostAccess::currentDocument();
        if (current != kKyDiNoDocument && KyDiHostAccess::databaseOf(current) != nullptr &&
            effective->imp()->document() != current) {
            effective->imp()->flushStep();
        }
    }
    return collection;
}

KyDiObservableCollection* KnownCollectionRegistry::getKnownCollectionFromPath(const wchar_t* path) {
    if (path == nullptr) {
        return nullptr;
    }
    const auto& paths = kydiManagerState().knownCollectionPaths;
    const auto found = paths.find(path);
    return found != paths.end() ? getKnownCollection(found->second) : nullptr;
}

KyDiObservableCollection* KnownCollectionRegistry::newKnownCollection(const wchar_t* name) {
    // A factory may add rows: the walk goes over a copy.
    const std::vector<KnownCollectionRow> rows = kydiManagerState().knownCollectionRows;
    for (const KnownCollectionRow& row : rows) {
        if (!sameName(row.name, name)) {
            continue;
        }
        KyDiCurrencyTracker* tracker = nullptr;
        if (row.newTracker != nullptr) {
            tracker = getCurrencyTracker(name, false);
            if (tracker == nullptr) {
                tracker = makeTracker(row.name, row.newTracker, row.sysVar, row.commandFormat,
                                      row.getCurrent, row.setCurrent);
            }
        }
        if (row.newCollection == nullptr) {
            return nullptr;
        }
        return static_cast<KyDiImpCollectionBase*>(
                   row.newCollection(row.name, tracker, row.getTableId))
            ->newPublicObject();
    }
    return nullptr;
}

KyDiCurrencyTracker* KnownCollectionRegistry::getCurrencyTracker(const wchar_t* name, bool create) {
    if (name == nullptr) {
        return nullptr;
    }
    KyDiManagerState& state = kydiManagerState();
    if (const auto found = state.currencyTrackers.find(name);
        found != state.currencyTrackers.end() && found->second != nullptr) {
        return found->second;
    }
    if (!create) {
        return nullptr;
    }
    const std::vector<KnownCollectionRow> rows = state.knownCollectionRows;
    for (const KnownCollectionRow& row : rows) {
        if (sameName(row.name, name) && row.newTracker != nullptr) {
            if (KyDiCurrencyTracker* tracker =
                    makeTracker(row.name, row.newTracker, row.sysVar, row.commandFormat,
                                row.getCurrent, row.setCurrent)) {
                return tracker;
            }
        }
    }
    // Then the drawing context's values, then the enumerations.
    if (KyDiCurrencyTracker* tracker =
            trackerOfRow(KnownCollectionRows::drawingTrackerRows(), name)) {
        return tracker;
    }
    return trackerOfRow(KnownCollectionRows::enumRows(), name);
}

KyDiCollection* KnownCollectionRegistry::getCollection(const IKyRxEnumeration* enumeration) {
    if (enumeration == nullptr) {
        return nullptr;
    }
    const KyDiManagerState& state = kydiManagerState();
    if (const auto found = state.enumCollections.find(enumeration);
        found != state.enumCollections.end()) {
        return found->second;
    }
    if (const auto found = state.observableEnumCollections.find(enumeration);
        found != state.observableEnumCollections.end()) {
        return found->second;
    }
    return newEnumCollection(enumeration);
}

KyDiCollection* KnownCollectionRegistry::newEnumCollection(const IKyRxEnumeration* enumeration) {
    KyDiManagerState& state = kydiManagerState();
    // Only the lineweights have a row: the shadow flags, although they have
    // one, are reached by that row's name alone.
    const KnownEnumRow* match = nullptr;
    for (const KnownEnumRow* row = KnownCollectionRows::enumRows(); row->name != nullptr; ++row) {
        if (sameName(row->name, L"LINEWEIGHT") &&
            KyRxValueType::Desc<KyDb::LineWeight>::value().enumeration() == enumeration) {
            match = row;
        }
    }
    if (match != nullptr) {
        if (match->newTracker == nullptr) {
            return nullptr;
        }
        KyDiCurrencyTracker* tracker = getCurrencyTracker(match->name, false);
        if (tracker == nullptr) {
            tracker = match->newTracker(match->name, match->sysVar, match->commandFormat, nullptr,
                                        nullptr);
            state.currencyTrackers[match->name] = tracker;
            if (tracker == nullptr) {
                return nullptr;
            }
        }
        auto* body = new KyDiObservableEnumCollectionImp(enumeration, tracker);
        auto* collection = new KyDiObservableEnumCollection(body);
        fillEnumItems(enumeration, body);
        state.observableEnumCollections[enumeration] = collection;
        const KyDiDocument document = KyDiHostAccess::currentDocument();
        if (document != kKyDiNoDocument && KyDiHostAccess::databaseOf(document) != nullptr) {
            body->boundDocument = document;
            body->currentItem = tracker->getCurrentItem();
        }
        return collection;
    }
    auto* body = new KyDiImpCollection();
    auto* collection = new KyDiCollection(body);
    fillEnumItems(enumeration, body);
    state.enumCollections[enumeration] = collection;
    return collection;
}

void KnownCollectionRegistry::fillEnumItems(const IKyRxEnumeration* enumeration,
                                            KyDiImpCollection* collection) {
    for (int i = 0; i < enumeration->count(); ++i) {
        const KyRxEnumTag& tag = enumeration->getAt(i);
        KyString name = tag.localName();
        if (name.isEmpty()) {
            name = tag.name();
        }
        if (KyDiDynamicObject* item = createDataItem(name, tag.value())) {
            collection->items.append(item);
        }
    }
}

void KnownCollectionRegistry::destroyAll() {
    KyDiManagerState& state = kydiManagerState();
    // Nothing is deleted yet: a collection may still look at another one
    // while it lets go.
    for (const auto& [name, collection] : state.knownCollections) {
        collection->destroy();
    }
    for (KyDiObservableCollection* collection : state.replacedCollections) {
        collection->destroy();
    }
}

void KnownCollectionRegistry::releaseEnumTrackers() {
    for (const auto& [enumeration, collection] : kydiManagerState().observableEnumCollections) {
        static_cast<KyDiObservableEnumCollectionImp*>(collection->imp())->releaseTracker();
    }
}

void KnownCollectionRegistry::deleteAll() {
    KyDiManagerState& state = kydiManagerState();
    // Collections go before the trackers they use.
    for (auto& [enumeration, collection] : std::exchange(state.enumCollections, {})) {
        delete collection;
    }
    for (auto& [enumeration, collection] : std::exchange(state.observableEnumCollections, {})) {
        delete collection;
    }
    for (auto& [name, collection] : std::exchange(state.knownCollections, {})) {
        delete collection;
    }
    for (KyDiObservableCollection* collection : std::exchange(state.replacedCollections, {})) {
        delete collection;
    }
    for (auto& [name, tracker] : std::exchange(state.currencyTrackers, {})) {
        delete tracker;
    }
}
