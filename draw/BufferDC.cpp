// SPDX-License-Identifier: MIT
#include "draw/BufferDC.h"

CBufferDC::CBufferDC(HDC target, const RECT* rect) : m_target(target) {
    if (rect == nullptr || ::IsRectEmpty(rect))
        ::GetClipBox(target, &m_rect);
    else
        m_rect = *rect;

    if (OpenBuffer())
        ClipToRect();
    else
        DrawOnTarget();
}

CBufferDC::~CBufferDC() {
    if (m_drawsOnTarget) {
        ReleaseOutputDC();
        ReleaseAttribDC();
        ::RestoreDC(m_target, -1);
        return;
    }
    if (m_previousBitmap == nullptr)
        return;
    ::BitBlt(m_target, m_rect.left, m_rect.top, m_rect.right - m_rect.left,
             m_rect.bottom - m_rect.top, m_hDC, m_rect.left, m_rect.top, SRCCOPY);
    // No longer selected, the bitmap goes next; the base then deletes the device context.
    ::SelectObject(m_hDC, m_previousBitmap);
}

bool CBufferDC::OpenBuffer() {
    const HDC memory = ::CreateCompatibleDC(m_target);
    if (memory == nullptr)
        return false;
    Attach(memory);
    m_bitmap.Attach(::CreateCompatibleBitmap(m_target, m_rect.right, m_rect.bottom));
    m_previousBitmap = ::SelectObject(memory, m_bitmap.GetSafeHandle());
    return m_previousBitmap != nullptr;
}

void CBufferDC::ClipToRect() {
    if (m_rect.top > 0)
        ExcludeClipRect(0, 0, m_rect.right, m_rect.top);
    if (m_rect.left > 0)
        ExcludeClipRect(0, m_rect.top, m_rect.left, m_rect.bottom);
}

void CBufferDC::DrawOnTarget() {
    if (::SaveDC(m_target) == 0)
        return; // no usable target either: what is drawn goes nowhere
    DeleteDC();
    m_bitmap.DeleteObject();
    // Borrowed, not attached: the target may belong to another CDC.
    SetOutputDC(m_target);
    SetAttribDC(m_target);
    m_drawsOnTarget = true;
    ::IntersectClipRect(m_target, m_rect.left, m_rect.top, m_rect.right, m_rect.bottom);
}

BOOL CBufferDC::PtVisible(int x, int y) const {
    return ::PtVisible(m_hDC, x, y);
}

BOOL CBufferDC::RectVisible(LPCRECT rect) const {
    return ::RectVisible(m_hDC, rect);
}

BOOL CBufferDC::TextOut(int x, int y, LPCTSTR text, int count) {
    return ::TextOutA(m_hDC, x, y, text, count);
}

BOOL CBufferDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count,
                           LPINT widths) {
    return ::ExtTextOutA(m_hDC, x, y, options, rect, text, count, widths);
}

CSize CBufferDC::TabbedTextOut(int x, int y, LPCTSTR text, int count, int tabCount,
                               LPINT tabPositions, int tabOrigin) {
    const LONG size = ::TabbedTextOutA(m_hDC, x, y, text, count, tabCount, tabPositions, tabOrigin);
    return {static_cast<short>(LOWORD(size)), static_cast<short>(HIWORD(size))};
}

int CBufferDC::DrawText(LPCTSTR text, int count, LPRECT rect, UINT format) {
    return ::DrawTextA(m_hDC, text, count, rect, format);
}

int CBufferDC::DrawTextEx(LPTSTR text, int count, LPRECT rect, UINT format,
                          LPDRAWTEXTPARAMS parameters) {
    return ::DrawTextExA(m_hDC, text, count, rect, format, parameters);
}

BOOL CBufferDC::GrayString(CBrush* brush, BOOL(CALLBACK* output)(HDC, LPARAM, int), LPARAM data,
                           int count, int x, int y, int width, int height) {
    const auto handle = brush == nullptr ? nullptr : static_cast<HBRUSH>(brush->GetSafeHandle());
    return ::GrayStringA(m_hDC, handle, output, data, count, x, y, width, height);
}

int CBufferDC::Escape(int escape, int count, LPCSTR input, LPVOID output) {
    return ::Escape(m_hDC, escape, count, input, output);
}
