// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>
#include <type_traits>

#include "draw/ObjectSelection.h"

namespace tint {

/// A small rectangle of a device context, read at once, changed in memory and written back at once:
/// many times faster than GetPixel and SetPixel.
///
///     PixelBlock block(dc, area);
///     block.ReadFrom(dc);
///     block.At(x, y) = Darker(block.At(x, y));
///     block.WriteTo(dc);
///
/// Coordinates are those of the device context.  Where no memory can be had the block is empty.
///
/// Making a bitmap costs more than all the rest, so the last one is kept for the next block (and grows
/// with it, at most to the size of the largest popup).
class PixelBlock {
public:
    /// @param target  what the block will be written to; pixels that it would not show are left out
    /// @param area    logical coordinates
    PixelBlock(HDC target, const RECT& area);
    ~PixelBlock();

    PixelBlock(const PixelBlock&) = delete;
    PixelBlock& operator=(const PixelBlock&) = delete;

    /// The part of the area that the block holds; empty when there is nothing to do.
    const RECT& Area() const { return m_area; }

    /// Copies the pixels of a device context.  Those it does not have are white, as GetPixel's answer
    /// for them (CLR_INVALID) reads when it is taken for a colour.
    void ReadFrom(HDC source);
    void WriteTo(HDC target) const;

    /// A pixel, 0x00RRGGBB: red and blue the other way round than in a COLORREF.  It must lie in
    /// Area().
    DWORD& At(int x, int y) const {
        const std::ptrdiff_t row = y - m_area.top;
        return m_surface->bits[row * m_surface->width + (x - m_area.left)];
    }

private:
    struct DCDeleter {
        void operator()(HDC dc) const { ::DeleteDC(dc); }
    };
    struct BitmapDeleter {
        void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
    };

    /// A bitmap in memory, selected into a device context of its own.
    struct Surface {
        Surface(HDC like, int width, int height);

        bool Holds(int wantedWidth, int wantedHeight) const {
            return bits != nullptr && wantedWidth <= width && wantedHeight <= height;
        }

        int width;
        int height;
        std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter> bitmap;
        std::unique_ptr<std::remove_pointer_t<HDC>, DCDeleter> dc;
        ObjectSelection selection; ///< last: the bitmap is selected out first
        DWORD* bits = nullptr;     ///< top-down rows; null: there is no bitmap
    };

    static std::unique_ptr<Surface> TakeSurface(HDC like, int width, int height);

    int Width() const { return m_area.right - m_area.left; }
    int Height() const { return m_area.bottom - m_area.top; }

    static std::unique_ptr<Surface> s_spare; ///< what the last block used

    RECT m_area = {};
    std::unique_ptr<Surface> m_surface; ///< null: the block is empty
};

} // namespace tint
