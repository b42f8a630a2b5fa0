// KyDbBlockReference: an entity that shows a block at a position. The block
// knows its references (KyDbBlockTableRecord::getBlockReferenceIds): a
// reference enters the block's list when it comes into the database pointing
// at the block, or is made to point at it, and leaves it when it points
// elsewhere.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbEntity.h"
#include "ge/KyGePoint3d.h"

class KYPLATFORM_API KyDbBlockReference : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbBlockReference);
    KyDbBlockReference();
    ~KyDbBlockReference() override;

    KyDbObjectId blockTableRecord() const { return m_block; }
    // A block of the same database (eNotThatKindOfClass, eWrongDatabase,
    // eWasErased).
    Kyro::ErrorStatus setBlockTableRecord(KyDbObjectId blockId);
    const KyGePoint3d& position() const { return m_position; }
    Kyro::ErrorStatus setPosition(const KyGePoint3d& position);

protected:
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // Moves this reference from the list of `from` to that of `to`.
    void relink(KyDbObjectId from, KyDbObjectId to) const;

    KyDbObjectId m_block;
    KyGePoint3d m_position;
};
