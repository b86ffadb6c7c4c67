// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "menus/ImgDesc.h"

namespace tint {

/// Draws the shape of an image in one colour: a disabled image, or the shadow of a lifted one.
/// @param at    its upper left corner, logical coordinates
/// @param size  of the image, in pixels
void DrawSilhouette(CDC& dc, const CImgDesc& image, POINT at, SIZE size, COLORREF color);

} // namespace tint
