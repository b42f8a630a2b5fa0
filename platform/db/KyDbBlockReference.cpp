#include "db/KyDbBlockReference.h"

#include <cmath>

#include "db/KyDbAttribute.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectAccess.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStateFiler.h"

namespace {

using Reference = KyDbBlockReference;

Kyro::ErrorStatus listAttributes(const KyRxObject* object, KyDbIdList& ids) {
    const Reference* reference = kyrxCast<Reference>(object);
    if (reference == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    reference->getAttributeIds(ids);
    return Kyro::eOk;
}

Kyro::ErrorStatus getIsDynamicBlock(const KyRxObject* object, KyRxValue& value) {
    const Reference* reference = kyrxCast<Reference>(object);
    if (reference == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    if (const Kyro::ErrorStatus status = kydbiReadStatus(reference); status != Kyro::eOk) {
        return status;
    }
    value = KyRxValue(reference->isDynamic());
    return Kyro::eOk;
}

const KyDbPropertyRow kReferenceRows[] = {
    {L"BlockTableRecordId",
     kydbiAccess<&Reference::blockTableRecord,
                 kydbiSetter<Reference, KyDbObjectId>(&Reference::setBlockTableRecord)>(),
     KyDbCategory::kMisc, 0, L"/BlockTableId/Items"},
    {L"Position", kydbiAccess<&Reference::position, &Reference::setPosition>(),
     KyDbCategory::kGeometry, 1},
    {L"ScaleFactors", kydbiAccess<&Reference::scaleFactors, &Reference::setScaleFactors>(),
     KyDbCategory::kGeometry, 2},
    {L"Rotation", kydbiAccess<&Reference::rotation, &Reference::setRotation>(),
     KyDbCategory::kGeometry, 3},
    {L"IsDynamicBlock", kydbiReadOnly<bool>(&getIsDynamicBlock), KyDbCategory::kMisc, 1},
    {L"Attributes", {}, nullptr, 0, nullptr, &kydbiIdCollection<&listAttributes>},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbBlockReference, KyDbEntity, kReferenceRows, L"INSERT")

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

Kyro::ErrorStatus KyDbBlockReference::setBlockTableRecord(const wchar_t* blockName) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    KyDbObjectId blockId;
    if (const Kyro::ErrorStatus status =
            KyDbRecordReference::findNamed(this, &KyDbDatabase::blockTableId, blockName, blockId);
        status != Kyro::eOk) {
        return status;
    }
    return setBlockTableRecord(blockId);
}

Kyro::ErrorStatus KyDbBlockReference::setPosition(const KyGePoint3d& position) {
    return setMember(m_position, position);
}

Kyro::ErrorStatus KyDbBlockReference::setScaleFactors(const KyGePoint3d& scale) {
    if (scale.x == 0.0 || scale.y == 0.0 || scale.z == 0.0) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_scale, scale);
}

Kyro::ErrorStatus KyDbBlockReference::setRotation(double degrees) {
    return std::isfinite(degrees) ? setMember(m_rotation, degrees) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbBlockReference::setIsDynamic(bool dynamic) {
    return setMember(m_dynamic, dynamic);
}

Kyro::ErrorStatus KyDbBlockReference::appendAttribute(KyDbObjectId& id, KyDbAttribute* attribute,
                                                      KyDbHandle handle) {
    if (const Kyro::ErrorStatus status = checkCanOwn(attribute); status != Kyro::eOk) {
        return status;
    }
    KyDbObjectId newId;
    if (const Kyro::ErrorStatus status = appendOwned(attribute, handle, newId);
        status != Kyro::eOk) {
        return status;
    }
    if (handle.isNull()) {
        KyDbObjectAccess::makeHandleProvisional(attribute);
    }
    m_attributes.append(newId);
    id = newId;
    KyDbObjectAccess::announceAppend(attribute);
    return Kyro::eOk;
}

void KyDbBlockReference::getAttributeIds(KyArray<KyDbObjectId>& ids) const {
    ids.setLogicalLength(0);
    for (const KyDbObjectId& id : m_attributes) {
        if (id.isValid() && !id.isErased()) {
            ids.append(id);
        }
    }
}

void KyDbBlockReference::subAppended(KyDbDatabase* database) {
    KyDbEntity::subAppended(database);
    relink(KyDbObjectId(), m_block);
}

void KyDbBlockReference::subErasedChanged(bool erasing) {
    KyDbEntity::subErasedChanged(erasing);
    // Undo and redo put each attribute back by its own record.
    if (isRestoring()) {
        return;
    }
    for (const KyDbObjectId& id : m_attributes) {
        if (id.isValid() && id.isErased() != erasing) {
            KyDbObjectPointer<KyDbAttribute> attribute(id, KyDb::kForWrite, true);
            if (attribute) {
                attribute->erase(erasing);
            }
        }
    }
}

void KyDbBlockReference::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_block);
    filer.write(m_position);
    filer.write(m_scale);
    filer.write(m_rotation);
    filer.write(m_dynamic);
}

Kyro::ErrorStatus KyDbBlockReference::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    const KyDbObjectId previous = m_block;
    filer.read(m_block);
    filer.read(m_position);
    filer.read(m_scale);
    filer.read(m_rotation);
    filer.read(m_dynamic);
    relink(previous, m_block);
    return filer.status();
}
