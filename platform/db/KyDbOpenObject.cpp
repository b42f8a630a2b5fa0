#include "db/KyDbOpenObject.h"

#include "db/KyDbEntity.h"
#include "db/KyDbObjectAccess.h"
#include "rx/KyRxClass.h"

namespace {

// The object of `id` if it may be handed out now, with the status otherwise.
Kyro::ErrorStatus findObject(KyDbObject*& found, KyDbObjectId id, bool openErased,
                             const KyRxClass* objectClass) {
    if (id.isNull()) {
        return Kyro::eNullObjectId;
    }
    const KyDbStub* stub = id.stub();
    if (stub->database == nullptr || stub->object == nullptr) {
        return Kyro::eInvalidObjectId;
    }
    KyDbObject* object = stub->object;
    if (KyDbObjectAccess::isGoingAway(object)) {
        return Kyro::eObjectToBeDeleted;
    }
    if (!openErased && object->isErased()) {
        return Kyro::eWasErased;
    }
    if (objectClass != nullptr && !object->isKindOf(objectClass)) {
        return Kyro::eNotThatKindOfClass;
    }
    found = object;
    return Kyro::eOk;
}

}  // namespace

Kyro::ErrorStatus kydbOpenObject(KyDbObject*& object, KyDbObjectId id, KyDb::OpenMode mode,
                                 bool openErased, const KyRxClass* objectClass) {
    object = nullptr;
    if (mode != KyDb::kForRead && mode != KyDb::kForWrite && mode != KyDb::kForNotify) {
        return Kyro::eInvalidInput;
    }
    KyDbObject* found = nullptr;
    if (const Kyro::ErrorStatus status = findObject(found, id, openErased, objectClass);
        status != Kyro::eOk) {
        return status;
    }
    if (mode == KyDb::kForWrite) {
        KyDbDatabase* database = found->database();
        if (KyDbObjectAccess::isDestroying(database)) {
            return Kyro::eObjectToBeDeleted;
        }
        if (const Kyro::ErrorStatus status = database->checkWriteLock(); status != Kyro::eOk) {
            return status;
        }
    }
    if (const Kyro::ErrorStatus status = KyDbObjectAccess::open(found, mode); status != Kyro::eOk) {
        return status;
    }
    object = found;
    return Kyro::eOk;
}

Kyro::ErrorStatus kydbOpenObject(KyDbObject*& object, KyDbObjectId id,
                                 KyRxClassDescFunction classDesc, KyDb::OpenMode mode,
                                 bool openErased) {
    return kydbOpenObject(object, id, mode, openErased,
                          classDesc != nullptr ? classDesc() : nullptr);
}

Kyro::ErrorStatus kydbOpenObject(KyDbEntity*& entity, KyDbObjectId id, KyDb::OpenMode mode,
                                 bool openErased) {
    KyDbObject* object = nullptr;
    const Kyro::ErrorStatus status =
        kydbOpenObject(object, id, mode, openErased, KyDbEntity::desc());
    entity = static_cast<KyDbEntity*>(object);
    return status;
}

long long kydbOpenObjectCount() {
    return KyDbObjectAccess::openCount();
}

Kyro::ErrorStatus accessKyDbObjectForRead(KyDbObject*& object, KyDbObjectId id,
                                          KyRxClassDescFunction classDesc, bool& wasOpenedHere,
                                          bool openErased) {
    object = nullptr;
    wasOpenedHere = false;
    const KyRxClass* objectClass = classDesc != nullptr ? classDesc() : nullptr;
    KyDbObject* found = nullptr;
    if (const Kyro::ErrorStatus status = findObject(found, id, openErased, objectClass);
        status != Kyro::eOk) {
        return status;
    }
    if (KyDbObjectAccess::isOpenForReadOrWrite(found)) {
        object = found;
        return Kyro::eOk;
    }
    const Kyro::ErrorStatus status =
        kydbOpenObject(object, id, KyDb::kForRead, openErased, objectClass);
    wasOpenedHere = status == Kyro::eOk;
    return status;
}

Kyro::ErrorStatus accessKyDbObjectForWrite(KyDbObject*& object, KyDbObjectId id,
                                           KyRxClassDescFunction classDesc, KyDbWriteAccess& access,
                                           bool openErased) {
    object = nullptr;
    access = KyDbWriteAccess();
    const KyRxClass* objectClass = classDesc != nullptr ? classDesc() : nullptr;
    KyDbObject* found = nullptr;
    if (const Kyro::ErrorStatus status = findObject(found, id, openErased, objectClass);
        status != Kyro::eOk) {
        return status;
    }
    if (KyDbObjectAccess::isOpenForWrite(found)) {
        object = found;
        return Kyro::eOk;
    }
    if (KyDbObjectAccess::isOpenForReadOrWrite(found)) {
        if (const Kyro::ErrorStatus status = found->upgradeOpen(); status != Kyro::eOk) {
            return status;
        }
        access.upgraded = true;
        object = found;
        return Kyro::eOk;
    }
    const Kyro::ErrorStatus status =
        kydbOpenObject(object, id, KyDb::kForWrite, openErased, objectClass);
    access.openedHere = status == Kyro::eOk;
    return status;
}

Kyro::ErrorStatus revertKyDbObjectFromWrite(KyDbObject* object, Kyro::ErrorStatus status,
                                            const KyDbWriteAccess& access) {
    if (status != Kyro::eOk || object == nullptr) {
        return Kyro::eOk;
    }
    if (access.openedHere) {
        return object->close();
    }
    if (access.upgraded) {
        return object->downgradeOpen();
    }
    return Kyro::eOk;
}
