// KyDbBlockReference: an entity that shows a block at a position, scaled and
// rotated (in degrees). The block knows its references
// (KyDbBlockTableRecord::getBlockReferenceIds): a reference enters the
// block's list when it comes into the database pointing at the block, or is
// made to point at it, and leaves it when it points elsewhere.
//
// Attributes. A reference owns its attributes (KyDbAttribute): objects of the
// database of their own, appended through the reference and kept in its list
// in the order appended, as a block keeps its entities. Erasing or unerasing
// the reference does the same to its attributes. Selected, an attribute is a
// sub-entity of the reference (KyDbSubEntityProvider). A change of an
// attribute is a change of the reference too: its reactors hear of it when
// the attribute is closed (KyDbObject.h).
//
// A reference of a dynamic block (one with parameters of its own, "dynamic"
// in a drawing file) says so by isDynamic; KyDbDynBlockReference reads it.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "db/KyDbEntity.h"
#include "ge/KyGePoint3d.h"

class KyDbAttribute;

class KYPLATFORM_API KyDbBlockReference : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbBlockReference);
    KyDbBlockReference();
    ~KyDbBlockReference() override;

    KyDbObjectId blockTableRecord() const { return m_block; }
    // A block of the same database (eNotThatKindOfClass, eWrongDatabase,
    // eWasErased), or by name.
    Kyro::ErrorStatus setBlockTableRecord(KyDbObjectId blockId);
    Kyro::ErrorStatus setBlockTableRecord(const wchar_t* blockName);
    const KyGePoint3d& position() const { return m_position; }
    Kyro::ErrorStatus setPosition(const KyGePoint3d& position);
    // The scale in X, Y and Z; no factor may be 0 (eInvalidInput).
    const KyGePoint3d& scaleFactors() const { return m_scale; }
    Kyro::ErrorStatus setScaleFactors(const KyGePoint3d& scale);
    double rotation() const { return m_rotation; }
    Kyro::ErrorStatus setRotation(double degrees);
    bool isDynamic() const { return m_dynamic; }
    Kyro::ErrorStatus setIsDynamic(bool dynamic);

    // Appends a new attribute, with `handle` or the next free one; the
    // reference must be in a database (eNotInDatabase) and open for write.
    // The attribute is then open for write: close it. An attribute given no
    // handle holds its handle provisionally, as it has none in a drawing
    // file: a handle that a reader gives another object later takes it
    // over, and the attribute moves to a new one.
    Kyro::ErrorStatus appendAttribute(KyDbObjectId& id, KyDbAttribute* attribute,
                                      KyDbHandle handle = KyDbHandle());
    // The attributes that are not erased, in order.
    void getAttributeIds(KyArray<KyDbObjectId>& ids) const;
    // Attributes appended, erased ones included.
    int attributeCount() const { return m_attributes.length(); }

protected:
    void subAppended(KyDbDatabase* database) override;
    void subErasedChanged(bool erasing) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // Moves this reference from the list of `from` to that of `to`.
    void relink(KyDbObjectId from, KyDbObjectId to) const;

    KyDbObjectId m_block;
    KyGePoint3d m_position;
    KyGePoint3d m_scale{1.0, 1.0, 1.0};
    double m_rotation = 0.0;
    bool m_dynamic = false;
    // Not part of the state, as a block's entities are not: appends are
    // undone by erasing the attribute.
    KyArray<KyDbObjectId> m_attributes;
};
