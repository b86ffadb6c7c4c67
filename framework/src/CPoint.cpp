// SPDX-License-Identifier: MIT
#include "atltypes.h"

#include "Coordinates.h"

using afx::Add;
using afx::Subtract;

CPoint::CPoint() noexcept : tagPOINT{0, 0} {}
CPoint::CPoint(int initX, int initY) noexcept : tagPOINT{initX, initY} {}
CPoint::CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}
CPoint::CPoint(SIZE initSize) noexcept : tagPOINT{initSize.cx, initSize.cy} {}

BOOL CPoint::operator==(POINT point) const noexcept {
    return x == point.x && y == point.y;
}

BOOL CPoint::operator!=(POINT point) const noexcept {
    return !(*this == point);
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

CSize CPoint::operator-(POINT point) const noexcept {
    return CSize(Subtract(x, point.x), Subtract(y, point.y));
}
