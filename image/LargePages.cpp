// SPDX-License-Identifier: MIT
#include "image/LargePages.h"

#include <cstdint>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace tint {

#if defined(__linux__) && defined(MADV_HUGEPAGE)

void PreferLargePages(void* block, size_t bytes) {
    constexpr uintptr_t page = 2u << 20;
    const uintptr_t begin = (reinterpret_cast<uintptr_t>(block) + page - 1) / page * page;
    const uintptr_t end = (reinterpret_cast<uintptr_t>(block) + bytes) / page * page;
    if (begin < end)
        madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
}

#else

void PreferLargePages(void*, size_t) {}

#endif

} // namespace tint
