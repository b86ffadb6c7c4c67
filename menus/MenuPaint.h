// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/// @file
/// The two effects that items and frames of menus share: the horizontal gradient and the soft shadow.

/// Fills a rectangle with a horizontal gradient.
///
/// The colours are steps of equal width, as many as the channel that changes most has values between
/// `start` and `end`; `end` itself is not reached unless rounding leaves a rest on the right.
///
/// The steps always begin at y = 0 and reach down to the bottom of the rectangle, whatever its top:
/// this is deliberate, callers clip (an item is painted into a buffer of its own rectangle).  A
/// gradient between equal colours fills exactly the rectangle.
/// @param rect  logical coordinates
void DrawGradient(HDC dc, COLORREF start, COLORREF end, const RECT& rect);

/// Darkens the right and bottom edge of a popup window, four pixels wide, to look like its shadow.
///
/// The shadow starts four pixels below the top and right of the left edge; its corners are rounded.
/// Going outwards, the pixels keep 78, 83, 88 and 93 percent of their brightness.
/// @param source  what lies under the shadow is read here
/// @param target  the darkened pixels are written here; may be the same as `source`
/// @param rect    only right and bottom count; the popup's upper left corner is the origin
void DrawMenuShadow(HDC source, HDC target, const RECT& rect);

namespace tint {

/// Darkens the strip beside an open item of a menu bar: the right-hand part of the same shadow.
/// @param strip   four pixels wide, as high as the item
void DrawBarItemShadow(HDC dc, const RECT& strip);

} // namespace tint
