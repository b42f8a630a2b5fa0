#include "KyRefHostEvents.h"

#include <algorithm>

void KyRefHostEvents::add(KyDiHostReactor* reactor) {
    if (reactor != nullptr && !contains(reactor)) {
        m_reactors.push_back(reactor);
    }
}

void KyRefHostEvents::remove(KyDiHostReactor* reactor) {
    const auto found = std::find(m_reactors.begin(), m_reactors.end(), reactor);
    if (found != m_reactors.end()) {
        m_reactors.erase(found);
    }
}

bool KyRefHostEvents::contains(const KyDiHostReactor* reactor) const {
    return std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end();
}

void KyRefHostEvents::raiseRefreshNeeded(bool force) {
    raise([force](KyDiHostReactor* reactor) { reactor->refreshNeeded(force); });
}

void KyRefHostEvents::raiseDocumentToBeDestroyed(KyDiDocument document) {
    raise([document](KyDiHostReactor* reactor) { reactor->documentToBeDestroyed(document); });
}

void KyRefHostEvents::raiseDocumentDestroyed() {
    raise([](KyDiHostReactor* reactor) { reactor->documentDestroyed(); });
}

void KyRefHostEvents::raiseDocumentDestructionDone() {
    raise([](KyDiHostReactor* reactor) { reactor->documentDestructionDone(); });
}

void KyRefHostEvents::raiseSysVarChanged(const wchar_t* name, bool success) {
    raise([name, success](KyDiHostReactor* reactor) { reactor->sysVarChanged(name, success); });
}

void KyRefHostEvents::raiseSysVarWillChange(const wchar_t* name) {
    raise([name](KyDiHostReactor* reactor) { reactor->sysVarWillChange(name); });
}

void KyRefHostEvents::raiseCommandWillStart(const wchar_t* globalCommandName) {
    raise([globalCommandName](KyDiHostReactor* reactor) {
        reactor->commandWillStart(globalCommandName);
    });
}

void KyRefHostEvents::raiseHostStateChanged() {
    raise([](KyDiHostReactor* reactor) { reactor->hostStateChanged(); });
}

void KyRefHostEvents::raiseInvalidateAll() {
    raise([](KyDiHostReactor* reactor) { reactor->invalidateAll(); });
}

void KyRefHostEvents::raiseDrawingContentChanged() {
    raise([](KyDiHostReactor* reactor) { reactor->drawingContentChanged(); });
}

void KyRefHostEvents::raiseCommandEnded(const wchar_t* globalCommandName) {
    raise([globalCommandName](KyDiHostReactor* reactor) {
        reactor->commandEnded(globalCommandName);
    });
}

void KyRefHostEvents::raiseUcsChanged() {
    raise([](KyDiHostReactor* reactor) { reactor->ucsChanged(); });
}

void KyRefHostEvents::raisePlotSettingsChanged() {
    raise([](KyDiHostReactor* reactor) { reactor->plotSettingsChanged(); });
}

void KyRefHostEvents::raisePlotSettingsChangedForLayout(const wchar_t* layoutName) {
    raise([layoutName](KyDiHostReactor* reactor) {
        reactor->plotSettingsChangedForLayout(layoutName);
    });
}

void KyRefHostEvents::raiseLayoutChanged() {
    raise([](KyDiHostReactor* reactor) { reactor->layoutChanged(); });
}

void KyRefHostEvents::raiseDocumentBecameQuiet(KyDiDocument document) {
    raise([document](KyDiHostReactor* reactor) { reactor->documentBecameQuiet(document); });
}

void KyRefHostEvents::raiseDocumentBecameBusy(KyDiDocument document) {
    raise([document](KyDiHostReactor* reactor) { reactor->documentBecameBusy(document); });
}
