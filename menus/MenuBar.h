// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace tint {

/// The menu bar of a window; null for one that has none, and for a child window.
HMENU MenuBarOf(HWND window);

/// Fills what the items leave of the bar with their colour; the system may have another one for it.
void FillRestOfMenuBar(HWND window);

} // namespace tint
