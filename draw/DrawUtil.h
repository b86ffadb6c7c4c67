// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/// Draws a filled triangle with the current pen, row by row.
/// @param dc    device context; coordinates are logical
/// @param x, y  the apex, which is one pixel: the bottom of a triangle that points down, the top of one
///              that points up
/// @param size  number of rows; the base, size - 1 rows from the apex, is 2 * size - 1 pixels wide; 0
///              or less draws nothing
/// @param down  true to point down
void DrawArrowTriangle(HDC dc, int x, int y, int size, bool down);

/// Copies what the screen shows; what lies off the screen stays black.
/// @param rect  screen coordinates
/// @return a screen-compatible bitmap of the size of `rect`, owned by the caller (DeleteObject); null
///         when it cannot be made or the rectangle is empty
HBITMAP CopyScreenToBitmap(const RECT& rect);
