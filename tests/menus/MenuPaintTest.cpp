// SPDX-License-Identifier: MIT
#include "menus/MenuPaint.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"

namespace {

struct GradientCase {
    COLORREF start;
    COLORREF end;
    RECT rect;
};

/// The rule, strip by strip.
void FillStrips(HDC dc, const GradientCase& gradient) {
    const auto fill = [dc](int left, int top, int right, int bottom, COLORREF color) {
        const RECT rect = {left, top, right, bottom};
        const HBRUSH brush = ::CreateSolidBrush(color);
        ::FillRect(dc, &rect, brush);
        ::DeleteObject(brush);
    };
    const auto& [start, end, rect] = gradient;
    const int d[3] = {GetRValue(end) - GetRValue(start), GetGValue(end) - GetGValue(start),
                      GetBValue(end) - GetBValue(start)};
    const int n = std::max({std::abs(d[0]), std::abs(d[1]), std::abs(d[2])});
    if (n == 0)
        return fill(rect.left, rect.top, rect.right, rect.bottom, start);
    const float w = static_cast<float>(rect.right - rect.left) / n;
    const auto color = [&, s = start](int i) {
        const auto channel = [&](int from, int change) {
            return static_cast<BYTE>(static_cast<int>(from + static_cast<float>(change) / n * i));
        };
        return RGB(channel(GetRValue(s), d[0]), channel(GetGValue(s), d[1]),
                   channel(GetBValue(s), d[2]));
    };
    int last = rect.left;
    for (int i = 0; i < n; ++i) {
        const int left = rect.left + static_cast<int>(i * w);
        last = rect.left + static_cast<int>((i + 1) * w);
        if (left < last)
            fill(left, 0, last, rect.bottom, color(i));
    }
    if (last < rect.right)
        fill(last, 0, rect.right, rect.bottom, color(n));
}

TEST(Gradient, IsTheStripsOfTheRule) {
    constexpr COLORREF blue = 0xE4C4B4;
    constexpr COLORREF white = 0xFFFFFF;
    for (const GradientCase& gradient : {
             GradientCase{blue, white, {0, 0, 30, 20}},
             GradientCase{white, blue, {7, 12, 37, 20}},        // from y = 0 all the same
             GradientCase{blue, blue, {7, 12, 37, 20}},         // one fill, of just the rectangle
             GradientCase{0x102030, 0x102031, {3, 0, 100, 20}}, // one strip
             GradientCase{0x000000, 0xFFFFFF, {0, 0, 120, 20}}, // strips narrower than a pixel
             GradientCase{0x0000FF, 0xFF0000, {-40, 0, 500, 90}},
             GradientCase{0x000000, 0xFFFFFF, {50, 0, 50, 20}},
             GradientCase{0x000003, 0x000000, {0, 0, 7, 20}},
         }) {
        const Canvas ours(130, 24);
        const Canvas rule(130, 24);
        DrawGradient(ours.dc(), gradient.start, gradient.end, gradient.rect);
        FillStrips(rule.dc(), gradient);
        EXPECT_EQ(ours.Snapshot(), rule.Snapshot()) << std::hex << gradient.start;
    }
}

COLORREF Shade(COLORREF color, int row, int column) {
    const int k = row == 0   ? 0
                  : row == 1 ? (column >= 2 ? 1 : 0)
                  : row == 2 ? std::min(column, 2)
                             : column;
    const int p = (3 - k) * 5 + 78;
    return RGB(GetRValue(color) * p / 100, GetGValue(color) * p / 100, GetBValue(color) * p / 100);
}

/// The rule, pixel by pixel.
void ShadeByPixel(HDC source, HDC target, const RECT& rect) {
    const int right = rect.right;
    const int bottom = rect.bottom;
    const auto shade = [&](int x, int y, int row, int column) {
        ::SetPixel(target, x, y, Shade(::GetPixel(source, x, y), row, column));
    };
    for (int i = 0; i < right - 1; ++i) {
        const int end = i > right - 8 ? right - 4 - i : 4;
        for (int j = i >= 2 ? (i > right - 7 ? i - right + 7 : 0) : 2 - i; j < end; ++j)
            shade(i + 4, bottom - j - 1, i, j);
    }
    for (int c = 0; c < 4; ++c)
        for (int j = c < 2 ? 2 - c : 0; j < bottom - c - 4 - (c < 1 ? 2 : 1); ++j)
            shade(right - c - 1, j + 4, j, c);
}

void Scribble(HDC dc, int seed) {
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 80; ++x)
            ::SetPixel(dc, x, y, RGB(x * 3 + seed, y * 4, (x ^ y) * 2 + seed));
}

TEST(Shadow, IsTheRampOfTheRule) {
    for (const SIZE size : {SIZE{80, 60}, SIZE{50, 40}, SIZE{12, 12}, SIZE{9, 8}, SIZE{5, 5},
                            SIZE{2, 3}, SIZE{200, 30}, SIZE{0, 0}, SIZE{-9, 4}}) {
        const RECT rect = {2, 2, size.cx, size.cy};
        for (const bool sameContext : {true, false}) {
            const Canvas under(80, 60);
            const Canvas ours(80, 60);
            const Canvas rule(80, 60);
            Scribble(under.dc(), 5);
            Scribble(ours.dc(), 77);
            Scribble(rule.dc(), 77);
            DrawMenuShadow(sameContext ? ours.dc() : under.dc(), ours.dc(), rect);
            ShadeByPixel(sameContext ? rule.dc() : under.dc(), rule.dc(), rect);
            EXPECT_EQ(ours.Snapshot(), rule.Snapshot()) << size.cx << " x " << size.cy;
        }
    }
}

TEST(Shadow, ReadsWhiteWhereTheSourceHasNoPixels) {
    const HDC empty = ::CreateCompatibleDC(nullptr);
    const Canvas ours(80, 60);
    const Canvas rule(80, 60);
    const RECT rect = {0, 0, 80, 60};
    DrawMenuShadow(empty, ours.dc(), rect);
    ShadeByPixel(empty, rule.dc(), rect);
    EXPECT_EQ(ours.Snapshot(), rule.Snapshot());
    ::DeleteDC(empty);
}

TEST(Effects, SurviveAbsurdRectanglesAndContexts) {
    const Canvas canvas(40, 30);
    const GdiLedger ledger;
    for (const RECT& rect : {RECT{INT_MIN, INT_MIN, INT_MAX, INT_MAX}, RECT{0, 0, INT_MAX, INT_MAX},
                             RECT{9, 9, -9, -9}, RECT{0, 0, INT_MIN, INT_MIN}})
        for (const HDC dc : {canvas.dc(), static_cast<HDC>(nullptr)}) {
            DrawGradient(dc, 0, 0xFFFFFF, rect);
            DrawMenuShadow(dc, dc, rect);
            tint::DrawBarItemShadow(dc, rect);
        }
    EXPECT_EQ(ledger.Unreturned(), "");
    EXPECT_EQ(ledger.Faults(), "");
}

} // namespace
