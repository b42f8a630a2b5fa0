#include "db/KyDbObjectAccess.h"

#include <algorithm>

#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbStubArena.h"
#include "db/KyDbUndoController.h"

namespace {

constexpr int kStackEntries = 32;
constexpr std::uint64_t kModeMask = 3;

}  // namespace

long long& KyDbObjectAccess::openCount() {
    static long long s_count = 0;
    return s_count;
}

void KyDbObjectAccess::push(KyDbObject* object, KyDb::OpenMode mode) {
    if (object->m_openDepth < kStackEntries) {
        object->m_openStack = (object->m_openStack << 2) | static_cast<std::uint64_t>(mode);
        ++object->m_openDepth;
    } else if (mode == KyDb::kForNotify) {
        ++object->m_deepNotifiers;
    } else {
        ++object->m_deepReaders;
    }
    ++openCount();
}

KyDb::OpenMode KyDbObjectAccess::pop(KyDbObject* object) {
    if (object->m_deepNotifiers > 0) {
        --object->m_deepNotifiers;
        return KyDb::kForNotify;
    }
    if (object->m_deepReaders > 0) {
        --object->m_deepReaders;
        return KyDb::kForRead;
    }
    const auto mode = static_cast<KyDb::OpenMode>(object->m_openStack & kModeMask);
    object->m_openStack >>= 2;
    --object->m_openDepth;
    return mode;
}

Kyro::ErrorStatus KyDbObjectAccess::open(KyDbObject* object, KyDb::OpenMode mode) {
    const bool stackFull = object->m_openDepth >= kStackEntries;
    switch (mode) {
        case KyDb::kForRead:
            if (object->m_writer) {
                return Kyro::eWasOpenedForWrite;
            }
            ++object->m_readers;
            break;
        case KyDb::kForWrite:
            if (object->m_writer) {
                return Kyro::eWasOpenedForWrite;
            }
            if (object->m_readers > 0) {
                return Kyro::eWasOpenedForRead;
            }
            if (stackFull) {
                return Kyro::eWasOpenedForNotify;
            }
            object->m_writer = true;
            object->m_flags &=
                static_cast<std::uint16_t>(~(KyDbObject::kChanged | KyDbObject::kNew));
            ++object->m_stub->database->m_writeOpenCount;
            break;
        case KyDb::kForNotify:
            ++object->m_notifiers;
            break;
        default:
            return Kyro::eInvalidInput;
    }
    push(object, mode);
    return Kyro::eOk;
}

void KyDbObjectAccess::close(KyDbObject* object) {
    switch (pop(object)) {
        case KyDb::kForRead:
            --object->m_readers;
            --openCount();
            break;
        case KyDb::kForNotify:
            --object->m_notifiers;
            --openCount();
            break;
        case KyDb::kForWrite:
            endWrite(object, false);
            break;
    }
}

Kyro::ErrorStatus KyDbObjectAccess::upgrade(KyDbObject* object) {
    KyDbDatabase* database = object->m_stub->database;
    if (isGoingAway(object) || database->m_destroying) {
        return Kyro::eObjectToBeDeleted;
    }
    if (const Kyro::ErrorStatus status = database->checkWriteLock(); status != Kyro::eOk) {
        return status;
    }
    // The read-open that becomes the write-open is the most recent one.
    for (int i = 0; i < object->m_openDepth; ++i) {
        const int shift = 2 * i;
        if (((object->m_openStack >> shift) & kModeMask) == KyDb::kForRead) {
            object->m_openStack |= static_cast<std::uint64_t>(KyDb::kForWrite) << shift;
            --object->m_readers;
            object->m_writer = true;
            object->m_flags &=
                static_cast<std::uint16_t>(~(KyDbObject::kChanged | KyDbObject::kNew));
            ++database->m_writeOpenCount;
            return Kyro::eOk;
        }
    }
    return Kyro::eInvalidOpenState;
}

