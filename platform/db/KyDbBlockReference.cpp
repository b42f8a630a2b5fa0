#include "db/KyDbBlockReference.h"

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbClassSupport.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStateFiler.h"

KYDB_DEFINE_MEMBERS(KyDbBlockReference, KyDbEntity)

KyDbBlockReference::KyDbBlockReference() = default;

KyDbBlockReference::~KyDbBlockReference() = default;

void KyDbBlockReference::relink(KyDbObjectId from, KyDbObjectId to) const {
    if (!isDatabaseResident() || from == to) {
        return;
    }
    if (from.isValid()) {
        static_cast<KyDbBlockTableRecord*>(from.stub()->object)->removeReference(objectId());
    }
    if (to.isValid()) {
        static_cast<KyDbBlockTableRecord*>(to.stub()->object)->addReference(objectId());
    }
}

Kyro::ErrorStatus KyDbBlockReference::setBlockTableRecord(KyDbObjectId blockId) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status =
            KyDbRecordReference::check(this, blockId, KyDbBlockTableRecord::desc());
        status != Kyro::eOk) {
        return status;
    }
    const KyDbObjectId previous = m_block;
    if (const Kyro::ErrorStatus status = setMember(m_block, blockId); status != Kyro::eOk) {
        return status;
    }
    relink(previous, m_block);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbBlockReference::setPosition(const KyGePoint3d& position) {
    return setMember(m_position, position);
}

void KyDbBlockReference::subAppended(KyDbDatabase* database) {
    KyDbEntity::subAppended(database);
    relink(KyDbObjectId(), m_block);
}

void KyDbBlockReference::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_block);
    filer.write(m_position);
}

Kyro::ErrorStatus KyDbBlockReference::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    const KyDbObjectId previous = m_block;
    filer.read(m_block);
    filer.read(m_position);
    relink(previous, m_block);
    return filer.status();
}
