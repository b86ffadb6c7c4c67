// SPDX-License-Identifier: MIT
#include "atltypes.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <ostream>

std::ostream& operator<<(std::ostream& out, const RECT& rect) {
    return out << '(' << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom
               << ')';
}

std::ostream& operator<<(std::ostream& out, const POINT& point) {
    return out << '(' << point.x << ' ' << point.y << ')';
}

std::ostream& operator<<(std::ostream& out, const SIZE& size) {
    return out << '(' << size.cx << ' ' << size.cy << ')';
}

TEST(BaseRect, SizesAndPoints) {
    // Mouse messages carry negative coordinates on screens left of the first one.
    EXPECT_EQ(CPoint(-2, 5), CPoint(static_cast<LPARAM>(MAKELPARAM(-2, 5))));
    EXPECT_EQ(CSize(7, -1), CSize(static_cast<DWORD>(MAKELONG(7, -1))));
    const CPoint point(25, -19);
    const CSize size(15, 5);
    const CRect rect(125, 200, 325, 400);
    EXPECT_TRUE(CPoint() == CPoint(0, 0) && CPoint(size) == CPoint(15, 5));
    EXPECT_TRUE(CSize() == CSize(0, 0) && CSize(point) == CSize(25, -19));
    EXPECT_TRUE(point + size == CPoint(40, -14) && point - size == CPoint(10, -24));
    EXPECT_TRUE(point + CPoint(1, 2) == CPoint(26, -17) && CPoint(-point) == CPoint(-25, 19));
    EXPECT_TRUE(point - CPoint(15, 5) == CSize(10, -24) && -size == CSize(-15, -5));
    EXPECT_TRUE(size + CSize(1, 2) == CSize(16, 7) && size - CSize(1, 2) == CSize(14, 3));
    EXPECT_EQ(CPoint(40, -14), size + static_cast<POINT>(point));
    EXPECT_EQ(CPoint(10, -24), size - static_cast<POINT>(point));
    EXPECT_EQ(CRect(150, 181, 350, 381), point + &rect);
    EXPECT_EQ(CRect(100, 219, 300, 419), point - &rect);
    EXPECT_EQ(CRect(140, 205, 340, 405), size + &rect);
    EXPECT_EQ(CRect(110, 195, 310, 395), size - &rect);
    CPoint moved = point;
    moved += size;
    moved -= CPoint(1, 1);
    moved.Offset(2, 3);
    EXPECT_EQ(CPoint(41, -12), moved);
    CSize grown = size;
    grown += CSize(1, 1);
    grown -= CSize(0, 3);
    EXPECT_EQ(CSize(16, 3), grown);
}

TEST(BaseRect, MeasuresItselfAndWrapsAround) {
    CRect rect(CPoint(10, 20), CSize(30, 41));
    EXPECT_EQ(rect, CRect(CPoint(10, 20), CPoint(40, 61)));
    EXPECT_EQ(CSize(30, 41), CSize(rect.Width(), rect.Height()));
    EXPECT_EQ(CSize(30, 41), rect.Size());
    EXPECT_EQ(CPoint(25, 40), rect.CenterPoint());
    rect.TopLeft() += CSize(1, 2);
    rect.BottomRight().x = 50;
    ::OffsetRect(rect, 1, 1); // converts to LPRECT
    EXPECT_EQ(CRect(12, 23, 51, 62), rect);
    EXPECT_TRUE(rect.PtInRect(CPoint(12, 23)) && rect.PtInRect(CPoint(50, 61)));
    EXPECT_FALSE(rect.PtInRect(CPoint(51, 61)) || rect.PtInRect(CPoint(50, 62)));
    EXPECT_TRUE(CRect(10, 20, 10, 40).IsRectEmpty() && CRect(10, 20, 30, 19).IsRectEmpty());
    EXPECT_FALSE(rect.IsRectEmpty() || CRect(1, 1, 1, 1).IsRectNull());
    EXPECT_TRUE(CRect().IsRectNull() && rect.EqualRect(CRect(rect)) && rect != CRect());
    EXPECT_EQ(CPoint(INT_MIN, 0), CPoint(INT_MAX, 0) + CSize(1, 0));
    EXPECT_EQ(-1, CRect(INT_MIN, 0, INT_MAX, 0).Width());
    EXPECT_EQ(CPoint(INT_MAX - 1, 0), CRect(INT_MAX - 2, 0, INT_MAX, 0).CenterPoint());
}

