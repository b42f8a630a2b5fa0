// The platform heap: malloc and free, with the new-handler between failures
// as operator new has it.
#include "base/KyHeap.h"

#include <cstdint>
#include <cstdlib>
#include <new>

void* kyHeapAlloc(size_t size) {
    if (size == 0) {
        size = 1;
    }
    for (;;) {
        if (void* block = std::malloc(size)) {
            return block;
        }
        // The handler may free memory and return, so try again; it may also
        // throw or end the process itself.
        std::new_handler handler = std::get_new_handler();
        if (handler == nullptr) {
            if (size == SIZE_MAX) {
                throw std::bad_array_new_length();
            }
            throw std::bad_alloc();
        }
        handler();
    }
}

void kyHeapFree(void* block) noexcept {
    std::free(block);
}
