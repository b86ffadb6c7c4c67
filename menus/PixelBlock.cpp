// SPDX-License-Identifier: MIT
#include "menus/PixelBlock.h"

#include <algorithm>
#include <utility>

namespace tint {

std::unique_ptr<PixelBlock::Surface> PixelBlock::s_spare;

PixelBlock::Surface::Surface(HDC like, int surfaceWidth, int surfaceHeight)
    : width(surfaceWidth), height(surfaceHeight), dc(::CreateCompatibleDC(like)),
      selection(dc.get()) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* memory = nullptr;
    if (dc != nullptr)
        bitmap.reset(::CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &memory, nullptr, 0));
    if (bitmap == nullptr)
        return;
    selection.Select(bitmap.get());
    bits = static_cast<DWORD*>(memory);
}

std::unique_ptr<PixelBlock::Surface> PixelBlock::TakeSurface(HDC like, int width, int height) {
    if (s_spare != nullptr && s_spare->Holds(width, height))
        return std::move(s_spare);
    if (s_spare != nullptr) {
        width = (std::max)(width, s_spare->width);
        height = (std::max)(height, s_spare->height);
    }
    auto made = std::make_unique<Surface>(like, width, height);
    return made->bits == nullptr ? nullptr : std::move(made);
}

PixelBlock::PixelBlock(HDC target, const RECT& area) {
    RECT clip = {};
    RECT shown = {};
    if (::GetClipBox(target, &clip) == ERROR || !::IntersectRect(&shown, &area, &clip))
        return;
    m_surface = TakeSurface(target, shown.right - shown.left, shown.bottom - shown.top);
    if (m_surface != nullptr)
        m_area = shown;
}

PixelBlock::~PixelBlock() {
    if (m_surface != nullptr)
        s_spare = std::move(m_surface);
}

void PixelBlock::ReadFrom(HDC source) {
    if (m_surface == nullptr)
        return;
    for (int y = m_area.top; y < m_area.bottom; ++y)
        std::fill_n(&At(m_area.left, y), Width(), DWORD{0xFFFFFF});
    ::BitBlt(m_surface->dc.get(), 0, 0, Width(), Height(), source, m_area.left, m_area.top,
             SRCCOPY);
    // The pixels are read past GDI, which may have put the copy off.  Any function that returns more
    // than success makes it catch up; GdiFlush would also send the window's picture to the display.
    ::GetPixel(m_surface->dc.get(), 0, 0);
}

void PixelBlock::WriteTo(HDC target) const {
    if (m_surface == nullptr)
        return;
    ::BitBlt(target, m_area.left, m_area.top, Width(), Height(), m_surface->dc.get(), 0, 0,
             SRCCOPY);
    ::GetPixel(m_surface->dc.get(), 0, 0); // the copy is made before the pixels change again
}

} // namespace tint
