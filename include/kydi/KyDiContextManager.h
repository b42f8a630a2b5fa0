// KyDiContextManager: the contexts by name, and their clients. Contexts made
// by the layer's factories are found by name (getContext with `create`);
// others are added by their makers. The manager watches every context it
// holds and sums up what they report: once a refresh pass, after the
// collections, its reactors hear either that the active contexts changed or,
// context by context, what changed. One object for the process
// (KyDiManager::getContextManager); it belongs to the manager.
#pragma once

#include "kydi/KyDiExport.h"

class KyDiContext;
class KyDiContextIterator;
class KyDiContextManagerImp;
class KyDiContextReactor;

class KYDI_API KyDiContextManager {
public:
    explicit KyDiContextManager(KyDiContextManagerImp* imp);
    ~KyDiContextManager();
    KyDiContextManager(const KyDiContextManager&) = delete;
    KyDiContextManager& operator=(const KyDiContextManager&) = delete;

    // Adds `context` under `name` (names are case-sensitive), not owned. A
    // null argument or a name in use changes nothing.
    void addContext(const wchar_t* name, KyDiContext* context);
    // Takes the context of `name` out; it is not deleted.
    void removeContext(const wchar_t* name);
    // The context of `name`; with `create`, made by its factory when it isn't
    // there yet. Null when there is none.
    KyDiContext* getContext(const wchar_t* name, bool create);
    // The name under which `context` is held; null when it isn't.
    const wchar_t* getName(KyDiContext* context);
    // A snapshot of every context, active or not, in name order.
    KyDiContextIterator* getContexts();

    // Null is ignored; no duplicate check; removal takes the first match.
    void addReactor(KyDiContextReactor* reactor);
    void removeReactor(KyDiContextReactor* reactor);

    // The implementation, for the library's own use.
    KyDiContextManagerImp* imp() const { return m_imp; }

private:
    KyDiContextManagerImp* m_imp;
};
