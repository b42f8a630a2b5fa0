#include "KyRefRecordReferences.h"

#include <memory>

#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbSymbolTable.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

bool holds(const KyRxValue& value, KyDbObjectId id) {
    const KyDbObjectId* held = valueCast<KyDbObjectId>(&value);
    return held != nullptr && *held == id;
}

// True when a property of `object` that holds ids holds `id`.
bool refersTo(const KyDbObject* object, KyDbObjectId id) {
    const KyRxValueType& idType = KyRxValueType::Desc<KyDbObjectId>::value();
    const std::unique_ptr<KyRxMemberIterator> members(
        KyRxMemberQueryEngine::theEngine()->newMemberIterator(object));
    for (; members != nullptr && !members->done(); members->next()) {
        const KyRxMember* member = members->current();
        if (&member->type() != &idType) {
            continue;
        }
        if (const auto* property = kyrxCast<KyRxProperty>(member)) {
            KyRxValue value;
            if (property->getValue(object, value) == Kyro::eOk && holds(value, id)) {
                return true;
            }
        } else if (const auto* list = kyrxCast<KyRxCollectionProperty>(member)) {
            const std::unique_ptr<KyRxValueIterator> values(list->newValueIterator(object));
            for (; values != nullptr && !values->done(); values->next()) {
                KyRxValue value;
                if (values->current(value) == Kyro::eOk && holds(value, id)) {
                    return true;
                }
            }
        }
    }
    return false;
}

bool isContainer(KyDbObjectId id) {
    const KyRxClass* objectClass = id.objectClass();
    return objectClass == nullptr || objectClass->isDerivedFrom(KyDbSymbolTable::desc()) ||
           objectClass->isDerivedFrom(KyDbDictionary::desc());
}

}  // namespace

bool KyRefRecordReferences::isReferenced(const KyDbDatabase* database, KyDbObjectId id) {
    const std::uint64_t end = database->handseed().value();
    for (std::uint64_t handle = 1; handle < end; ++handle) {
        KyDbObjectId objectId;
        if (database->getKyDbObjectId(objectId, KyDbHandle(handle)) != Kyro::eOk ||
            objectId == id || objectId.isErased() || isContainer(objectId)) {
            continue;
        }
        KyRefReadAccess<KyDbObject> object(objectId);
        if (object && !object->ownerId().isErased() && refersTo(object.object(), id)) {
            return true;
        }
    }
    return false;
}
