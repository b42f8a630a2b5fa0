#include "db/KyDbSubEntityProvider.h"

#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbTable.h"
#include "db/KyDbTableCellSelection.h"

namespace {

Kyro::ErrorStatus openAttribute(const KyDbBlockReference& reference, KyRxObject*& subEntity,
                                const KyDbSubentId& subentId, KyDb::OpenMode mode) {
    if (subentId.type() != KyDb::kAttributeSubentType) {
        return Kyro::eNullSubentity;
    }
    KyArray<KyDbObjectId> attributes;
    reference.getAttributeIds(attributes);
    if (!attributes.isValid(subentId.index())) {
        return Kyro::eNullSubentity;
    }
    KyDbAttribute* attribute = nullptr;
    const Kyro::ErrorStatus status = kydbOpenObject(attribute, attributes[subentId.index()], mode);
    if (status == Kyro::eOk) {
        subEntity = attribute;
    }
    return status;
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
    if (const auto* reference = kyrxCast<KyDbBlockReference>(object)) {
        return openAttribute(*reference, subEntity, subentId, mode);
    }
    if (auto* table = kyrxCast<KyDbTable>(object)) {
        return openCells(*table, subEntity, subentId, mode);
    }
    return Kyro::eNullSubentity;
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
    KyDbObject* part = kyrxCast<KyDbObject>(subEntity);
    if (part == nullptr) {
        return Kyro::eInvalidInput;
    }
    const Kyro::ErrorStatus status = part->close();
    subEntity = nullptr;
    return status;
}
