// SPDX-License-Identifier: MIT
// CDC: colours, modes, mapping and clipping.
#include "Handles.h"
#include "afx/CDC.h"
#include "afx/CRgn.h"
#include "afx/CWnd.h"

#include <cstdlib>

namespace {

/// Calls one of the Win32 functions that report a point through their last argument.
template <class CALL>
CPoint PointFrom(CALL call) {
    CPoint point(0, 0);
    call(&point);
    return point;
}

/// As PointFrom(), for a size.
template <class CALL>
CSize SizeFrom(CALL call) {
    CSize size(0, 0);
    call(&size);
    return size;
}

/// length * to / from; unchanged where there are no extents to scale by.
LONG Scale(LONG length, LONG to, LONG from) {
    return from == 0 ? length : MulDiv(length, std::abs(to), std::abs(from));
}

} // namespace

// Colours

COLORREF CDC::GetNearestColor(COLORREF crColor) const {
    return ::GetNearestColor(m_hAttribDC, crColor);
}

COLORREF CDC::GetTextColor() const {
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::SetTextColor(COLORREF crColor) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetTextColor(hDC, crColor); });
}

COLORREF CDC::GetBkColor() const {
    return ::GetBkColor(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetBkColor(hDC, crColor); });
}

COLORREF CDC::GetDCBrushColor() const {
    return ::GetDCBrushColor(m_hAttribDC);
}

COLORREF CDC::SetDCBrushColor(COLORREF crColor) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetDCBrushColor(hDC, crColor); });
}

COLORREF CDC::GetDCPenColor() const {
    return ::GetDCPenColor(m_hAttribDC);
}

COLORREF CDC::SetDCPenColor(COLORREF crColor) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetDCPenColor(hDC, crColor); });
}

// Modes

int CDC::GetBkMode() const {
    return ::GetBkMode(m_hAttribDC);
}

int CDC::SetBkMode(int nBkMode) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetBkMode(hDC, nBkMode); });
}

int CDC::GetROP2() const {
    return ::GetROP2(m_hAttribDC);
}

int CDC::SetROP2(int nDrawMode) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetROP2(hDC, nDrawMode); });
}

int CDC::GetPolyFillMode() const {
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::SetPolyFillMode(int nPolyFillMode) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetPolyFillMode(hDC, nPolyFillMode); });
}

int CDC::GetStretchBltMode() const {
    return ::GetStretchBltMode(m_hAttribDC);
}

int CDC::SetStretchBltMode(int nStretchMode) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetStretchBltMode(hDC, nStretchMode); });
}

int CDC::GetArcDirection() const {
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int nArcDirection) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetArcDirection(hDC, nArcDirection); });
}

int CDC::GetGraphicsMode() const {
    return ::GetGraphicsMode(m_hAttribDC);
}

int CDC::SetGraphicsMode(int iMode) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetGraphicsMode(hDC, iMode); });
}

DWORD CDC::GetLayout() const {
    return ::GetLayout(m_hAttribDC);
}

DWORD CDC::SetLayout(DWORD dwLayout) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetLayout(hDC, dwLayout); });
}

CPoint CDC::GetBrushOrg() const {
    return PointFrom([this](LPPOINT point) { ::GetBrushOrgEx(m_hAttribDC, point); });
}

CPoint CDC::SetBrushOrg(int x, int y) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return PointFrom([=](LPPOINT previous) { ::SetBrushOrgEx(hDC, x, y, previous); });
    });
}

CPoint CDC::SetBrushOrg(POINT point) {
    return SetBrushOrg(point.x, point.y);
}

// Mapping

int CDC::GetMapMode() const {
    return ::GetMapMode(m_hAttribDC);
}

int CDC::SetMapMode(int nMapMode) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetMapMode(hDC, nMapMode); });
}

CPoint CDC::GetViewportOrg() const {
    return PointFrom([this](LPPOINT point) { ::GetViewportOrgEx(m_hAttribDC, point); });
}

CPoint CDC::SetViewportOrg(int x, int y) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return PointFrom([=](LPPOINT previous) { ::SetViewportOrgEx(hDC, x, y, previous); });
    });
}

