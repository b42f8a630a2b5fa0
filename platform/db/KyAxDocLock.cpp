#include "db/KyAxDocLock.h"

#include "db/KyDbDatabase.h"
#include "db/KyDbHostApplicationServices.h"

KyAxDocLock::KyAxDocLock() : m_database(kydbHostApplicationServices()->workingDatabase()) {
    lock();
}

KyAxDocLock::KyAxDocLock(KyDbDatabase* database) : m_database(database) {
    lock();
}

void KyAxDocLock::lock() {
    if (m_database == nullptr) {
        m_status = Kyro::eNoCurrentDocument;
        return;
    }
    m_serial = m_database->serial();
    m_status = kydbHostApplicationServices()->lockDocument(m_database);
    if (m_status == Kyro::eOk) {
        ++m_database->m_lockCount;
    }
}

KyAxDocLock::~KyAxDocLock() {
    if (m_status != Kyro::eOk || !kydbIsLiveDatabase(m_database, m_serial)) {
        return;
    }
    --m_database->m_lockCount;
    kydbHostApplicationServices()->unlockDocument(m_database);
}
