#include "base/KyHeap.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <new>
#include <string>

// Failed allocations answer null here instead of stopping the program, so
// that the heap's own failure handling can be seen under AddressSanitizer.
extern "C" __attribute__((used, visibility("default"))) const char* __asan_default_options() {
    return "allocator_may_return_null=1";
}

namespace {

// The data segment of the process now, from /proc.
long long dataBytes() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("VmData:", 0) == 0) {
            return std::stoll(line.substr(7)) * 1024;
        }
    }
    return -1;
}

// Limits the data segment for the length of a test.
class DataLimit {
public:
    explicit DataLimit(long long headroom) {
        getrlimit(RLIMIT_DATA, &m_saved);
        rlimit limit = m_saved;
        limit.rlim_cur = static_cast<rlim_t>(dataBytes() + headroom);
        m_set = setrlimit(RLIMIT_DATA, &limit) == 0;
    }
    ~DataLimit() { setrlimit(RLIMIT_DATA, &m_saved); }
    bool isSet() const { return m_set; }

private:
    rlimit m_saved{};
    bool m_set = false;
};

// Restores the new-handler of the process after a test.
class HandlerScope {
public:
    explicit HandlerScope(std::new_handler handler) : m_saved(std::set_new_handler(handler)) {}
    ~HandlerScope() { std::set_new_handler(m_saved); }

private:
    std::new_handler m_saved;
};

constexpr long long kMiB = 1024 * 1024;
void* g_ballast = nullptr;
int g_handlerCalls = 0;

void releaseBallast() {
    ++g_handlerCalls;
    std::free(g_ballast);
    g_ballast = nullptr;
}

void giveUp() {
    ++g_handlerCalls;
    if (g_handlerCalls == 3) {
        std::set_new_handler(nullptr);
    }
}

class Sample : public KyHeapObject {
public:
    int values[4] = {1, 2, 3, 4};
};

TEST(BaseHeap, AllocatesUsableBlocksAndObjects) {
    auto* block = static_cast<char*>(kyHeapAlloc(64));
    ASSERT_NE(nullptr, block);
    std::memset(block, 0x5A, 64);
    kyHeapFree(block);

    void* empty = kyHeapAlloc(0);
    EXPECT_NE(nullptr, empty);
    kyHeapFree(empty);
    kyHeapFree(nullptr);

    Sample* sample = new Sample;
    EXPECT_EQ(4, sample->values[3]);
    delete sample;
}

TEST(BaseHeap, TheNewHandlerCanFreeMemoryForARetry) {
    const DataLimit limit(600 * kMiB);
    if (!limit.isSet()) {
        GTEST_SKIP() << "the data segment of the process can't be limited here";
    }
    g_ballast = std::malloc(512 * kMiB);
    ASSERT_NE(nullptr, g_ballast);
    // The limit holds (called through a pointer so that the compiler keeps the call).
    void* (*volatile allocate)(size_t) = &std::malloc;
    void* probe = allocate(200 * kMiB);
    std::free(probe);
    ASSERT_EQ(nullptr, probe);

    const HandlerScope scope(&releaseBallast);
    void* block = kyHeapAlloc(200 * kMiB);
    EXPECT_NE(nullptr, block);
    EXPECT_EQ(1, g_handlerCalls);
    EXPECT_EQ(nullptr, g_ballast);
    kyHeapFree(block);
}

TEST(BaseHeap, TheHandlerIsCalledUntilItGivesUp) {
    const HandlerScope scope(&giveUp);
    bool arrayLength = false;
    try {
        kyHeapFree(kyHeapAlloc(SIZE_MAX / 2));
        FAIL() << "an impossible allocation succeeded";
    } catch (const std::bad_array_new_length&) {
        arrayLength = true;
    } catch (const std::bad_alloc&) {
    }
    EXPECT_FALSE(arrayLength);
    EXPECT_EQ(3, g_handlerCalls);
}

TEST(BaseHeap, WithoutAHandlerFailuresThrowByTheSize) {
    const HandlerScope scope(nullptr);
    EXPECT_THROW(kyHeapAlloc(SIZE_MAX), std::bad_array_new_length);
    bool arrayLength = false;
    bool outOfMemory = false;
    try {
        kyHeapFree(kyHeapAlloc(SIZE_MAX - 1));
    } catch (const std::bad_array_new_length&) {
        arrayLength = true;
    } catch (const std::bad_alloc&) {
        outOfMemory = true;
    }
    EXPECT_FALSE(arrayLength);
    EXPECT_TRUE(outOfMemory);
}

}  // namespace
