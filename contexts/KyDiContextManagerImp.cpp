#include "contexts/KyDiContextManagerImp.h"

#include "contexts/ContextFactories.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextChange.h"
#include "kydi/KyDiContextReactor.h"
#include "manager/host/KyDiHostAccess.h"

KyDiContextManagerImp::KyDiContextManagerImp() : m_activeContexts(0, 8), m_reactors(0, 8) {}

KyDiContextManagerImp::~KyDiContextManagerImp() {
    clearChanges();
    // The contexts it held are not its own; its reactor leaves them.
    for (const auto& [name, context] : m_contexts) {
        context->removeReactor(m_contextReactor);
    }
    delete m_contextReactor;
}

int KyDiContextManagerImp::addContext(const wchar_t* name, KyDiContext* context) {
    if (name == nullptr || context == nullptr || m_contexts.contains(name)) {
        return Kyro::eInvalidInput;
    }
    if (m_contextReactor == nullptr) {
        m_contextReactor = new DynamicObjectReactor<KyDiContextManagerImp>(this);
    }
    m_contexts.emplace(name, context);
    context->addReactor(m_contextReactor);
    m_pending |= kContextsChanged;
    return Kyro::eOk;
}

int KyDiContextManagerImp::removeContext(const wchar_t* name) {
    if (name == nullptr) {
        return Kyro::eInvalidInput;
    }
    const auto found = m_contexts.find(name);
    if (found == m_contexts.end()) {
        return Kyro::eInvalidInput;
    }
    KyDiContext* context = found->second;
    context->removeReactor(m_contextReactor);
    if (const auto change = m_changes.find(context); change != m_changes.end()) {
        delete change->second;
        m_changes.erase(change);
    }
    m_contexts.erase(found);
    m_pending |= kContextsChanged;
    return Kyro::eOk;
}

KyDiContext* KyDiContextManagerImp::getContext(const wchar_t* name, bool create) {
    if (name == nullptr) {
        return nullptr;
    }
    if (const auto found = m_contexts.find(name); found != m_contexts.end()) {
        return found->second;
    }
    if (!create) {
        return nullptr;
    }
    KyDiContext* context = ContextFactories::build(name);
    if (context != nullptr) {
        addContext(name, context);
    }
    return context;
}

const wchar_t* KyDiContextManagerImp::getName(KyDiContext* context) const {
    for (const auto& [name, held] : m_contexts) {
        if (context != nullptr && held == context) {
            return name.kwszPtr();
        }
    }
    return nullptr;
}

void KyDiContextManagerImp::addReactor(KyDiContextReactor* reactor) {
    if (reactor != nullptr) {
        m_reactors.append(reactor);
    }
}

void KyDiContextManagerImp::removeReactor(KyDiContextReactor* reactor) {
    if (reactor != nullptr) {
        m_reactors.remove(reactor);
    }
}

void KyDiContextManagerImp::recordContextChange(KyDiDynamicObject* source,
                                                const wchar_t* memberName, void* changeData) {
    m_pending |= kContextReported;
    auto* context = kyrxCast<KyDiContext>(static_cast<KyRxObject*>(source));
    if (context == nullptr) {
        return;
    }
    KyDiContextChange*& change = m_changes[context];
    if (change == nullptr) {
        change = new KyDiContextChange();
        change->context = context;
        change->changeData = changeData;
    }
    if (memberName == nullptr) {
        return;
    }
    for (int i = 0; i < change->propertyNames.length(); ++i) {
        if (change->propertyNames[i].compare(memberName) == 0) {
            return;
        }
    }
    change->propertyNames.append(KyString(memberName));
}

void KyDiContextManagerImp::storeDocument(KyDiDocument document) {
    if (document != kKyDiNoDocument && KyDiHostAccess::databaseOf(document) != nullptr) {
        m_lastDatabase = document;
    }
}

KyArray<KyDiContext*> KyDiContextManagerImp::activeNow() const {
    // isActive may re-bind a context: it is asked of each, in name order.
    KyArray<KyDiContext*> active(0, 8);
    for (const auto& [name, context] : m_contexts) {
        if (context->isActive()) {
            active.append(context);
        }
    }
    return active;
}

unsigned KyDiContextManagerImp::decide() {
    const KyDiDocument document = KyDiHostAccess::currentDocument();
    unsigned result = 0;
    if (document != m_lastDatabase) {
        storeDocument(document);
        result = kContextsChanged;
    } else if ((m_pending & kContextsChanged) != 0) {
        storeDocument(document);
        result = kContextsChanged;
    } else if ((m_pending & kContextReported) == 0) {
        result = 0;
    } else if (m_changes.empty()) {
        result = kContextsChanged;
    } else {
        const KyArray<KyDiContext*> active = activeNow();
        result = active == m_activeContexts ? kContextReported : kContextsChanged;
    }
    m_pending = 0;
    return result;
}

void KyDiContextManagerImp::flush() {
    // Without a document in front nothing is told, and what was reported
    // waits for one.
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
        return;
    }
    const unsigned decision = decide();
    // A reactor may add or remove reactors while it is told: the walk goes
    // over the reactors as they stood, and skips those removed meanwhile.
    const KyArray<KyDiContextReactor*> reactors = m_reactors;
    if (decision == kContextsChanged) {
        m_activeContexts = activeNow();
        for (int i = 0; i < reactors.length(); ++i) {
            if (isRegistered(reactors[i])) {
                reactors[i]->activeContextsChanged();
            }
        }
    } else if (decision == kContextReported) {
        for (int i = 0; i < reactors.length(); ++i) {
            for (const auto& [context, change] : m_changes) {
                if (isRegistered(reactors[i])) {
                    reactors[i]->contextChanged(change);
                }
            }
        }
    }
    clearChanges();
}

bool KyDiContextManagerImp::isRegistered(const KyDiContextReactor* reactor) const {
    for (int i = 0; i < m_reactors.length(); ++i) {
        if (m_reactors[i] == reactor) {
            return true;
        }
    }
    return false;
}

void KyDiContextManagerImp::clearChanges() {
    for (const auto& [context, change] : m_changes) {
        delete change;
    }
    m_changes.clear();
}
