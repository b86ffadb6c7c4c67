// SPDX-License-Identifier: MIT
/// @file
/// Geometry: CSize, CPoint and CRect, which derive from SIZE, POINT and RECT.
///
/// All coordinates are in the units of the device context or window they are used with. The
/// right and bottom edges of a rectangle lie outside it. Sums wrap around instead of overflowing.
#pragma once

#include "afx/Types.h"

class CPoint;
class CRect;

/// Width and height, or a relative displacement.
class CSize : public tagSIZE {
public:
    /// A size of zero by zero.
    CSize() noexcept;
    CSize(int initCX, int initCY) noexcept;
    CSize(SIZE initSize) noexcept;

    BOOL operator==(SIZE size) const noexcept;
    BOOL operator!=(SIZE size) const noexcept;
    void operator+=(SIZE size) noexcept;
    void operator-=(SIZE size) noexcept;

    CSize operator+(SIZE size) const noexcept;
    CSize operator-(SIZE size) const noexcept;
};

/// A point of the plane.
class CPoint : public tagPOINT {
public:
    /// The origin.
    CPoint() noexcept;
    CPoint(int initX, int initY) noexcept;
    CPoint(POINT initPt) noexcept;
    CPoint(SIZE initSize) noexcept;

    BOOL operator==(POINT point) const noexcept;
    BOOL operator!=(POINT point) const noexcept;

    CPoint operator+(SIZE size) const noexcept;
    CPoint operator-(SIZE size) const noexcept;
    CPoint operator-() const noexcept;
    CSize operator-(POINT point) const noexcept;
};

/// A rectangle. Most operations expect it normalized: left <= right and top <= bottom.
class CRect : public tagRECT {
public:
    /// An empty rectangle at the origin.
    CRect() noexcept;
    CRect(int l, int t, int r, int b) noexcept;
    CRect(const RECT& srcRect) noexcept;
    CRect(POINT point, SIZE size) noexcept;

    int Width() const noexcept;
    int Height() const noexcept;
    CSize Size() const noexcept;
    CPoint& TopLeft() noexcept;
    CPoint& BottomRight() noexcept;
    const CPoint& TopLeft() const noexcept;
    const CPoint& BottomRight() const noexcept;
    /// Half the sum of opposite edges, rounded toward zero.
    CPoint CenterPoint() const noexcept;

    operator LPRECT() noexcept;
    operator LPCRECT() const noexcept;

    /// True when width or height is zero or negative.
    BOOL IsRectEmpty() const noexcept;
    /// True when the point lies inside, counting the left and top but not the right and bottom edge.
    BOOL PtInRect(POINT point) const noexcept;

    /// Moves each side outwards: x left and right, y top and bottom.
    void InflateRect(int x, int y) noexcept;
    void InflateRect(int l, int t, int r, int b) noexcept;
    /// Moves each side inwards: x left and right, y top and bottom.
    void DeflateRect(int x, int y) noexcept;
    /// Moves each side inwards by the member of the same name.
    void DeflateRect(LPCRECT lpRect) noexcept;
    void DeflateRect(int l, int t, int r, int b) noexcept;

    void OffsetRect(int x, int y) noexcept;
    void OffsetRect(POINT point) noexcept;

    /// Becomes the overlap of both rectangles; false and empty when there is none.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;
    /// Becomes the smallest rectangle around both, ignoring empty ones; false when both are empty.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;

    BOOL operator==(const RECT& rect) const noexcept;
    BOOL operator!=(const RECT& rect) const noexcept;
    void operator&=(const RECT& rect) noexcept;
    void operator|=(const RECT& rect) noexcept;

    CRect operator&(const RECT& rect2) const noexcept;
    CRect operator|(const RECT& rect2) const noexcept;
};
