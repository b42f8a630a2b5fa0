// Internal to the drawing database; not part of the platform's interface.
//
// KyDbStubArena: where every stub of every database lives. Stubs are handed
// out from blocks that are never freed and never reused while the process
// runs, so an id stays a valid pointer after its object and its database have
// gone.
#pragma once

#include "db/KyDbStub.h"

class KyDbStubArena {
public:
    // A zeroed stub, owned by the arena for the life of the process.
    static KyDbStub* newStub();
    // How many stubs the arena has handed out.
    static long long stubCount();
};
