// SPDX-License-Identifier: MIT
#include "atltypes.h"

#include "Coordinates.h"

using afx::Add;
using afx::Subtract;

namespace {

LONG middle(LONG a, LONG b) {
    return static_cast<LONG>((LONGLONG{a} + LONGLONG{b}) / 2);
}

} // namespace

// The rectangle hands out its corners as CPoint objects.
static_assert(sizeof(CPoint) == sizeof(POINT) && sizeof(CRect) == sizeof(RECT));

CRect::CRect() noexcept : tagRECT{0, 0, 0, 0} {}
CRect::CRect(int l, int t, int r, int b) noexcept : tagRECT{l, t, r, b} {}
CRect::CRect(const RECT& srcRect) noexcept : tagRECT(srcRect) {}
CRect::CRect(POINT point, SIZE size) noexcept
    : tagRECT{point.x, point.y, Add(point.x, size.cx), Add(point.y, size.cy)} {}

int CRect::Width() const noexcept {
    return Subtract(right, left);
}

int CRect::Height() const noexcept {
    return Subtract(bottom, top);
}

CSize CRect::Size() const noexcept {
    return CSize(Width(), Height());
}

CPoint& CRect::TopLeft() noexcept {
    return *reinterpret_cast<CPoint*>(&left);
}

CPoint& CRect::BottomRight() noexcept {
    return *reinterpret_cast<CPoint*>(&right);
}

const CPoint& CRect::TopLeft() const noexcept {
    return *reinterpret_cast<const CPoint*>(&left);
}

const CPoint& CRect::BottomRight() const noexcept {
    return *reinterpret_cast<const CPoint*>(&right);
}

CPoint CRect::CenterPoint() const noexcept {
    return CPoint(middle(left, right), middle(top, bottom));
}

CRect::operator LPRECT() noexcept {
    return this;
}

CRect::operator LPCRECT() const noexcept {
    return this;
}

BOOL CRect::IsRectEmpty() const noexcept {
    return ::IsRectEmpty(this);
}

BOOL CRect::PtInRect(POINT point) const noexcept {
    return ::PtInRect(this, point);
}

void CRect::InflateRect(int x, int y) noexcept {
    InflateRect(x, y, x, y);
}

void CRect::InflateRect(int l, int t, int r, int b) noexcept {
    left = Subtract(left, l);
    top = Subtract(top, t);
    right = Add(right, r);
    bottom = Add(bottom, b);
}

void CRect::DeflateRect(int x, int y) noexcept {
    DeflateRect(x, y, x, y);
}

void CRect::DeflateRect(LPCRECT lpRect) noexcept {
    DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

void CRect::DeflateRect(int l, int t, int r, int b) noexcept {
    left = Add(left, l);
    top = Add(top, t);
    right = Subtract(right, r);
    bottom = Subtract(bottom, b);
}

void CRect::OffsetRect(int x, int y) noexcept {
    left = Add(left, x);
    top = Add(top, y);
    right = Add(right, x);
    bottom = Add(bottom, y);
}

void CRect::OffsetRect(POINT point) noexcept {
    OffsetRect(point.x, point.y);
}

BOOL CRect::IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
    return ::IntersectRect(this, lpRect1, lpRect2);
}

BOOL CRect::UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
    return ::UnionRect(this, lpRect1, lpRect2);
}

BOOL CRect::operator==(const RECT& rect) const noexcept {
    return ::EqualRect(this, &rect);
}

BOOL CRect::operator!=(const RECT& rect) const noexcept {
    return !(*this == rect);
}

void CRect::operator&=(const RECT& rect) noexcept {
    ::IntersectRect(this, this, &rect);
}

void CRect::operator|=(const RECT& rect) noexcept {
    ::UnionRect(this, this, &rect);
}

CRect CRect::operator&(const RECT& rect2) const noexcept {
    CRect result(*this);
    result &= rect2;
    return result;
}

CRect CRect::operator|(const RECT& rect2) const noexcept {
    CRect result(*this);
    result |= rect2;
    return result;
}
