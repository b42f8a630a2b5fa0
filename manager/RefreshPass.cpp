#include "manager/RefreshPass.h"

#include <set>
#include <vector>

#include "collections/KyDiImpCollectionBase.h"
#include "contexts/KyDiContextManagerImp.h"
#include "db/KyDbDatabase.h"
#include "kydi/KyDiContextBase.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiManagerReactor.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydi/KyDiObservableEnumCollection.h"
#include "kydi/KyDiSysVar.h"
#include "manager/EffectivePropertyInstances.h"
#include "manager/KyDiManagerState.h"
#include "manager/LocalDataItemCache.h"
#include "manager/ObjectReactorHub.h"
#include "manager/host/KyDiHostAccess.h"
#include "objects/KyDiObservableEnumCollectionImp.h"
#include "pal/KyPal.h"
#include "sysvars/KyUiImpSysVar.h"

namespace {

// The performance marks around a pass; the end mark is written also when a
// client's reactor throws out of the pass.
class NotifyEventMark {
public:
    NotifyEventMark() { PerfLog_WriteDilNotifyEvent(true); }
    ~NotifyEventMark() { PerfLog_WriteDilNotifyEvent(false); }
    NotifyEventMark(const NotifyEventMark&) = delete;
    NotifyEventMark& operator=(const NotifyEventMark&) = delete;
};

KyDiImpCollectionBase* bodyOf(KyDiObservableCollection* collection) {
    return static_cast<KyDiImpCollectionBase*>(collection->imp());
}

}  // namespace

void RefreshPass::run(bool force) {
    const NotifyEventMark mark;
    if (!passesThrottle(force)) {
        return;
    }
    KyDiManagerState& state = kydiManagerState();
    if (state.refreshSuspended && !force) {
        return;
    }
    // The system variables' activity depends on these, so they are read
    // before anything is told.
    readEditingState();
    refreshContexts();
    tellRefreshStarting();
    // System variable reactors are told ahead of the collections.
    refreshSysVars();
    updateCollections();
    refreshEnumCollections();
    // The effective properties follow the document in front and report what
    // the collections and trackers marked.
    forEachEffectiveProperty([](KyDiImpEffectiveProperty& effective) { effective.flushStep(); });
    if (KyDiContextManager* contexts = state.contextManager) {
        contexts->imp()->flush();
    }
    ObjectReactorHub::pass();
    if (state.localItemCache != nullptr) {
        state.localItemCache->endOfRefresh();
    }
    tellRefreshEnded();
    callNotifyHandlers();
}

bool RefreshPass::inPaperSpace() {
    return kydiManagerState().inPaperSpace;
}

bool RefreshPass::inBlockEditor() {
    return kydiManagerState().inBlockEditor;
}

bool RefreshPass::passesThrottle(bool force) {
    KyDiManagerState& state = kydiManagerState();
    const std::int64_t now = KyPal::SteadyClock::now();
    const std::int64_t gap = KyPal::Process::isFabric() ? 0 : kMinimumGap;
    // A pass exactly the gap after the last one is still held back.
    if (now - state.lastRefreshTime <= gap && !force) {
        return false;
    }
    state.lastRefreshTime = now;
    return true;
}

void RefreshPass::readEditingState() {
    KyDiManagerState& state = kydiManagerState();
    short value = 0;
    // A model space (tile mode) drawing is never in paper space, whatever the
    // current viewport number says.
    KyDbDatabase* working = KyDiHostAccess::workingDatabase();
    state.inPaperSpace = working != nullptr && !working->tilemode() &&
                         KyDiHostAccess::readShort(L"CVPORT", value) && value == 1;
    state.inBlockEditor = KyDiHostAccess::readShort(L"BLOCKEDITOR", value) && value == 1;
}

void RefreshPass::tellRefreshStarting() {
    // The count is read anew at every step: a reactor added during the walk
    // is told in the same pass.
    const KyArray<KyDiManagerReactor*>& reactors = kydiManagerState().managerReactors;
    for (int i = 0; i < reactors.length(); ++i) {
        reactors[i]->refreshStarting();
    }
}

void RefreshPass::refreshSysVars() {
    // A reactor may ask for another variable during the walk; the walk goes
    // over the objects that stood at its start, in name order.
    std::vector<KyDiSysVar*> sysVars;
    for (const auto& [name, sysVar] : kydiManagerState().sysVars) {
        sysVars.push_back(sysVar);
    }
    for (KyDiSysVar* sysVar : sysVars) {
        sysVar->imp()->refresh();
    }
}

void RefreshPass::refreshContexts() {
    // The count is read anew at every step: a context built during the walk
    // is reached.
    const KyArray<KyDiContext*>& built = kydiManagerState().builtContexts;
    for (int i = 0; i < built.length(); ++i) {
        if (auto* context = kyrxCast<KyDiContextBase>(static_cast<KyRxObject*>(built[i]))) {
            context->subRefresh();
        }
    }
}

void RefreshPass::updateCollections() {
    KyDiManagerState& state = kydiManagerState();
    // What the selection erased, for the collections that follow it.
    std::set<KyDiDbItem*> erased;
    if (state.localItemCache != nullptr) {
        if (const std::set<KyDiDbItem*>* now =
                state.localItemCache->erasedItemsOfCurrentDocument()) {
            erased = *now;
        }
    }
    // The layers and the blocks go first: others depend on them (the images
    // on the blocks, the effective properties on the layers). The map does
    // not change during the walk: an update makes no collection.
    const auto& collections = state.knownCollections;
    const wchar_t* const kFirst[] = {L"LAYER", L"BLOCK"};
    for (const wchar_t* name : kFirst) {
        if (const auto found = collections.find(name); found != collections.end()) {
            bodyOf(found->second)->update();
        }
    }
    std::vector<KyDiImpCollectionBase*> others;
    for (const auto& [name, collection] : collections) {
        if (name.compare(kFirst[0]) != 0 && name.compare(kFirst[1]) != 0) {
            others.push_back(bodyOf(collection));
        }
    }
    for (KyDiImpCollectionBase* collection : others) {
        collection->update();
        if (!erased.empty() &&
            (collection->traits() & KyDiImpCollectionBase::kSelectionDependent) != 0) {
            collection->subSelectionRefreshed(erased);
        }
    }
}

void RefreshPass::refreshEnumCollections() {
    std::vector<KyDiObservableEnumCollectionImp*> collections;
    for (const auto& [enumeration, collection] : kydiManagerState().observableEnumCollections) {
        collections.push_back(static_cast<KyDiObservableEnumCollectionImp*>(collection->imp()));
    }
    for (KyDiObservableEnumCollectionImp* collection : collections) {
        collection->refresh();
    }
}

void RefreshPass::tellRefreshEnded() {
    const KyArray<KyDiManagerReactor*>& reactors = kydiManagerState().managerReactors;
    for (int i = 0; i < reactors.length(); ++i) {
        reactors[i]->refreshEnded();
    }
}

void RefreshPass::callNotifyHandlers() {
    if (KyDiHostAccess::rawCurrentDocument() == kKyDiNoDocument) {
        return;
    }
    // Handlers added during the walk wait for the next pass.
    const KyArray<void (*)()>& handlers = kydiManagerState().notifyHandlers;
    const int count = handlers.length();
    for (int i = 0; i < count && i < handlers.length(); ++i) {
        handlers[i]();
    }
}
