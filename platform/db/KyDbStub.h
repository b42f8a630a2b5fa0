// KyDbStub: what an object id points at. A database takes one stub for each
// object it holds from the process-wide stub arena (KyDbStubArena), which
// keeps every stub until the process ends and never reuses one, so that an id
// stays safe to ask after its object is erased, has left memory, or its
// database has gone: the stub is still there and says so.
#pragma once

#include <cstdint>

class KyDbDatabase;
class KyDbObject;
class KyRxClass;

struct KyDbStub {
    // Bits of `flags`.
    enum Flags : unsigned int {
        kErased = 0x1,  // the object is erased (it may come back by unerase or undo)
    };

    // The database that holds the object; null once the database has gone.
    KyDbDatabase* database = nullptr;
    // The object while it is in memory; null once it has left with its database.
    KyDbObject* object = nullptr;
    // The object's handle, unique within its database; 0 is no handle.
    std::uint64_t handle = 0;
    unsigned int flags = 0;
    // The object's runtime class, known without opening the object.
    const KyRxClass* objectClass = nullptr;
};
