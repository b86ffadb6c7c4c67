// SPDX-License-Identifier: MIT
#include "atltypes.h"

#include "Coordinates.h"

using afx::Add;
using afx::Subtract;

CSize::CSize() noexcept : tagSIZE{0, 0} {}
CSize::CSize(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
CSize::CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}

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
