#include "manager/host/DataItemHostReactor.h"

#include "kydi/KyDiSysVar.h"
#include "manager/KyDiManagerState.h"
#include "manager/LocalDataItemCache.h"
#include "manager/ObjectReactorHub.h"
#include "manager/RefreshPass.h"
#include "manager/host/KyDiHostAccess.h"
#include "sysvars/KyUiImpSysVar.h"

void DataItemHostReactor::refreshNeeded(bool force) {
    RefreshPass::run(force);
}

void DataItemHostReactor::documentToBeDestroyed(KyDiDocument document) {
    KyDiManagerState& state = kydiManagerState();
    // Here come, in this order, the known collections, the enumeration
    // collections, the effective properties, the context manager and the
    // built contexts letting go of the document.
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

void DataItemHostReactor::sysVarChanged(const wchar_t* /*name*/, bool success) {
    if (!success) {
        return;
    }
    // Here come the currency trackers that watch this variable, marking
    // their reactors. The system variable objects read the host in every
    // refresh pass and need no mark.
}

void DataItemHostReactor::sysVarWillChange(const wchar_t* /*name*/) {}

void DataItemHostReactor::commandWillStart(const wchar_t* /*globalCommandName*/) {}

// The events below mark the known collections, the built contexts and the
// currency trackers that they concern, which come here; they touch nothing
// else.
void DataItemHostReactor::hostStateChanged() {}

void DataItemHostReactor::invalidateAll() {}

void DataItemHostReactor::drawingContentChanged() {}

void DataItemHostReactor::commandEnded(const wchar_t* /*globalCommandName*/) {}

void DataItemHostReactor::ucsChanged() {}

void DataItemHostReactor::plotSettingsChanged() {}

void DataItemHostReactor::plotSettingsChangedForLayout(const wchar_t* /*layoutName*/) {
    plotSettingsChanged();
}

void DataItemHostReactor::layoutChanged() {}

void DataItemHostReactor::documentBecameQuiet(KyDiDocument document) {
    if (document != KyDiHostAccess::currentDocument()) {
        return;
    }
    RefreshPass::run(true);
    // Here come the known collections updating what they still hold pending,
    // and the effective properties flushing.
}

void DataItemHostReactor::documentBecameBusy(KyDiDocument document) {
    if (document != KyDiHostAccess::currentDocument()) {
        return;
    }
    // Here come the known collections, dropping what they hold pending.
    //
    // What the host changed up to now is taken as known without telling
    // anybody: the next pass reports only what changes from here on.
    for (const auto& [name, sysVar] : kydiManagerState().sysVars) {
        sysVar->imp()->rereadSilently();
    }
    // Here come the effective properties, dropping what they hold pending.
}
