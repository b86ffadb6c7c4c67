// SPDX-License-Identifier: MIT
#pragma once

#include "automation/Picture.h"

namespace automation {

/// Waits until a window shows the same picture for a while: what a person waits for before going on.
///
/// To be called from another thread than the window's, so that the window's thread goes on handling
/// its input, also inside menus and other modal loops.
/// @return the picture; the last one seen when the window never came to rest within some seconds
Picture WaitUntilSteady(HWND window);

} // namespace automation