void KyDbObjectAccess::endWrite(KyDbObject* object, bool toRead) {
    KyDbDatabase* database = object->m_stub->database;
    const bool changed = (object->m_flags & KyDbObject::kChanged) != 0;
    if (changed) {
        tellObjectReactors(object, [object](auto* reactor) { reactor->modified(object); });
        tellDatabaseReactors(database, [database, object](KyDbDatabaseReactor* reactor) {
            reactor->objectModified(database, object);
        });
    }
    object->m_writer = false;
    object->m_flags &= static_cast<std::uint16_t>(~(KyDbObject::kChanged | KyDbObject::kNew));
    if (toRead) {
        for (int i = 0; i < object->m_openDepth; ++i) {
            const int shift = 2 * i;
            if (((object->m_openStack >> shift) & kModeMask) == KyDb::kForWrite) {
                object->m_openStack &= ~(kModeMask << shift);
                break;
            }
        }
        ++object->m_readers;
    } else {
        --openCount();
    }
    --database->m_writeOpenCount;
    if (changed) {
        const KyDbObjectId id = object->objectId();
        tellObjectReactors(object, [id](auto* reactor) { reactor->objectClosed(id); });
        tellReferenceOfAttribute(object);
    }
    database->writeOpenEnded();
}

void KyDbObjectAccess::startChange(KyDbObject* object, bool takeImage) {
    object->m_flags |= KyDbObject::kChanged;
    if ((object->m_flags & KyDbObject::kRestoring) != 0) {
        return;
    }
    KyDbDatabase* database = object->m_stub->database;
    if (takeImage) {
        database->m_undo->recordState(object);
    }
    tellObjectReactors(object, [object](auto* reactor) { reactor->openedForModify(object); });
    tellDatabaseReactors(database, [database, object](KyDbDatabaseReactor* reactor) {
        reactor->objectOpenedForModify(database, object);
    });
}

