// SPDX-License-Identifier: MIT
// CDC: colours, modes, mapping and clipping.
#include "Handles.h"
#include "afx/CDC.h"
#include "afx/CRgn.h"
#include "afx/CWnd.h"

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

} // namespace

// Colours

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

// Modes

int CDC::GetBkMode() const {
    return ::GetBkMode(m_hAttribDC);
}

int CDC::SetBkMode(int nBkMode) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetBkMode(hDC, nBkMode); });
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

CSize CDC::GetViewportExt() const {
    return SizeFrom([this](LPSIZE size) { ::GetViewportExtEx(m_hAttribDC, size); });
}

CSize CDC::SetViewportExt(int cx, int cy) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return SizeFrom([=](LPSIZE previous) { ::SetViewportExtEx(hDC, cx, cy, previous); });
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

CSize CDC::GetWindowExt() const {
    return SizeFrom([this](LPSIZE size) { ::GetWindowExtEx(m_hAttribDC, size); });
}

CSize CDC::SetWindowExt(int cx, int cy) {
    return afx::SetOnBoth(*this, [=](HDC hDC) {
        return SizeFrom([=](LPSIZE previous) { ::SetWindowExtEx(hDC, cx, cy, previous); });
    });
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

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::ExcludeClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect) {
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::IntersectClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect) {
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}
