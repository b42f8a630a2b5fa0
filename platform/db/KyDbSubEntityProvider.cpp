#include "db/KyDbSubEntityProvider.h"

#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbEntityPart.h"
#include "db/KyDbEntityParts.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbTable.h"
#include "db/KyDbTableCellSelection.h"

namespace {

Kyro::ErrorStatus openAttribute(KyDbObject* object, KyRxObject*& subEntity, int index,
                                KyDb::OpenMode mode) {
    const KyDbBlockReference* reference = kyrxCast<KyDbBlockReference>(object);
    if (reference == nullptr) {
        return Kyro::eNullSubentity;
    }
    KyArray<KyDbObjectId> attributes;
    reference->getAttributeIds(attributes);
    if (!attributes.isValid(index)) {
        return Kyro::eNullSubentity;
    }
    KyDbAttribute* attribute = nullptr;
    const Kyro::ErrorStatus status = kydbOpenObject(attribute, attributes[index], mode);
    if (status == Kyro::eOk) {
        subEntity = attribute;
    }
    return status;
}

Kyro::ErrorStatus openEntityPart(KyDbObject* object, KyRxObject*& subEntity,
                                 const KyDbSubentId& subentId, KyDb::OpenMode mode) {
    const KyDbEntity* entity = kyrxCast<KyDbEntity>(object);
    if (entity == nullptr) {
        return Kyro::eNullSubentity;
    }
    if (mode != KyDb::kForRead && mode != KyDb::kForWrite && mode != KyDb::kForNotify) {
        return Kyro::eInvalidInput;
    }
    if (!entity->isDatabaseResident()) {
        return Kyro::eNotInDatabase;
    }
    KyDbEntityPart::Geometry geometry;
    if (!KyDbEntityParts::find(*entity, subentId, geometry)) {
        return Kyro::eNullSubentity;
    }
    if (mode == KyDb::kForWrite && !entity->isWriteEnabled()) {
        return Kyro::eWasNotOpenForWrite;
    }
    subEntity = KyDbEntityPart::create(*entity, subentId, mode);
    return Kyro::eOk;
}

Kyro::ErrorStatus openCells(KyDbTable& table, KyRxObject*& subEntity, const KyDbSubentId& subentId,
                            KyDb::OpenMode mode) {
    if (!subentId.isNull() || !table.hasSubSelection()) {
        return Kyro::eNullSubentity;
    }
    const bool writable = mode == KyDb::kForWrite;
    if (writable && !table.isWriteEnabled()) {
        return Kyro::eWasNotOpenForWrite;
    }
    subEntity = new KyDbTableCellSelection(&table, table.subSelection(), writable);
    return Kyro::eOk;
}

}  // namespace

Kyro::ErrorStatus KyDbSubEntityProvider::open(KyDbObject* object, KyRxObject*& subEntity,
                                              const KyDbSubentId& subentId, KyDb::OpenMode mode) {
    subEntity = nullptr;
    if (object == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    if (!object->isReadEnabled()) {
        return Kyro::eInvalidOpenState;
    }
    if (auto* table = kyrxCast<KyDbTable>(object)) {
        return openCells(*table, subEntity, subentId, mode);
    }
    switch (subentId.type()) {
        case KyDb::kAttributeSubentType:
            return openAttribute(object, subEntity, subentId.index(), mode);
        case KyDb::kFaceSubentType:
        case KyDb::kEdgeSubentType:
        case KyDb::kVertexSubentType:
            return openEntityPart(object, subEntity, subentId, mode);
        default:
            return Kyro::eNullSubentity;
    }
}

Kyro::ErrorStatus KyDbSubEntityProvider::close(KyDbObject* object, KyRxObject*& subEntity) {
    if (object == nullptr || subEntity == nullptr) {
        return Kyro::eInvalidInput;
    }
    if (auto* cells = kyrxCast<KyDbTableCellSelection>(subEntity)) {
        // Made by open for this opening alone.
        delete cells;
        subEntity = nullptr;
        return Kyro::eOk;
    }
    if (KyDbEntityPart* part = kyrxCast<KyDbEntityPart>(subEntity)) {
        if (part->entityId() != object->objectId()) {
            return Kyro::eInvalidInput;
        }
        delete part;
        subEntity = nullptr;
        return Kyro::eOk;
    }
    KyDbObject* attribute = kyrxCast<KyDbObject>(subEntity);
    if (attribute == nullptr) {
        return Kyro::eInvalidInput;
    }
    const Kyro::ErrorStatus status = attribute->close();
    subEntity = nullptr;
    return status;
}
