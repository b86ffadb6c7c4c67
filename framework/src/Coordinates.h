// SPDX-License-Identifier: MIT
#pragma once

#include "afx/Platform.h"

namespace afx {

// Coordinates come from messages and resources: sums wrap instead of being undefined.

inline LONG Add(LONG a, LONG b) noexcept {
    return static_cast<LONG>(static_cast<ULONG>(a) + static_cast<ULONG>(b));
}

inline LONG Subtract(LONG a, LONG b) noexcept {
    return static_cast<LONG>(static_cast<ULONG>(a) - static_cast<ULONG>(b));
}

} // namespace afx