TEST(BaseRect, Changes) {
    const CRect start(10, 20, 30, 40);
    const CRect sides(1, 2, 3, 4);
    const struct {
        const char* name;
        std::function<void(CRect&)> apply;
        CRect want;
    } changes[] = {
        {"inflate x, y", [](CRect& r) { r.InflateRect(1, 2); }, {9, 18, 31, 42}},
        {"inflate size", [](CRect& r) { r.InflateRect(CSize(1, 2)); }, {9, 18, 31, 42}},
        {"inflate rect", [&](CRect& r) { r.InflateRect(&sides); }, {9, 18, 33, 44}},
        {"inflate sides", [](CRect& r) { r.InflateRect(1, 2, 3, 4); }, {9, 18, 33, 44}},
        {"deflate x, y", [](CRect& r) { r.DeflateRect(1, 2); }, {11, 22, 29, 38}},
        {"deflate size", [](CRect& r) { r.DeflateRect(CSize(1, 2)); }, {11, 22, 29, 38}},
        {"deflate rect", [&](CRect& r) { r.DeflateRect(&sides); }, {11, 22, 27, 36}},
        {"deflate sides", [](CRect& r) { r.DeflateRect(1, 2, 3, 4); }, {11, 22, 27, 36}},
        {"offset", [](CRect& r) { r.OffsetRect(1, -2); }, {11, 18, 31, 38}},
        {"move to x", [](CRect& r) { r.MoveToX(0); }, {0, 20, 20, 40}},
        {"move to y", [](CRect& r) { r.MoveToY(0); }, {10, 0, 30, 20}},
        {"move", [](CRect& r) { r.MoveToXY(CPoint(1, 2)); }, {1, 2, 21, 22}},
        {"+= size", [](CRect& r) { r += CSize(1, 2); }, {11, 22, 31, 42}},
        {"-= point", [](CRect& r) { r -= CPoint(1, 2); }, {9, 18, 29, 38}},
        {"+= rect", [&](CRect& r) { r += &sides; }, {9, 18, 33, 44}},
        {"-= rect", [&](CRect& r) { r -= &sides; }, {11, 22, 27, 36}},
        {"&=", [](CRect& r) { r &= CRect(20, 0, 50, 30); }, {20, 20, 30, 30}},
        {"|=", [](CRect& r) { r |= CRect(20, 0, 50, 30); }, {10, 0, 50, 40}},
        {"intersection is empty", [](CRect& r) { r &= CRect(30, 0, 50, 30); }, {0, 0, 0, 0}},
        {"subtract",
         [](CRect& r) { r.SubtractRect(CRect(r), CRect(0, 0, 15, 50)); },
         {15, 20, 30, 40}},
        {"corner",
         [](CRect& r) { r.SubtractRect(CRect(r), CRect(0, 0, 15, 30)); },
         {10, 20, 30, 40}},
        {"normalize",
         [](CRect& r) { r = CRect(30, 40, 10, 20), r.NormalizeRect(); },
         {10, 20, 30, 40}},
        {"copy", [&](CRect& r) { r.CopyRect(&sides); }, {1, 2, 3, 4}},
        {"empty", [](CRect& r) { r.SetRectEmpty(); }, {0, 0, 0, 0}},
        {"operators",
         [&](CRect& r) { r = ((r + CPoint(5, 5)) - CSize(1, 1) + &sides) & CRect(0, 0, 30, 99); },
         {13, 22, 30, 48}},
    };
    for (const auto& change : changes) {
        CRect rect(start);
        change.apply(rect);
        EXPECT_EQ(change.want, rect) << change.name;
    }
}
