// SPDX-License-Identifier: MIT
#include "tests/support/HeapCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long long> g_made{0};
std::atomic<long long> g_freed{0};

} // namespace

HeapCount HeapCount::Now() {
    return {g_made, g_made - g_freed};
}

// The other forms of new and delete end in these.
void* operator new(std::size_t size) {
    if (void* const block = std::malloc(size != 0 ? size : 1)) {
        ++g_made;
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    if (block != nullptr)
        ++g_freed;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    ::operator delete(block);
}