CPoint CDC::SetViewportOrg(POINT point) {
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return PointFrom(
            [=](LPPOINT previous) { ::OffsetViewportOrgEx(hDC, nWidth, nHeight, previous); });
    });
}

CSize CDC::GetViewportExt() const {
    return SizeFrom([this](LPSIZE size) { ::GetViewportExtEx(m_hAttribDC, size); });
}

CSize CDC::SetViewportExt(int cx, int cy) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return SizeFrom([=](LPSIZE previous) { ::SetViewportExtEx(hDC, cx, cy, previous); });
    });
}

CSize CDC::SetViewportExt(SIZE size) {
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return SizeFrom([=](LPSIZE previous) {
            ::ScaleViewportExtEx(hDC, xNum, xDenom, yNum, yDenom, previous);
        });
    });
}

CPoint CDC::GetWindowOrg() const {
    return PointFrom([this](LPPOINT point) { ::GetWindowOrgEx(m_hAttribDC, point); });
}

CPoint CDC::SetWindowOrg(int x, int y) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return PointFrom([=](LPPOINT previous) { ::SetWindowOrgEx(hDC, x, y, previous); });
    });
}

CPoint CDC::SetWindowOrg(POINT point) {
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return PointFrom(
            [=](LPPOINT previous) { ::OffsetWindowOrgEx(hDC, nWidth, nHeight, previous); });
    });
}

CSize CDC::GetWindowExt() const {
    return SizeFrom([this](LPSIZE size) { ::GetWindowExtEx(m_hAttribDC, size); });
}

CSize CDC::SetWindowExt(int cx, int cy) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return SizeFrom([=](LPSIZE previous) { ::SetWindowExtEx(hDC, cx, cy, previous); });
    });
}

CSize CDC::SetWindowExt(SIZE size) {
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return SizeFrom([=](LPSIZE previous) {
            ::ScaleWindowExtEx(hDC, xNum, xDenom, yNum, yDenom, previous);
        });
    });
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const {
    ::DPtoLP(m_hAttribDC, lpPoints, nCount);
}

void CDC::DPtoLP(LPRECT lpRect) const {
    POINT corners[] = {{lpRect->left, lpRect->top}, {lpRect->right, lpRect->bottom}};
    DPtoLP(corners, 2);
    *lpRect = {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

void CDC::DPtoLP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = Scale(lpSize->cx, window.cx, viewport.cx);
    lpSize->cy = Scale(lpSize->cy, window.cy, viewport.cy);
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const {
    ::LPtoDP(m_hAttribDC, lpPoints, nCount);
}

void CDC::LPtoDP(LPRECT lpRect) const {
    POINT corners[] = {{lpRect->left, lpRect->top}, {lpRect->right, lpRect->bottom}};
    LPtoDP(corners, 2);
    *lpRect = {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

void CDC::LPtoDP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = Scale(lpSize->cx, viewport.cx, window.cx);
    lpSize->cy = Scale(lpSize->cy, viewport.cy, window.cy);
}

// Clipping

int CDC::GetClipBox(LPRECT lpRect) const {
    return ::GetClipBox(m_hAttribDC, lpRect);
}

BOOL CDC::PtVisible(int x, int y) const {
    // Win32 answers -1 without a device context.
    return ::PtVisible(m_hAttribDC, x, y) > 0;
}

BOOL CDC::PtVisible(POINT point) const {
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const {
    return ::RectVisible(m_hAttribDC, lpRect) > 0;
}

int CDC::SelectClipRgn(CRgn* pRgn) {
    const HRGN region = afx::HandleOf<HRGN>(pRgn);
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SelectClipRgn(hDC, region); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    const HRGN region = afx::HandleOf<HRGN>(pRgn);
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::ExtSelectClipRgn(hDC, region, nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::ExcludeClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect) {
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd) {
    const HWND window = pWnd == nullptr ? nullptr : pWnd->m_hWnd;
    return ::ExcludeUpdateRgn(m_hDC, window);
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::IntersectClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect) {
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::OffsetClipRgn(int x, int y) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::OffsetClipRgn(hDC, x, y); });
}

int CDC::OffsetClipRgn(SIZE size) {
    return OffsetClipRgn(size.cx, size.cy);
}
