// KyDbBlockTableRecord: a block: a base point, a description, and the
// entities it holds, in drawing order. A block is a layout's block when it has
// a layout (*Model_Space, *Paper_Space ...), an external reference when it has
// a path. *Model_Space and *Paper_Space can't be renamed or erased; the name
// *Paper_Space goes to the block of the paper layout the drawing shows
// (kydbSetCurrentLayoutId), from one layout's block to another.
//
// Entities are never taken out of the list: an erased entity keeps its place.
// The block keeps the ids of the block references that point at it.
#pragma once

#include <cstdint>

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "db/KyDbSymbolTableRecord.h"
#include "ge/KyGePoint3d.h"

class KyDbBlockTableRecordIterator;
class KyDbEntity;

class KYPLATFORM_API KyDbBlockTableRecord : public KyDbSymbolTableRecord {
public:
    KYRX_DECLARE_MEMBERS(KyDbBlockTableRecord);
    KyDbBlockTableRecord();
    ~KyDbBlockTableRecord() override;

    const KyGePoint3d& origin() const { return m_origin; }
    Kyro::ErrorStatus setOrigin(const KyGePoint3d& origin);
    const KyString& comments() const { return m_comments; }
    Kyro::ErrorStatus setComments(const wchar_t* comments);

    // The layout (KyDbLayout) whose block this is; null for other blocks.
    KyDbObjectId getLayoutId() const { return m_layout; }
    Kyro::ErrorStatus setLayoutId(KyDbObjectId layoutId);
    bool isLayout() const { return !m_layout.isNull(); }
    // Makes this block, a paper layout's block, *Paper_Space: it takes that
    // name from `paperSpace`, which takes this block's name. Both open for
    // write (eWasNotOpenForWrite); eNotApplicable unless this block belongs to
    // a layout other than model space and `paperSpace` is *Paper_Space.
    Kyro::ErrorStatus takePaperSpaceName(KyDbBlockTableRecord* paperSpace);

    // The path of the drawing an external reference shows; empty otherwise.
    const KyString& pathName() const { return m_path; }
    Kyro::ErrorStatus setPathName(const wchar_t* path);
    bool isFromExternalReference() const { return !m_path.isEmpty(); }
    // An overlaid reference is not seen through references to its host.
    bool isFromOverlayReference() const { return isFromExternalReference() && m_overlay; }
    Kyro::ErrorStatus setIsFromOverlayReference(bool overlay);
    // The database of a loaded reference, which the host loaded and owns;
    // null when not loaded or deleted since.
    KyDbDatabase* xrefDatabase(bool includeUnresolved = false) const;
    void setXrefDatabase(KyDbDatabase* database);

    // A block with a name beginning with "*" that is not a layout's block.
    bool isAnonymous() const;

    // Appends an entity at the end of the drawing order. The block must be
    // open for write; the entity (new) is then open for write: close it.
    Kyro::ErrorStatus appendKyDbEntity(KyDbEntity* entity);
    Kyro::ErrorStatus appendKyDbEntity(KyDbObjectId& id, KyDbEntity* entity,
                                       KyDbHandle handle = KyDbHandle());
    // A new iterator over the entities (the caller deletes it).
    Kyro::ErrorStatus newIterator(KyDbBlockTableRecordIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;
    // Entities in the block, erased ones included.
    int entityCount() const { return m_entities.length(); }

    // The block references that point at this block and are not erased, in
    // the order they came to point at it.
    Kyro::ErrorStatus getBlockReferenceIds(KyArray<KyDbObjectId>& ids, bool directOnly = true,
                                           bool forceValidity = false) const;

protected:
    Kyro::ErrorStatus subCheckRename(const wchar_t* newName) const override;
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    friend class KyDbBlockReference;
    friend class KyDbBlockTableRecordIterator;

    bool isSpaceBlock() const;
    void addReference(KyDbObjectId referenceId);
    void removeReference(KyDbObjectId referenceId);

    KyGePoint3d m_origin;
    KyString m_comments;
    KyDbObjectId m_layout;
    KyString m_path;
    bool m_overlay = false;
    KyDbDatabase* m_xrefDatabase = nullptr;
    std::uint64_t m_xrefSerial = 0;
    KyArray<KyDbObjectId> m_entities;
    // Not part of the state: references keep it up to date themselves.
    KyArray<KyDbObjectId> m_references;
};
