// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include "automation/Picture.h"

/// A memory device context whose pixels can be read: what paint code draws into when no window is
/// wanted.  32 bits a pixel, filled with one colour at first.
class Canvas {
public:
    /// A colour that no scheme and no skin produces, so that untouched pixels stand out.
    static constexpr COLORREF kUntouched = RGB(255, 0, 255);

    Canvas(int width, int height, COLORREF fill = kUntouched);
    ~Canvas();

    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC dc() const { return m_dc; }
    COLORREF At(int x, int y) const { return ::GetPixel(m_dc, x, y); }
    automation::Picture Snapshot() const;

    /// Counts the pixels of `color` within `rect`.
    int Count(COLORREF color, const RECT& rect) const;

private:
    int m_width;
    int m_height;
    HDC m_dc;
    HBITMAP m_bitmap;
    DWORD* m_bits = nullptr; ///< top-down rows of 0x00RRGGBB
    HGDIOBJ m_previous;
};
