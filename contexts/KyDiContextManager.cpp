#include "kydi/KyDiContextManager.h"

#include <vector>

#include "contexts/KyDiContextManagerImp.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextIterator.h"
#include "kydi/KyDiContextReactor.h"

struct KyDiContextSnapshot {
    std::vector<KyDiContext*> contexts;
    std::size_t position = 0;
};

KyDiContextReactor::KyDiContextReactor() = default;

KyDiContextReactor::~KyDiContextReactor() = default;

void KyDiContextReactor::contextChanged(const KyDiContextChange* /*change*/) {}

void KyDiContextReactor::activeContextsChanged() {}

KyDiContextIterator::KyDiContextIterator(KyDiContextSnapshot* snapshot) : m_snapshot(snapshot) {}

KyDiContextIterator::~KyDiContextIterator() {
    delete m_snapshot;
}

bool KyDiContextIterator::done() const {
    return m_snapshot->position >= m_snapshot->contexts.size();
}

bool KyDiContextIterator::next() {
    ++m_snapshot->position;
    return done();
}

const KyDiContext* KyDiContextIterator::current() const {
    return m_snapshot->contexts[m_snapshot->position];
}

KyDiContextManager::KyDiContextManager(KyDiContextManagerImp* imp) : m_imp(imp) {}

KyDiContextManager::~KyDiContextManager() {
    delete m_imp;
}

void KyDiContextManager::addContext(const wchar_t* name, KyDiContext* context) {
    m_imp->addContext(name, context);
}

void KyDiContextManager::removeContext(const wchar_t* name) {
    m_imp->removeContext(name);
}

KyDiContext* KyDiContextManager::getContext(const wchar_t* name, bool create) {
    return m_imp->getContext(name, create);
}

const wchar_t* KyDiContextManager::getName(KyDiContext* context) {
    return m_imp->getName(context);
}

KyDiContextIterator* KyDiContextManager::getContexts() {
    auto* snapshot = new KyDiContextSnapshot();
    for (const auto& [name, context] : m_imp->contexts()) {
        snapshot->contexts.push_back(context);
    }
    return new KyDiContextIterator(snapshot);
}

void KyDiContextManager::addReactor(KyDiContextReactor* reactor) {
    m_imp->addReactor(reactor);
}

void KyDiContextManager::removeReactor(KyDiContextReactor* reactor) {
    m_imp->removeReactor(reactor);
}
