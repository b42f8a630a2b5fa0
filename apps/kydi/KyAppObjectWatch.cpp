#include "KyAppObjectWatch.h"

#include "kydi/KyDiManager.h"
#include "rx/KyRxValue.h"

KyAppObjectWatch::KyAppObjectWatch(KyDbObjectId id, std::ostream& out)
    : m_id(id), m_out(out), m_handle(KyRxValue(id).text().utf8()) {}

KyAppObjectWatch::~KyAppObjectWatch() {
    if (m_watching) {
        KyDiManager::removeObjectReactor(m_id, this);
    }
}

Kyro::ErrorStatus KyAppObjectWatch::start() {
    const Kyro::ErrorStatus status = KyDiManager::addObjectReactor(m_id, this);
    m_watching = status == Kyro::eOk;
    return status;
}

void KyAppObjectWatch::modified(void* /*reserved*/) {
    m_out << "modified " << m_handle << '\n';
}

void KyAppObjectWatch::activeChanged(bool active) {
    m_out << "activeChanged " << m_handle << (active ? " true" : " false") << '\n';
}

void KyAppObjectWatch::erased() {
    m_out << "erased " << m_handle << '\n';
    KyDiManager::removeObjectReactor(m_id, this);
    m_watching = false;
}
