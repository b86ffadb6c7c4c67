// SPDX-License-Identifier: MIT
#include "atltypes.h"

#include "Coordinates.h"

using afx::Add;
using afx::Subtract;

CSize::CSize() noexcept : tagSIZE{0, 0} {}
CSize::CSize(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
CSize::CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}
CSize::CSize(POINT initPt) noexcept : tagSIZE{initPt.x, initPt.y} {}
CSize::CSize(DWORD dwSize) noexcept
    : tagSIZE{static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize))} {}

BOOL CSize::operator==(SIZE size) const noexcept {
    return cx == size.cx && cy == size.cy;
}

BOOL CSize::operator!=(SIZE size) const noexcept {
    return !(*this == size);
}

void CSize::operator+=(SIZE size) noexcept {
    cx = Add(cx, size.cx);
    cy = Add(cy, size.cy);
}

void CSize::operator-=(SIZE size) noexcept {
    cx = Subtract(cx, size.cx);
    cy = Subtract(cy, size.cy);
}

CSize CSize::operator+(SIZE size) const noexcept {
    return CSize(Add(cx, size.cx), Add(cy, size.cy));
}

CSize CSize::operator-(SIZE size) const noexcept {
    return CSize(Subtract(cx, size.cx), Subtract(cy, size.cy));
}

CSize CSize::operator-() const noexcept {
    return CSize(Subtract(0, cx), Subtract(0, cy));
}

CPoint CSize::operator+(POINT point) const noexcept {
    return CPoint(point) + *this;
}

CPoint CSize::operator-(POINT point) const noexcept {
    return CPoint(point) - *this;
}

CRect CSize::operator+(const RECT* lpRect) const noexcept {
    return CRect(lpRect) + *this;
}

CRect CSize::operator-(const RECT* lpRect) const noexcept {
    return CRect(lpRect) - *this;
}
