// Opening database objects by id, and the count of opens.
//
// Every form leaves `object` null and answers a status when it fails:
// - eNullObjectId: the null id;
// - eInvalidObjectId: the object or its database has gone;
// - eObjectToBeDeleted: the object is leaving memory with its database;
// - eWasErased: the object is erased and `openErased` is false;
// - eNotThatKindOfClass: the object is not of the class asked for;
// - eLockViolation: a write-open of a database that requires the document
//   lock, outside one;
// - eWasOpenedForWrite: a read- or write-open of an object open for write;
// - eWasOpenedForRead: a write-open of an object open for read;
// - eInvalidInput: a mode other than read, write or notify.
// Each open is ended by one close() of the object.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObject.h"
#include "db/KyDbObjectId.h"

class KyDbEntity;
class KyRxClass;

using KyRxClassDescFunction = KyRxClass* (*)();

KYPLATFORM_API Kyro::ErrorStatus kydbOpenObject(KyDbObject*& object, KyDbObjectId id,
                                                KyDb::OpenMode mode, bool openErased = false,
                                                const KyRxClass* objectClass = nullptr);
KYPLATFORM_API Kyro::ErrorStatus kydbOpenObject(KyDbObject*& object, KyDbObjectId id,
                                                KyRxClassDescFunction classDesc,
                                                KyDb::OpenMode mode, bool openErased = false);
KYPLATFORM_API Kyro::ErrorStatus kydbOpenObject(KyDbEntity*& entity, KyDbObjectId id,
                                                KyDb::OpenMode mode, bool openErased = false);

// Opens as a T (eNotThatKindOfClass when the object is not one).
template <typename T>
Kyro::ErrorStatus kydbOpenObject(T*& object, KyDbObjectId id, KyDb::OpenMode mode,
                                 bool openErased = false) {
    KyDbObject* opened = nullptr;
    const Kyro::ErrorStatus status = kydbOpenObject(opened, id, mode, openErased, T::desc());
    object = static_cast<T*>(opened);
    return status;
}

// Opens that have not been closed yet, in every database of the process,
// also of objects whose database was deleted while they were open.
KYPLATFORM_API long long kydbOpenObjectCount();

// Read access to an object that may be open already. When the object is open
// for read or write, `object` is that object and `wasOpenedHere` false: the
// caller must not close it. Otherwise the object is opened for read and
// `wasOpenedHere` is true: the caller closes it. The failures of
// kydbOpenObject, also for an object open already (erased, wrong class).
KYPLATFORM_API Kyro::ErrorStatus accessKyDbObjectForRead(KyDbObject*& object, KyDbObjectId id,
                                                         KyRxClassDescFunction classDesc,
                                                         bool& wasOpenedHere,
                                                         bool openErased = false);

// How accessKyDbObjectForWrite got its object, for revertKyDbObjectFromWrite.
struct KyDbWriteAccess {
    bool openedHere = false;  // it was closed: opened for write here
    bool upgraded = false;    // it was open for read once: upgraded here
};

// Write access to an object that may be open already: an object open for
// write is taken as it is; one open for read by exactly one opener is
// upgraded; one not open is opened for write. The failures of kydbOpenObject
// and of upgradeOpen.
KYPLATFORM_API Kyro::ErrorStatus accessKyDbObjectForWrite(KyDbObject*& object, KyDbObjectId id,
                                                          KyRxClassDescFunction classDesc,
                                                          KyDbWriteAccess& access,
                                                          bool openErased = false);

// Puts the object back as accessKyDbObjectForWrite found it: closes what it
// opened, downgrades what it upgraded (both with the close notifications of a
// change), leaves alone what was open for write. `status` is the status that
// accessKyDbObjectForWrite answered: after a failure there is nothing to put
// back, and eOk is answered. Otherwise the status of the close or downgrade.
KYPLATFORM_API Kyro::ErrorStatus revertKyDbObjectFromWrite(KyDbObject* object,
                                                           Kyro::ErrorStatus status,
                                                           const KyDbWriteAccess& access);
