// Walking a table allocates nothing per record: the iterator runs over the
// table's own list. Counted by replacing the program's allocation functions.
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <new>

#include "DbTestSupport.h"
#include "db/KyDbLayerTableIterator.h"

namespace {

bool g_counting = false;
long g_allocations = 0;

void* allocate(std::size_t size) {
    if (g_counting) {
        ++g_allocations;
    }
    if (void* block = std::malloc(size != 0 ? size : 1)) {
        return block;
    }
    throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) {
    return allocate(size);
}
void* operator new[](std::size_t size) {
    return allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return allocate(size);
    } catch (...) {
        return nullptr;
    }
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return allocate(size);
    } catch (...) {
        return nullptr;
    }
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete[](void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
    std::free(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
    std::free(block);
}

namespace dbtest {
namespace {

using WalkAllocationTest = DbTest;

TEST_F(WalkAllocationTest, AWalkThatReadsEveryLayerAllocatesOnlyItsIterator) {
    {
        KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
        for (int i = 0; i < 1000; ++i) {
            auto* layer = new KyDbLayerTableRecord();
            layer->setName(KyString::formatted(L"L%04d", i));
            table->add(layer);
            layer->close();
        }
    }
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForRead);
    int walked = 0;
    int off = 0;
    g_allocations = 0;
    g_counting = true;
    KyDbLayerTableIterator* raw = nullptr;
    table->newIterator(raw);
    for (; !raw->done(); raw->step()) {
        KyDbLayerTableRecord* layer = nullptr;
        if (raw->getRecord(layer, KyDb::kForRead) == Kyro::eOk) {
            off += layer->isOff() ? 1 : 0;
            ++walked;
            layer->close();
        }
    }
    delete raw;
    g_counting = false;
    EXPECT_EQ(walked, 1001);
    EXPECT_EQ(off, 0);
    EXPECT_EQ(g_allocations, 1) << "the iterator, and nothing per record";
}

}  // namespace
}  // namespace dbtest
