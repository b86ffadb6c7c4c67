// SPDX-License-Identifier: MIT
#include "atltypes.h"

#include "Coordinates.h"

using afx::Add;
using afx::Subtract;

CPoint::CPoint() noexcept : tagPOINT{0, 0} {}
CPoint::CPoint(int initX, int initY) noexcept : tagPOINT{initX, initY} {}
CPoint::CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}
CPoint::CPoint(SIZE initSize) noexcept : tagPOINT{initSize.cx, initSize.cy} {}
CPoint::CPoint(LPARAM dwPoint) noexcept
    : tagPOINT{static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint))} {}

void CPoint::Offset(int xOffset, int yOffset) noexcept {
    x = Add(x, xOffset);
    y = Add(y, yOffset);
}

void CPoint::Offset(POINT point) noexcept {
    Offset(point.x, point.y);
}

void CPoint::Offset(SIZE size) noexcept {
    Offset(size.cx, size.cy);
}

BOOL CPoint::operator==(POINT point) const noexcept {
    return x == point.x && y == point.y;
}

BOOL CPoint::operator!=(POINT point) const noexcept {
    return !(*this == point);
}

void CPoint::operator+=(SIZE size) noexcept {
    Offset(size);
}

void CPoint::operator-=(SIZE size) noexcept {
    Offset(-CSize(size));
}

void CPoint::operator+=(POINT point) noexcept {
    Offset(point);
}

void CPoint::operator-=(POINT point) noexcept {
    Offset(-CPoint(point));
}

CPoint CPoint::operator+(SIZE size) const noexcept {
    return CPoint(Add(x, size.cx), Add(y, size.cy));
}

CPoint CPoint::operator-(SIZE size) const noexcept {
    return CPoint(Subtract(x, size.cx), Subtract(y, size.cy));
}

CPoint CPoint::operator-() const noexcept {
    return CPoint(Subtract(0, x), Subtract(0, y));
}

CPoint CPoint::operator+(POINT point) const noexcept {
    return CPoint(Add(x, point.x), Add(y, point.y));
}

CSize CPoint::operator-(POINT point) const noexcept {
    return CSize(Subtract(x, point.x), Subtract(y, point.y));
}

CRect CPoint::operator+(const RECT* lpRect) const noexcept {
    return CRect(lpRect) + *this;
}

CRect CPoint::operator-(const RECT* lpRect) const noexcept {
    return CRect(lpRect) - *this;
}
