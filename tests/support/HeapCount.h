// SPDX-License-Identifier: MIT
#pragma once

/// Counts the program's own allocations (operator new), not those of the system libraries.  A program
/// that uses this has its operator new replaced.
struct HeapCount {
    long long made = 0; ///< since the program started
    long long live = 0; ///< not freed yet

    static HeapCount Now();
};
