#include "db/KyDbSymbolTableIterator.h"

#include "db/KyDbOpenObject.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableRecord.h"

KyDbSymbolTableIterator::KyDbSymbolTableIterator(const KyDbSymbolTable* table) : m_table(table) {}

KyDbSymbolTableIterator::~KyDbSymbolTableIterator() = default;

void KyDbSymbolTableIterator::start(bool atBeginning, bool skipDeleted) {
    m_index = atBeginning ? 0 : m_table->m_records.length() - 1;
    if (skipDeleted) {
        skipErased(atBeginning);
    }
}

bool KyDbSymbolTableIterator::done() const {
    return m_index < 0 || m_index >= m_table->m_records.length();
}

void KyDbSymbolTableIterator::step(bool forward, bool skipDeleted) {
    if (done()) {
        return;
    }
    m_index += forward ? 1 : -1;
    if (skipDeleted) {
        skipErased(forward);
    }
}

void KyDbSymbolTableIterator::skipErased(bool forward) {
    while (!done() && m_table->m_records[m_index].isErased()) {
        m_index += forward ? 1 : -1;
    }
}

Kyro::ErrorStatus KyDbSymbolTableIterator::seek(KyDbObjectId id) {
    const int index = m_table->m_records.find(id);
    if (index < 0) {
        return Kyro::eKeyNotFound;
    }
    m_index = index;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbSymbolTableIterator::getRecordId(KyDbObjectId& id) const {
    if (done()) {
        return Kyro::eInvalidIndex;
    }
    id = m_table->m_records[m_index];
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbSymbolTableIterator::getRecord(KyDbSymbolTableRecord*& record,
                                                     KyDb::OpenMode mode, bool openErased) const {
    record = nullptr;
    KyDbObjectId id;
    if (const Kyro::ErrorStatus status = getRecordId(id); status != Kyro::eOk) {
        return status;
    }
    return kydbOpenObject(record, id, mode, openErased);
}
