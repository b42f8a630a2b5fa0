// KyDbBlockTableRecordIterator: a walk over the entities of a block in drawing
// order, over the block's own list (nothing is allocated per entity).
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObjectId.h"

class KyDbBlockTableRecord;
class KyDbEntity;

class KYPLATFORM_API KyDbBlockTableRecordIterator {
public:
    explicit KyDbBlockTableRecordIterator(const KyDbBlockTableRecord* block);
    ~KyDbBlockTableRecordIterator();
    KyDbBlockTableRecordIterator(const KyDbBlockTableRecordIterator&) = delete;
    KyDbBlockTableRecordIterator& operator=(const KyDbBlockTableRecordIterator&) = delete;

    void start(bool atBeginning = true, bool skipDeleted = true);
    bool done() const;
    void step(bool forward = true, bool skipDeleted = true);
    // Goes to the entity `id`; eKeyNotFound when it is not in the block.
    Kyro::ErrorStatus seek(KyDbObjectId id);

    // eInvalidIndex past the end.
    Kyro::ErrorStatus getEntityId(KyDbObjectId& id) const;
    // Opens the entity here; the caller closes it.
    Kyro::ErrorStatus getEntity(KyDbEntity*& entity, KyDb::OpenMode mode,
                                bool openErased = false) const;

private:
    void skipErased(bool forward);

    const KyDbBlockTableRecord* m_block;
    int m_index = 0;
};
