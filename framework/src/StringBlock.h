// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

namespace afx {

/// What stands in memory before the characters of a CString.
///
/// Blocks are shared while more than one string refers to them. The block of all empty strings is
/// never freed.
struct StringBlock {
    std::atomic<long> references;
    /// Characters in use, without the terminating null.
    int length;
    /// Characters there is room for, without the terminating null.
    int capacity;

    char* text() noexcept { return reinterpret_cast<char*>(this + 1); }

    /// The shared block of length and capacity 0.
    static StringBlock* empty() noexcept;
    /// A block of its own with one reference and length 0. Throws CMemoryException.
    static StringBlock* allocate(int capacity);
    /// Gives up one reference; the last one frees the block.
    static void release(StringBlock* block) noexcept;

    bool isEmptyBlock() const noexcept { return this == empty(); }
    /// True when changing the characters is seen by no other string.
    bool isExclusive() const noexcept;
};

} // namespace afx
