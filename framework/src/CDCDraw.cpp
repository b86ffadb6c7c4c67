// SPDX-License-Identifier: MIT
// CDC: lines, shapes, fills, pixels and pictures.
#include "Handles.h"
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CDC.h"

// Lines and shapes

CPoint CDC::MoveTo(int x, int y) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        CPoint previous(0, 0);
        ::MoveToEx(hDC, x, y, &previous);
        return previous;
    });
}

BOOL CDC::LineTo(int x, int y) {
    if (m_hAttribDC != m_hDC) {
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    }
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::Polyline(LPPOINT lpPoints, int nCount) {
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2) {
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect) {
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2) {
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

// Filling and framing

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FillRect(m_hDC, lpRect, afx::HandleOf<HBRUSH>(pBrush));
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    SetBkColor(clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    const CRect rect(CPoint(x, y), CSize(cx, cy));
    FillSolidRect(rect, clr);
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FrameRect(m_hDC, lpRect, afx::HandleOf<HBRUSH>(pBrush));
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left,
               lpRect->bottom - lpRect->top, clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    if (cx <= 0 || cy <= 0) {
        return;
    }
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

void CDC::DrawFocusRect(LPCRECT lpRect) {
    ::DrawFocusRect(m_hDC, lpRect);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

// Pixels and pictures

COLORREF CDC::GetPixel(int x, int y) const {
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF crColor) {
    return ::SetPixel(m_hDC, x, y, crColor);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF crColor) {
    return ::SetPixelV(m_hDC, x, y, crColor);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                 DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, afx::OutputOf(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush) {
    const auto bitmap = reinterpret_cast<LPARAM>(afx::HandleOf<HBITMAP>(pBitmap));
    return ::DrawState(m_hDC, afx::HandleOf<HBRUSH>(pBrush), nullptr, bitmap, 0, pt.x, pt.y,
                       size.cx, size.cy, nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y,
                       size.cx, size.cy, nFlags | DST_ICON);
}
