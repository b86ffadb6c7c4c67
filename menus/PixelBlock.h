// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "draw/ObjectSelection.h"

namespace tint {

/// A small rectangle of a device context, read at once, changed in memory and written back at once:
/// many times faster than GetPixel and SetPixel.
///
///     PixelBlock block(dc, area);
///     block.ReadFrom(dc);
///     block.Set(x, y, Darker(block.Get(x, y)));
///     block.WriteTo(dc);
///
/// Coordinates are those of the device context.  Where no memory can be had the block is empty.
class PixelBlock {
public:
    /// @param target  what the block will be written to; pixels that it would not show are left out
    /// @param area    logical coordinates
    PixelBlock(HDC target, const RECT& area);

    /// The part of the area that the block holds; empty when there is nothing to do.
    const RECT& Area() const { return m_area; }

    /// Copies the pixels of a device context.  Those it does not have are white, as GetPixel's answer
    /// for them (CLR_INVALID) reads when it is taken for a colour.
    void ReadFrom(HDC source);
    void WriteTo(HDC target) const;

    /// The pixel must lie in Area().
    COLORREF Get(int x, int y) const;
    void Set(int x, int y, COLORREF color);

private:
    DWORD& At(int x, int y) const;

    RECT m_area = {};
    CBitmap m_bitmap;
    CDC m_dc;
    ObjectSelection m_selection; ///< last: the bitmap is selected out first
    DWORD* m_bits = nullptr;     ///< top-down rows of 0x00RRGGBB
};

} // namespace tint
