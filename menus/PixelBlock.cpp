// SPDX-License-Identifier: MIT
#include "menus/PixelBlock.h"

#include <algorithm>
#include <cstddef>

namespace tint {
namespace {

/// A memory device context, or a null handle.
HDC AttachMemoryDC(CDC& dc, HDC like) {
    const HDC memory = ::CreateCompatibleDC(like);
    if (memory != nullptr)
        dc.Attach(memory);
    return memory;
}

/// COLORREF has red and blue the other way round than a bitmap's pixel.
constexpr DWORD SwapRedAndBlue(DWORD color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

} // namespace

PixelBlock::PixelBlock(HDC target, const RECT& area) : m_selection(AttachMemoryDC(m_dc, target)) {
    RECT clip = {};
    RECT shown = {};
    if (m_dc.GetSafeHdc() == nullptr || ::GetClipBox(target, &clip) == ERROR ||
        !::IntersectRect(&shown, &area, &clip))
        return;

    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = shown.right - shown.left;
    info.bmiHeader.biHeight = shown.top - shown.bottom; // negative: top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HBITMAP bitmap =
        ::CreateDIBSection(m_dc.GetSafeHdc(), &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr)
        return;
    m_bitmap.Attach(bitmap);
    m_selection.Select(bitmap);
    m_bits = static_cast<DWORD*>(bits);
    m_area = shown;
}

void PixelBlock::ReadFrom(HDC source) {
    const int width = m_area.right - m_area.left;
    const int height = m_area.bottom - m_area.top;
    if (m_bits == nullptr)
        return;
    ::GdiFlush();
    std::fill_n(m_bits, static_cast<std::size_t>(width) * height, 0xFFFFFF);
    ::BitBlt(m_selection.dc(), 0, 0, width, height, source, m_area.left, m_area.top, SRCCOPY);
    ::GdiFlush(); // the pixels are read past GDI
}

void PixelBlock::WriteTo(HDC target) const {
    if (m_bits != nullptr)
        ::BitBlt(target, m_area.left, m_area.top, m_area.right - m_area.left,
                 m_area.bottom - m_area.top, m_selection.dc(), 0, 0, SRCCOPY);
}

COLORREF PixelBlock::Get(int x, int y) const {
    return SwapRedAndBlue(At(x, y));
}

void PixelBlock::Set(int x, int y, COLORREF color) {
    At(x, y) = SwapRedAndBlue(color);
}

DWORD& PixelBlock::At(int x, int y) const {
    const std::ptrdiff_t stride = m_area.right - m_area.left;
    return m_bits[(y - m_area.top) * stride + (x - m_area.left)];
}

} // namespace tint
