#include "manager/host/DataItemHostReactor.h"

#include <vector>

#include "collections/KyDiImpCollectionBase.h"
#include "contexts/KyDiContextManagerImp.h"
#include "currency/DataItemCurrencyTrackerBase.h"
#include "currency/LayoutCurrencyTrackerBase.h"
#include "currency/PlotCurrencyTrackerBase.h"
#include "kydi/KyDiContextBase.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydi/KyDiObservableEnumCollection.h"
#include "kydi/KyDiSysVar.h"
#include "manager/EffectivePropertyInstances.h"
#include "manager/KyDiManagerState.h"
#include "manager/LocalDataItemCache.h"
#include "manager/ObjectReactorHub.h"
#include "manager/RefreshPass.h"
#include "manager/host/KyDiHostAccess.h"
#include "objects/KyDiObservableEnumCollectionImp.h"
#include "sysvars/KyUiImpSysVar.h"

namespace {

// Calls `mark` on every known collection. Marking makes no collection and
// removes none, so the map is walked as it stands.
template <typename Mark>
void markCollections(Mark mark) {
    for (const auto& [name, collection] : kydiManagerState().knownCollections) {
        mark(*static_cast<KyDiImpCollectionBase*>(collection->imp()));
    }
}

// Tells the reactors of every tracker of the kind `Tracker`, in name order.
// A reactor may make a collection, and with it a tracker: the walk goes over
// the trackers that stood at its start.
template <typename Tracker>
void notifyTrackersOf() {
    std::vector<Tracker*> trackers;
    for (const auto& [name, tracker] : kydiManagerState().currencyTrackers) {
        if (auto* kind = dynamic_cast<Tracker*>(tracker)) {
            trackers.push_back(kind);
        }
    }
    for (Tracker* tracker : trackers) {
        tracker->notifyReactors();
    }
}

}  // namespace

void DataItemHostReactor::refreshNeeded(bool force) {
    RefreshPass::run(force);
}

void DataItemHostReactor::documentToBeDestroyed(KyDiDocument document) {
    KyDiManagerState& state = kydiManagerState();
    markCollections([document](KyDiImpCollectionBase& collection) {
        collection.deactivate(document, nullptr);
    });
    for (const auto& [enumeration, collection] : state.observableEnumCollections) {
        static_cast<KyDiObservableEnumCollectionImp*>(collection->imp())
            ->documentToBeDestroyed(document);
    }
    forEachEffectiveProperty(
        [](KyDiImpEffectiveProperty& effective) { effective.releaseDocument(); });
    if (state.contextManager != nullptr) {
        state.contextManager->imp()->forgetLastDocument();
    }
    for (int i = 0; i < state.builtContexts.length(); ++i) {
        if (auto* context =
                kyrxCast<KyDiContextBase>(static_cast<KyRxObject*>(state.builtContexts[i]))) {
            context->subDatabaseToBeDestroyed(nullptr);
        }
    }
    ObjectReactorHub::documentToBeDestroyed(document);
    if (state.localItemCache != nullptr) {
        state.localItemCache->retireDocument(document);
        state.localItemCache->forgetLastDocument();
    }
    state.dyingDatabase = document;
    // From here on the document counts as gone, and the pass tells everybody.
    RefreshPass::run(true);
}

void DataItemHostReactor::documentDestroyed() {
    // What the cache set aside for the document may go at the end of the next
    // pass: nothing can reach its records any more.
    if (LocalDataItemCache* cache = kydiManagerState().localItemCache) {
        cache->setReleaseRetired();
    }
}

void DataItemHostReactor::documentDestructionDone() {
    kydiManagerState().dyingDatabase = kKyDiNoDocument;
}

void DataItemHostReactor::sysVarChanged(const wchar_t* name, bool success) {
    if (!success || name == nullptr) {
        return;
    }
    // The trackers that watch the variable mark their collections. The
    // system variable objects read the host in every refresh pass and need
    // no mark.
    for (const auto& [collection, tracker] : kydiManagerState().currencyTrackers) {
        auto* watcher = dynamic_cast<DataItemCurrencyTrackerBase*>(tracker);
        if (watcher == nullptr) {
            continue;
        }
        watcher->sysVarChanged(name, success);
        if (!watcher->sysVarName().isEmpty() && watcher->sysVarName().compareNoCase(name) == 0) {
            watcher->notifyReactors();
        }
    }
}

void DataItemHostReactor::sysVarWillChange(const wchar_t* /*name*/) {}

void DataItemHostReactor::commandWillStart(const wchar_t* /*globalCommandName*/) {}

// The events below only mark the known collections, the effective property
// and the built contexts, or the trackers of plot settings and layouts; the
// refresh pass does the rest.
void DataItemHostReactor::hostStateChanged() {
    markCollections([](KyDiImpCollectionBase& collection) { collection.subHostStateChanged(); });
    if (KyDiEffectiveProperty* effective = kydiManagerState().effectiveProperty) {
        effective->imp()->subHostStateChanged();
    }
}

void DataItemHostReactor::invalidateAll() {
    const KyArray<KyDiContext*>& built = kydiManagerState().builtContexts;
    for (int i = 0; i < built.length(); ++i) {
        if (auto* context = kyrxCast<KyDiContextBase>(static_cast<KyRxObject*>(built[i]))) {
            context->subInvalidate();
        }
    }
    markCollections([](KyDiImpCollectionBase& collection) { collection.subInvalidate(); });
}

void DataItemHostReactor::drawingContentChanged() {
    markCollections(
        [](KyDiImpCollectionBase& collection) { collection.subDrawingContentChanged(); });
}

void DataItemHostReactor::commandEnded(const wchar_t* globalCommandName) {
    markCollections([globalCommandName](KyDiImpCollectionBase& collection) {
        collection.subCommandEnded(globalCommandName);
    });
}

void DataItemHostReactor::ucsChanged() {
    markCollections([](KyDiImpCollectionBase& collection) { collection.subUcsChanged(); });
}

void DataItemHostReactor::plotSettingsChanged() {
    notifyTrackersOf<PlotCurrencyTrackerBase>();
}

void DataItemHostReactor::plotSettingsChangedForLayout(const wchar_t* /*layoutName*/) {
    plotSettingsChanged();
}

void DataItemHostReactor::layoutChanged() {
    notifyTrackersOf<LayoutCurrencyTrackerBase>();
}

void DataItemHostReactor::documentBecameQuiet(KyDiDocument document) {
    if (document != KyDiHostAccess::currentDocument()) {
        return;
    }
    RefreshPass::run(true);
    markCollections([](KyDiImpCollectionBase& collection) { collection.updateIfPending(); });
    // Only what was marked since the last pass.
    forEachEffectiveProperty([](KyDiImpEffectiveProperty& effective) { effective.flush(); });
}

void DataItemHostReactor::documentBecameBusy(KyDiDocument document) {
    if (document != KyDiHostAccess::currentDocument()) {
        return;
    }
    // What the host changed up to now is taken as known without telling
    // anybody: the next pass reports only what changes from here on.
    markCollections([](KyDiImpCollectionBase& collection) { collection.discardPending(); });
    for (const auto& [name, sysVar] : kydiManagerState().sysVars) {
        sysVar->imp()->rereadSilently();
    }
    forEachEffectiveProperty(
        [](KyDiImpEffectiveProperty& effective) { effective.discardPending(); });
}
