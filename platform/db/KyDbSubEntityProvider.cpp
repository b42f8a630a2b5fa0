#include "db/KyDbSubEntityProvider.h"

#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbOpenObject.h"

Kyro::ErrorStatus KyDbSubEntityProvider::open(KyDbObject* object, KyRxObject*& subEntity,
                                              const KyDbSubentId& subentId, KyDb::OpenMode mode) {
    subEntity = nullptr;
    if (object == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    if (!object->isReadEnabled()) {
        return Kyro::eInvalidOpenState;
    }
    const KyDbBlockReference* reference = kyrxCast<KyDbBlockReference>(object);
    if (reference == nullptr || subentId.type() != KyDb::kAttributeSubentType) {
        return Kyro::eNullSubentity;
    }
    KyArray<KyDbObjectId> attributes;
    reference->getAttributeIds(attributes);
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

Kyro::ErrorStatus KyDbSubEntityProvider::close(KyDbObject* object, KyRxObject*& subEntity) {
    if (object == nullptr || subEntity == nullptr) {
        return Kyro::eInvalidInput;
    }
    KyDbObject* part = kyrxCast<KyDbObject>(subEntity);
    if (part == nullptr) {
        return Kyro::eInvalidInput;
    }
    const Kyro::ErrorStatus status = part->close();
    subEntity = nullptr;
    return status;
}
