// SPDX-License-Identifier: MIT
//
// Painting on device contexts.  The block is handed to the system as it is: header, palette, rows.
#include "image/IsImage.h"

#include <algorithm>

namespace {

const BITMAPINFO* BitmapInfo(const uint8_t* dib) {
    return reinterpret_cast<const BITMAPINFO*>(dib);
}

/// The sum or difference of two coordinates, at most the largest there is, at least the smallest.
int32_t Saturated(int64_t value) {
    return static_cast<int32_t>(std::clamp<int64_t>(value, INT32_MIN, INT32_MAX));
}

/// A device context in memory with a bitmap of its own selected.
class MemoryDC {
public:
    /// @param bitmap  owned from here on
    MemoryDC(HDC compatible, HBITMAP bitmap)
        : m_dc(CreateCompatibleDC(compatible)), m_bitmap(bitmap),
          m_previous(SelectObject(m_dc, bitmap)) {}
    ~MemoryDC() {
        SelectObject(m_dc, m_previous);
        DeleteDC(m_dc);
        DeleteObject(m_bitmap);
    }
    MemoryDC(const MemoryDC&) = delete;
    MemoryDC& operator=(const MemoryDC&) = delete;

    HDC Get() const { return m_dc; }

private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_previous;
};

/// Where a picture goes.
struct Placement {
    HDC dc;
    int x, y, cx, cy;
    int width, height; ///< of the picture

    void Stretch(const MemoryDC& source, DWORD rop) const {
        StretchBlt(dc, x, y, cx, cy, source.Get(), 0, 0, width, height, rop);
    }
};

/// Paints `colors` where `mask` is black and leaves the target where it is white.
void PaintMasked(const Placement& to, const MemoryDC& colors, const MemoryDC& mask) {
    // A monochrome source takes these colours of the target for its black and white.
    const COLORREF textColor = SetTextColor(to.dc, RGB(0, 0, 0));
    SetBkColor(to.dc, RGB(255, 255, 255));
    // The default mode would mix colours with the mask's.
    const int stretchMode = SetStretchBltMode(to.dc, COLORONCOLOR);
    to.Stretch(colors, SRCINVERT);
    to.Stretch(mask, SRCAND);
    to.Stretch(colors, SRCINVERT);
    SetStretchBltMode(to.dc, stretchMode);
    SetTextColor(to.dc, textColor);
}

} // namespace

bool IsImage::DrawImage(HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy) const {
    if (!dib || !dc || cx == 0 || cy == 0 || !info.enabled)
        return false;
    if (cx < 0)
        cx = header.biWidth;
    if (cy < 0)
        cy = header.biHeight;
    if (info.transparentIndex != -1) {
        DrawTransparent(dc, x, y, cx, cy);
    } else {
        SetStretchBltMode(dc, COLORONCOLOR); // deliberately left so
        StretchImage(dc, x, y, cx, cy, SRCCOPY);
    }
    return true;
}

bool IsImage::DrawImageInRect(HDC dc, const RECT& rect) const {
    return DrawImage(dc, rect.left, rect.top, Saturated(int64_t{rect.right} - rect.left),
                     Saturated(int64_t{rect.bottom} - rect.top));
}

/// Paints all pixels but those of the transparent colour.
void IsImage::DrawTransparent(HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy) const {
    const RECT area = {x, y, Saturated(int64_t{x} + cx), Saturated(int64_t{y} + cy)};
    if (!RectVisible(dc, &area))
        return;
    const int width = header.biWidth;
    const int height = header.biHeight;
    const MemoryDC colors(dc, CreateCompatibleBitmap(dc, width, height));
    const MemoryDC mask(dc, CreateBitmap(width, height, 1, 1, nullptr));
    StretchDIBits(colors.Get(), 0, 0, width, height, 0, 0, width, height, info.bits,
                  BitmapInfo(dib), DIB_RGB_COLORS, SRCCOPY);

    // Copied to one bit a pixel, what has the background colour becomes white, all else black.
    const RGBQUAD key = header.biBitCount < 24
                            ? GetPaletteColor(static_cast<uint32_t>(info.transparentIndex))
                            : info.backgroundColor;
    const COLORREF previous = SetBkColor(colors.Get(), RGB(key.rgbRed, key.rgbGreen, key.rgbBlue));
    BitBlt(mask.Get(), 0, 0, width, height, colors.Get(), 0, 0, SRCCOPY);

    PaintMasked({dc, x, y, cx, cy, width, height}, colors, mask);
    // Deliberately not the target's own, but white.
    SetBkColor(dc, previous);
}

bool IsImage::StretchImage(HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy,
                           uint32_t rop) const {
    if (!dib || !dc)
        return false;
    StretchDIBits(dc, x, y, cx, cy, 0, 0, header.biWidth, header.biHeight, info.bits,
                  BitmapInfo(dib), DIB_RGB_COLORS, rop);
    return true;
}

bool IsImage::TileImage(HDC dc, const RECT& /*area*/) const {
    if (!dib || !dc || !info.enabled)
        return false;
    const HBRUSH pattern = CreateDIBPatternBrushPt(dib, DIB_RGB_COLORS);
    if (pattern) { // without it the target's own brush would paint
        const HGDIOBJ previous = SelectObject(dc, pattern);
        PatBlt(dc, 0, 0, header.biWidth, header.biHeight, PATCOPY);
        SelectObject(dc, previous);
        DeleteObject(pattern);
    }
    return true;
}
