// SPDX-License-Identifier: MIT
// CDC: lines, shapes, fills, pixels and pictures.
#include "Handles.h"
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CDC.h"
#include "afx/CRgn.h"

namespace {

/// Makes the brush of CDC::GetHalftoneBrush(), without a handle if GDI has none to give.
void CreateHalftone(CBrush& brush) {
    WORD rows[8]; // monochrome, 8 pixels and 8 bits of padding each
    for (int y = 0; y < 8; ++y) {
        rows[y] = static_cast<WORD>(y % 2 == 0 ? 0x5555 : 0xAAAA);
    }
    CBitmap pattern;
    if (pattern.CreateBitmap(8, 8, 1, 1, rows)) {
        brush.CreatePatternBrush(&pattern);
    }
}

BOOL DrawBitmapState(HDC hDC, CPoint pt, CSize size, HBITMAP bitmap, UINT flags, HBRUSH brush) {
    return ::DrawState(hDC, brush, nullptr, reinterpret_cast<LPARAM>(bitmap), 0, pt.x, pt.y,
                       size.cx, size.cy, flags | DST_BITMAP);
}

BOOL DrawIconState(HDC hDC, CPoint pt, CSize size, HICON icon, UINT flags, HBRUSH brush) {
    return ::DrawState(hDC, brush, nullptr, reinterpret_cast<LPARAM>(icon), 0, pt.x, pt.y, size.cx,
                       size.cy, flags | DST_ICON);
}

BOOL DrawTextState(HDC hDC, CPoint pt, CSize size, LPCTSTR text, int length, UINT flags,
                   HBRUSH brush) {
    return ::DrawState(hDC, brush, nullptr, reinterpret_cast<LPARAM>(text), length, pt.x, pt.y,
                       size.cx, size.cy, flags);
}

BOOL DrawComplexState(HDC hDC, CPoint pt, CSize size, DRAWSTATEPROC draw, LPARAM data, UINT flags,
                      HBRUSH brush) {
    return ::DrawState(hDC, brush, draw, data, 0, pt.x, pt.y, size.cx, size.cy,
                       flags | DST_COMPLEX);
}

} // namespace

// Lines and shapes

CPoint CDC::GetCurrentPosition() const {
    CPoint position(0, 0);
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        CPoint previous(0, 0);
        ::MoveToEx(hDC, x, y, &previous);
        return previous;
    });
}

CPoint CDC::MoveTo(POINT point) {
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y) {
    if (m_hAttribDC != m_hDC) {
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    }
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point) {
    return LineTo(point.x, point.y);
}

BOOL CDC::Polyline(LPPOINT lpPoints, int nCount) {
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::Polygon(LPPOINT lpPoints, int nCount) {
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount) {
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::PolyBezier(const POINT* lpPoints, int nCount) {
    return ::PolyBezier(m_hDC, lpPoints, nCount);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2) {
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect) {
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point) {
    return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2) {
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect) {
    return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
                 ptEnd.x, ptEnd.y);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

BOOL CDC::BeginPath() {
    return ::BeginPath(m_hDC);
}

BOOL CDC::EndPath() {
    return ::EndPath(m_hDC);
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

void CDC::InvertRect(LPCRECT lpRect) {
    ::InvertRect(m_hDC, lpRect);
}

void CDC::DrawFocusRect(LPCRECT lpRect) {
    ::DrawFocusRect(m_hDC, lpRect);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) {
    return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush) {
    return ::FillRgn(m_hDC, afx::HandleOf<HRGN>(pRgn), afx::HandleOf<HBRUSH>(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
    return ::FrameRgn(m_hDC, afx::HandleOf<HRGN>(pRgn), afx::HandleOf<HBRUSH>(pBrush), nWidth,
                      nHeight);
}

BOOL CDC::InvertRgn(CRgn* pRgn) {
    return ::InvertRgn(m_hDC, afx::HandleOf<HRGN>(pRgn));
}

BOOL CDC::PaintRgn(CRgn* pRgn) {
    return ::PaintRgn(m_hDC, afx::HandleOf<HRGN>(pRgn));
}

BOOL CDC::FloodFill(int x, int y, COLORREF crColor) {
    return ::FloodFill(m_hDC, x, y, crColor);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType) {
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements,
                       DWORD dwMode) {
    return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

CBrush* PASCAL CDC::GetHalftoneBrush() {
    struct Halftone {
        CBrush brush;
        Halftone() { CreateHalftone(brush); }
    };
    static Halftone halftone;
    return halftone.brush.m_hObject == nullptr ? nullptr : &halftone.brush;
}

// Pixels and pictures

COLORREF CDC::GetPixel(int x, int y) const {
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::GetPixel(POINT point) const {
    return GetPixel(point.x, point.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF crColor) {
    return ::SetPixel(m_hDC, x, y, crColor);
}

COLORREF CDC::SetPixel(POINT point, COLORREF crColor) {
    return SetPixel(point.x, point.y, crColor);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF crColor) {
    return ::SetPixelV(m_hDC, x, y, crColor);
}

BOOL CDC::SetPixelV(POINT point, COLORREF crColor) {
    return SetPixelV(point.x, point.y, crColor);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                 DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, afx::OutputOf(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, afx::OutputOf(pSrcDC), xSrc, ySrc, nSrcWidth,
                        nSrcHeight, dwRop);
}

BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                  CBitmap& maskBitmap, int xMask, int yMask, DWORD dwRop) {
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, afx::OutputOf(pSrcDC), xSrc, ySrc, maskBitmap,
                     xMask, yMask, dwRop);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                     int ySrc, int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend) {
    return ::AlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, afx::OutputOf(pSrcDC), xSrc,
                        ySrc, nSrcWidth, nSrcHeight, blend);
}

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC,
                         int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent) {
    return ::TransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, afx::OutputOf(pSrcDC),
                            xSrc, ySrc, nSrcWidth, nSrcHeight, clrTransparent);
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon) {
    return ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::DrawIcon(POINT point, HICON hIcon) {
    return DrawIcon(point.x, point.y, hIcon);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush) {
    return DrawBitmapState(m_hDC, pt, size, hBitmap, nFlags, hBrush);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush) {
    return DrawBitmapState(m_hDC, pt, size, afx::HandleOf<HBITMAP>(pBitmap), nFlags,
                           afx::HandleOf<HBRUSH>(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush) {
    return DrawIconState(m_hDC, pt, size, hIcon, nFlags, hBrush);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush) {
    return DrawIconState(m_hDC, pt, size, hIcon, nFlags, afx::HandleOf<HBRUSH>(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, HBRUSH hBrush) {
    const UINT type = bPrefixText ? DST_PREFIXTEXT : DST_TEXT;
    return DrawTextState(m_hDC, pt, size, lpszText, nTextLen, nFlags | type, hBrush);
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, CBrush* pBrush) {
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen,
                     afx::HandleOf<HBRUSH>(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    HBRUSH hBrush) {
    return DrawComplexState(m_hDC, pt, size, lpDrawProc, lData, nFlags, hBrush);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    CBrush* pBrush) {
    return DrawComplexState(m_hDC, pt, size, lpDrawProc, lData, nFlags,
                            afx::HandleOf<HBRUSH>(pBrush));
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                   LPRECT lpRectUpdate) {
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, afx::HandleOf<HRGN>(pRgnUpdate),
                      lpRectUpdate);
}
