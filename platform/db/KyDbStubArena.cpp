#include "db/KyDbStubArena.h"

#include <algorithm>
#include <new>

namespace {

// Each block holds twice as many stubs as the one before, up to a limit: a
// process that reads drawing after drawing asks the allocator for memory
// ever more rarely (a leak checker that looks at every allocation that
// outlives a unit of work, as a fuzzer's does, looks rarely too), while a
// small process stays small.
constexpr int kFirstBlockStubs = 1024;
constexpr int kLargestBlockStubs = 65536;

struct StubBlock {
    StubBlock* previous;
    int size;
    KyDbStub* stubs;
};

// Plain pointers, never destroyed: the blocks stay reachable to the end of the
// process, so that a leak checker does not count them.
StubBlock* g_lastBlock = nullptr;
int g_usedInLastBlock = 0;
long long g_stubCount = 0;

}  // namespace

KyDbStub* KyDbStubArena::newStub() {
    if (g_lastBlock == nullptr || g_usedInLastBlock == g_lastBlock->size) {
        const int size = g_lastBlock == nullptr
                             ? kFirstBlockStubs
                             : std::min(g_lastBlock->size * 2, kLargestBlockStubs);
        g_lastBlock = new StubBlock{g_lastBlock, size, new KyDbStub[size]()};
        g_usedInLastBlock = 0;
    }
    ++g_stubCount;
    return &g_lastBlock->stubs[g_usedInLastBlock++];
}

long long KyDbStubArena::stubCount() {
    return g_stubCount;
}
