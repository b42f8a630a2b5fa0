// Memory of the system's own objects. Allocation loops over malloc, calling
// the new-handler when malloc fails; with no handler a size of all ones raises
// std::bad_array_new_length and any other size std::bad_alloc. Blocks are
// released through free.
#pragma once

#include <cstddef>

#include "KyPlatformExport.h"

KYPLATFORM_API void* kyHeapAlloc(size_t size);
KYPLATFORM_API void kyHeapFree(void* block) noexcept;

// Base for classes that take their memory from the platform heap.
class KyHeapObject {
public:
    static void* operator new(size_t size) { return kyHeapAlloc(size); }
    static void operator delete(void* block) noexcept { kyHeapFree(block); }
};