Kyro::ErrorStatus KyDbObjectAccess::append(KyDbDatabase* database, KyDbObject* object,
                                           KyDbObjectId owner, KyDbHandle handle,
                                           KyDbObjectId& id) {
    if (database == nullptr || object == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    if (object->m_stub != nullptr) {
        return Kyro::eAlreadyInDb;
    }
    if (database->m_destroying) {
        return Kyro::eObjectToBeDeleted;
    }
    if (!handle.isNull()) {
        if (KyDbStub* holder = database->stubOfHandle(handle.value())) {
            // A provisional handle gives way to one that a reader was given.
            const Kyro::ErrorStatus status = database->moveProvisional(holder);
            if (status != Kyro::eOk) {
                return status;
            }
        }
    }
    KyDbStub* stub = KyDbStubArena::newStub();
    stub->database = database;
    stub->object = object;
    stub->objectClass = object->isA();
    stub->handle = handle.isNull() ? database->m_handseed : handle.value();
    database->registerStub(stub);
    database->m_objects.push_back(object);

    object->m_stub = stub;
    object->m_ownerId = owner;
    object->m_writer = true;
    object->m_flags = KyDbObject::kNew;
    push(object, KyDb::kForWrite);
    ++database->m_writeOpenCount;
    id = KyDbObjectId(stub);

    database->m_undo->recordAppend(object);
    object->subAppended(database);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbObjectAccess::checkHandle(const KyDbDatabase* database, KyDbHandle handle) {
    if (handle.isNull()) {
        return Kyro::eOk;
    }
    KyDbStub* holder = database->stubOfHandle(handle.value());
    if (holder == nullptr) {
        return Kyro::eOk;
    }
    const auto& provisional = database->m_provisional;
    return std::find(provisional.begin(), provisional.end(), holder) != provisional.end()
               ? Kyro::eOk
               : Kyro::eHandleInUse;
}

void KyDbObjectAccess::makeHandleProvisional(KyDbObject* object) {
    if (object->m_stub != nullptr && object->m_stub->database != nullptr) {
        object->m_stub->database->m_provisional.push_back(object->m_stub);
    }
}

void KyDbObjectAccess::announceAppend(KyDbObject* object) {
    KyDbDatabase* database = object->database();
    tellDatabaseReactors(database, [database, object](KyDbDatabaseReactor* reactor) {
        reactor->objectAppended(database, object);
    });
}

Kyro::ErrorStatus KyDbObjectAccess::setErased(KyDbObject* object, bool erasing, bool askClass,
                                              bool record) {
    if (askClass) {
        if (const Kyro::ErrorStatus status = object->subErase(erasing); status != Kyro::eOk) {
            return status;
        }
    }
    if ((object->m_flags & KyDbObject::kChanged) == 0) {
        // The erase is the change: undo keeps the erase, not a before-image.
        startChange(object, false);
    }
    if (erasing) {
        object->m_stub->flags |= KyDbStub::kErased;
    } else {
        object->m_stub->flags &= ~static_cast<unsigned int>(KyDbStub::kErased);
    }
    object->subErasedChanged(erasing);
    KyDbDatabase* database = object->m_stub->database;
    if (record) {
        database->m_undo->recordErase(object, erasing);
    }
    tellObjectReactors(object,
                       [object, erasing](auto* reactor) { reactor->erased(object, erasing); });
    tellDatabaseReactors(database, [database, object, erasing](KyDbDatabaseReactor* reactor) {
        reactor->objectErased(database, object, erasing);
    });
    tellDictionaryOfEntry(object);
    return Kyro::eOk;
}

void KyDbObjectAccess::tellDictionaryOfEntry(KyDbObject* entry) {
    const KyDbStub* ownerStub = entry->m_ownerId.stub();
    KyDbDictionary* dictionary =
        ownerStub != nullptr ? kyrxCast<KyDbDictionary>(ownerStub->object) : nullptr;
    // An object taken out of a dictionary keeps it as its owner.
    if (dictionary == nullptr || !dictionary->holds(entry->objectId())) {
        return;
    }
    tellOwnerOfChange(dictionary);
}

void KyDbObjectAccess::tellReferenceOfAttribute(KyDbObject* object) {
    if (kyrxCast<KyDbAttribute>(object) == nullptr) {
        return;
    }
    const KyDbStub* ownerStub = object->m_ownerId.stub();
    KyDbBlockReference* reference =
        ownerStub != nullptr ? kyrxCast<KyDbBlockReference>(ownerStub->object) : nullptr;
    if (reference == nullptr || isGoingAway(reference) ||
        isDestroying(reference->m_stub->database)) {
        return;
    }
    tellOwnerOfChange(reference);
}

void KyDbObjectAccess::tellOwnerOfChange(KyDbObject* owner) {
    if (owner->m_writer) {
        // With a before-image: what its opener changes after this is undone
        // with the rest.
        if ((owner->m_flags & KyDbObject::kChanged) == 0) {
            startChange(owner);
        }
        return;
    }
    KyDbDatabase* database = owner->m_stub->database;
    tellObjectReactors(owner, [owner](auto* reactor) { reactor->modified(owner); });
    tellDatabaseReactors(database, [database, owner](KyDbDatabaseReactor* reactor) {
        reactor->objectModified(database, owner);
    });
    const KyDbObjectId id = owner->objectId();
    tellObjectReactors(owner, [id](auto* reactor) { reactor->objectClosed(id); });
}

void KyDbObjectAccess::setRestoring(KyDbObject* object, bool restoring) {
    if (restoring) {
        object->m_flags |= KyDbObject::kRestoring;
    } else {
        object->m_flags &= static_cast<std::uint16_t>(~KyDbObject::kRestoring);
    }
}

void KyDbObjectAccess::sayGoodbye(KyDbObject* object) {
    object->m_flags |= KyDbObject::kGoingAway;
    tellObjectReactors(
        object, [object](auto* reactor) { reactor->goodbye(object); }, false);
}

void KyDbObjectAccess::forget(KyDbObject* object) {
    if (object->m_stub != nullptr) {
        object->m_stub->object = nullptr;
        object->m_stub->database = nullptr;
    }
}

void KyDbObjectAccess::callPersistent(KyDbObjectId reactorId, void (*call)(KyDbObject*, void*),
                                      void* context) {
    KyDbObject* reactor = nullptr;
    if (kydbOpenObject(reactor, reactorId, KyDb::kForNotify, false) == Kyro::eOk) {
        call(reactor, context);
        reactor->close();
    }
}
