// SPDX-License-Identifier: MIT
#pragma once

#if defined(_WIN32) && !defined(NDEBUG)
#include <windows.h>
#endif

namespace tint {

/// Shows a line to a debugger, in debug builds for Windows.
inline void Trace([[maybe_unused]] const char* line) {
#if defined(_WIN32) && !defined(NDEBUG)
    OutputDebugStringA(line);
#endif
}

} // namespace tint
