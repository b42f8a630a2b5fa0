#include "db/KyDbStubArena.h"

#include <new>

namespace {

constexpr int kStubsPerBlock = 1024;

struct StubBlock {
    StubBlock* previous;
    KyDbStub stubs[kStubsPerBlock];
};

// Plain pointers, never destroyed: the blocks stay reachable to the end of the
// process, so that a leak checker does not count them.
StubBlock* g_lastBlock = nullptr;
int g_usedInLastBlock = kStubsPerBlock;
long long g_stubCount = 0;

}  // namespace

KyDbStub* KyDbStubArena::newStub() {
    if (g_usedInLastBlock == kStubsPerBlock) {
        auto* block = new StubBlock();
        block->previous = g_lastBlock;
        g_lastBlock = block;
        g_usedInLastBlock = 0;
    }
    ++g_stubCount;
    return &g_lastBlock->stubs[g_usedInLastBlock++];
}

long long KyDbStubArena::stubCount() {
    return g_stubCount;
}
