#include "db/KyDbBlockTableRecordIterator.h"

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbEntity.h"
#include "db/KyDbOpenObject.h"

KyDbBlockTableRecordIterator::KyDbBlockTableRecordIterator(const KyDbBlockTableRecord* block)
    : m_block(block) {}

KyDbBlockTableRecordIterator::~KyDbBlockTableRecordIterator() = default;

void KyDbBlockTableRecordIterator::start(bool atBeginning, bool skipDeleted) {
    m_index = atBeginning ? 0 : m_block->m_entities.length() - 1;
    if (skipDeleted) {
        skipErased(atBeginning);
    }
}

bool KyDbBlockTableRecordIterator::done() const {
    return m_index < 0 || m_index >= m_block->m_entities.length();
}

void KyDbBlockTableRecordIterator::step(bool forward, bool skipDeleted) {
    if (done()) {
        return;
    }
    m_index += forward ? 1 : -1;
    if (skipDeleted) {
        skipErased(forward);
    }
}

void KyDbBlockTableRecordIterator::skipErased(bool forward) {
    while (!done() && m_block->m_entities[m_index].isErased()) {
        m_index += forward ? 1 : -1;
    }
}

Kyro::ErrorStatus KyDbBlockTableRecordIterator::seek(KyDbObjectId id) {
    const int index = m_block->m_entities.find(id);
    if (index < 0) {
        return Kyro::eKeyNotFound;
    }
    m_index = index;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbBlockTableRecordIterator::getEntityId(KyDbObjectId& id) const {
    if (done()) {
        return Kyro::eInvalidIndex;
    }
    id = m_block->m_entities[m_index];
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbBlockTableRecordIterator::getEntity(KyDbEntity*& entity, KyDb::OpenMode mode,
                                                          bool openErased) const {
    entity = nullptr;
    KyDbObjectId id;
    if (const Kyro::ErrorStatus status = getEntityId(id); status != Kyro::eOk) {
        return status;
    }
    return kydbOpenObject(entity, id, mode, openErased);
}
