// SPDX-License-Identifier: MIT
#include "tests/support/Canvas.h"

#include <algorithm>

Canvas::Canvas(int width, int height, COLORREF fill)
    : m_width(width), m_height(height), m_dc(::CreateCompatibleDC(nullptr)) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_bits = static_cast<DWORD*>(bits);
    m_previous = ::SelectObject(m_dc, m_bitmap);
    std::fill_n(m_bits, static_cast<std::size_t>(width) * height,
                RGB(GetBValue(fill), GetGValue(fill), GetRValue(fill)));
}

Canvas::~Canvas() {
    ::SelectObject(m_dc, m_previous);
    ::DeleteObject(m_bitmap);
    ::DeleteDC(m_dc);
}

automation::Picture Canvas::Snapshot() const {
    ::GdiFlush();
    automation::Picture picture;
    picture.width = m_width;
    picture.height = m_height;
    const std::size_t count = static_cast<std::size_t>(m_width) * m_height;
    picture.pixels.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        picture.pixels.push_back(
            RGB(m_bits[i] >> 16 & 0xFF, m_bits[i] >> 8 & 0xFF, m_bits[i] & 0xFF));
    return picture;
}

int Canvas::Count(COLORREF color, const RECT& rect) const {
    const automation::Picture picture = Snapshot();
    int count = 0;
    for (LONG y = rect.top; y < rect.bottom; ++y)
        for (LONG x = rect.left; x < rect.right; ++x)
            count += picture.At(x, y) == color;
    return count;
}
