#include "manager/RefreshPass.h"

#include <vector>

#include "db/KyDbDatabase.h"
#include "kydi/KyDiManagerReactor.h"
#include "kydi/KyDiSysVar.h"
#include "manager/KyDiManagerState.h"
#include "manager/LocalDataItemCache.h"
#include "manager/ObjectReactorHub.h"
#include "manager/host/KyDiHostAccess.h"
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
    // Here come the built contexts' own refresh, first of all.
    tellRefreshStarting();
    // System variable reactors are told ahead of the collections.
    refreshSysVars();
    // Here come, in this order: the item cache's erased items taken, "LAYER"
    // and "BLOCK" updated ahead of the other known collections, the
    // enumeration collections following the current document, the effective
    // properties and the context manager flushed.
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
