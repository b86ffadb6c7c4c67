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

TEST(BaseRect, MeasuresItselfAndWrapsAround) {
    CRect rect(CPoint(10, 20), CSize(30, 41));
    EXPECT_EQ(CSize(30, 41), rect.Size());
    EXPECT_EQ(CPoint(25, 40), rect.CenterPoint());
    rect.TopLeft() = rect.TopLeft() + CSize(1, 2);
    rect.BottomRight().x = 50;
    ::OffsetRect(rect, 1, 1); // converts to LPRECT
    EXPECT_EQ(CRect(12, 23, 51, 62), rect);
    EXPECT_TRUE(rect.PtInRect(CPoint(12, 23)) && rect.PtInRect(CPoint(50, 61)));
    EXPECT_FALSE(rect.PtInRect(CPoint(51, 61)) || rect.PtInRect(CPoint(50, 62)));
    EXPECT_TRUE(CRect(10, 20, 10, 40).IsRectEmpty() && CRect(10, 20, 30, 19).IsRectEmpty());
    EXPECT_TRUE(!rect.IsRectEmpty() && CRect().IsRectEmpty() && rect != CRect());
    EXPECT_EQ(CPoint(INT_MIN, 0), CPoint(INT_MAX, 0) + CSize(1, 0));
    EXPECT_EQ(-1, CRect(INT_MIN, 0, INT_MAX, 0).Width());
    EXPECT_EQ(CPoint(INT_MAX - 1, 0), CRect(INT_MAX - 2, 0, INT_MAX, 0).CenterPoint());
}

TEST(BaseRect, Changes) {
    const CRect start(10, 20, 30, 40);
    const struct {
        const char* name;
        std::function<void(CRect&)> apply;
        CRect want;
    } changes[] = {
        {"inflate x, y", [](CRect& r) { r.InflateRect(1, 2); }, {9, 18, 31, 42}},
        {"deflate sides", [](CRect& r) { r.DeflateRect(1, 2, 3, 4); }, {11, 22, 27, 36}},
        {"offset", [](CRect& r) { r.OffsetRect(CPoint(1, 2)); }, {11, 22, 31, 42}},
        {"&=", [](CRect& r) { r &= CRect(20, 0, 50, 30); }, {20, 20, 30, 30}},
        {"|=", [](CRect& r) { r |= CRect(20, 0, 50, 30); }, {10, 0, 50, 40}},
        {"intersection is empty", [](CRect& r) { r &= CRect(30, 0, 50, 30); }, {0, 0, 0, 0}},
    };
    for (const auto& change : changes) {
        CRect rect(start);
        change.apply(rect);
        EXPECT_EQ(change.want, rect) << change.name;
    }
}
