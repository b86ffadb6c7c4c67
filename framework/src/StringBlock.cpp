// SPDX-License-Identifier: MIT
#include "StringBlock.h"

#include "afx/CException.h"

#include <new>

namespace afx {
namespace {

struct EmptyBlock {
    StringBlock header;
    char terminator;
};
static_assert(offsetof(EmptyBlock, terminator) == sizeof(StringBlock));

// Constant-initialized: strings with static storage may use it before any constructor has run.
EmptyBlock g_empty{{{1}, 0, 0}, '\0'};

} // namespace

StringBlock* StringBlock::empty() noexcept {
    return &g_empty.header;
}

StringBlock* StringBlock::allocate(int capacity) {
    if (capacity < 0) {
        AfxThrowInvalidArgException();
    }
    const size_t size = sizeof(StringBlock) + static_cast<size_t>(capacity) + 1;
    void* const memory = ::operator new(size, std::nothrow);
    if (memory == nullptr) {
        AfxThrowMemoryException();
    }
    StringBlock* const block = new (memory) StringBlock{{1}, 0, capacity};
    block->text()[0] = '\0';
    return block;
}

void StringBlock::release(StringBlock* block) noexcept {
    if (block->isEmptyBlock()) {
        return;
    }
    if (block->references.fetch_sub(1) == 1) {
        block->~StringBlock();
        ::operator delete(block);
    }
}

bool StringBlock::isExclusive() const noexcept {
    return !isEmptyBlock() && references.load() == 1;
}

} // namespace afx
