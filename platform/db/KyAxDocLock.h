// KyAxDocLock: a scope in which a document's database may be written. The
// host is asked to grant the lock (KyDbHostApplicationServices::lockDocument);
// while a granted lock stands, the database takes writes even when it
// requires the lock (KyDbDatabase::setLockRequired). Locks nest.
#pragma once

#include <cstdint>

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"

class KyDbDatabase;

class KYPLATFORM_API KyAxDocLock {
public:
    // Locks the working database.
    KyAxDocLock();
    // Locks `database`.
    explicit KyAxDocLock(KyDbDatabase* database);
    // Ends the lock, if it was granted and its database is still there.
    ~KyAxDocLock();
    KyAxDocLock(const KyAxDocLock&) = delete;
    KyAxDocLock& operator=(const KyAxDocLock&) = delete;

    // eOk while the database is locked by this scope; eNoCurrentDocument
    // without a database; the host's status when it refused.
    Kyro::ErrorStatus lockStatus() const { return m_status; }
    KyDbDatabase* database() const { return m_database; }

private:
    void lock();

    KyDbDatabase* m_database;
    std::uint64_t m_serial = 0;
    Kyro::ErrorStatus m_status = Kyro::eNoCurrentDocument;
};
