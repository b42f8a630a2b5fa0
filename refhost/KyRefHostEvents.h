// KyRefHostEvents: the reactors registered with the reference host, and the
// events it raises towards them. Every event is called on a copy of the list,
// so a reactor may add or remove reactors while it is called; a reactor
// removed during a walk is not called after its removal, and one added is
// called from the next event on.
#pragma once

#include <vector>

#include "kydi/KyDiHostReactor.h"
#include "kydi/KyDiTypes.h"

class KyRefHostEvents {
public:
    // A reactor stands at most once; adding it again changes nothing.
    void add(KyDiHostReactor* reactor);
    void remove(KyDiHostReactor* reactor);
    bool contains(const KyDiHostReactor* reactor) const;
    int count() const { return static_cast<int>(m_reactors.size()); }

    void raiseRefreshNeeded(bool force);
    void raiseDocumentToBeDestroyed(KyDiDocument document);
    void raiseDocumentDestroyed();
    void raiseDocumentDestructionDone();
    void raiseSysVarChanged(const wchar_t* name, bool success);
    void raiseSysVarWillChange(const wchar_t* name);
    void raiseCommandWillStart(const wchar_t* globalCommandName);
    void raiseHostStateChanged();
    void raiseInvalidateAll();
    void raiseDrawingContentChanged();
    void raiseCommandEnded(const wchar_t* globalCommandName);
    void raiseUcsChanged();
    void raisePlotSettingsChanged();
    void raisePlotSettingsChangedForLayout(const wchar_t* layoutName);
    void raiseLayoutChanged();
    void raiseDocumentBecameQuiet(KyDiDocument document);
    void raiseDocumentBecameBusy(KyDiDocument document);

private:
    template <typename Call>
    void raise(Call call) {
        const std::vector<KyDiHostReactor*> reactors = m_reactors;
        for (KyDiHostReactor* reactor : reactors) {
            if (contains(reactor)) {
                call(reactor);
            }
        }
    }

    std::vector<KyDiHostReactor*> m_reactors;
};
