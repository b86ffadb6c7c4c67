// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>

namespace afx {

/// A table of which each thread has its own.
class ThreadMap {
public:
    virtual ~ThreadMap() = default;

    /// Destroys the objects that the table owns.
    virtual void DeleteTemp() = 0;
};

/// A number for a new kind of table.
std::size_t NewThreadMapKind();

/// Where the calling thread keeps its table of that kind: empty at first, valid until the thread
/// asks for a kind of higher number. When the thread ends, all its tables empty themselves before
/// the first is destroyed, so that what they own can still ask for any of them.
///
/// Global objects of the program, which are destroyed on the main thread, still find its tables.
/// Throws CMemoryException when the system has no memory or thread storage left.
std::unique_ptr<ThreadMap>& ThreadMapPlace(std::size_t kind);

} // namespace afx
