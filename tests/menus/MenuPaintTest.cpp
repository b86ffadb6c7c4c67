// SPDX-License-Identifier: MIT
#include "menus/MenuPaint.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/menus/MenuRules.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"

namespace {

struct Gradient {
    COLORREF start;
    COLORREF end;
    RECT rect;
};

/// The rule, strip by strip.
void FillStrips(HDC dc, const Gradient& gradient) {
    const auto& [start, end, rect] = gradient;
    const auto fill = [dc](int left, int top, int right, int bottom, COLORREF color) {
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                ::SetPixel(dc, x, y, color);
    };
    const int d[3] = {GetRValue(end) - GetRValue(start), GetGValue(end) - GetGValue(start),
                      GetBValue(end) - GetBValue(start)};
    const int n = std::max({std::abs(d[0]), std::abs(d[1]), std::abs(d[2])});
    if (n == 0)
        return fill(rect.left, rect.top, rect.right, rect.bottom, start);
    const float w = static_cast<float>(rect.right - rect.left) / n;
    for (int i = 0; i <= n; ++i) {
        const auto channel = [&, i](int from, int change) {
            return static_cast<BYTE>(static_cast<int>(from + static_cast<float>(change) / n * i));
        };
        fill(rect.left + static_cast<int>(i * w), 0,
             i < n ? rect.left + static_cast<int>((i + 1) * w) : rect.right, rect.bottom,
             RGB(channel(GetRValue(gradient.start), d[0]), channel(GetGValue(gradient.start), d[1]),
                 channel(GetBValue(gradient.start), d[2])));
    }
}

TEST(MenuGradient, IsTheStripsOfTheRule) {
    for (const Gradient& gradient : {
             Gradient{0xE4C4B4, 0xFFFFFF, {0, 0, 30, 20}},
             Gradient{0xFFFFFF, 0xE4C4B4, {7, 12, 37, 20}}, // from y = 0 all the same
             Gradient{0xE4C4B4, 0xE4C4B4, {7, 12, 37, 20}}, // one fill, of just the rectangle
             Gradient{0x102030, 0x102031, {3, 0, 100, 20}}, // one strip
             Gradient{0x000000, 0xFFFFFF, {0, 0, 120, 20}}, // strips narrower than a pixel
             Gradient{0x0000FF, 0xFF0000, {-40, 0, 500, 90}},
             Gradient{0x000000, 0xFFFFFF, {50, 0, 50, 20}},
             Gradient{0x000003, 0x000000, {0, 0, 7, 20}},
         }) {
        const Canvas ours(130, 24);
        const Canvas rule(130, 24);
        DrawGradient(ours.dc(), gradient.start, gradient.end, gradient.rect);
        FillStrips(rule.dc(), gradient);
        EXPECT_EQ(ours.Snapshot(), rule.Snapshot()) << std::hex << gradient.start;
    }
}

void Scribble(HDC dc, int seed) {
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 80; ++x)
            ::SetPixel(dc, x, y, RGB(x * 3 + seed, y * 4, (x ^ y) * 2 + seed));
}

TEST(MenuShadow, IsTheRampOfTheRule) {
    const HDC empty = ::CreateCompatibleDC(nullptr); // reads as white
    for (const SIZE size : {SIZE{80, 60}, SIZE{50, 40}, SIZE{12, 12}, SIZE{9, 8}, SIZE{5, 5},
                            SIZE{2, 3}, SIZE{200, 30}, SIZE{0, 0}, SIZE{-9, 4}}) {
        const Canvas under(80, 60);
        const Canvas ours(80, 60);
        const Canvas rule(80, 60);
        Scribble(under.dc(), 5);
        for (const HDC source : {ours.dc(), under.dc(), empty}) {
            Scribble(ours.dc(), 77);
            Scribble(rule.dc(), 77);
            DrawMenuShadow(source, ours.dc(), {2, 2, size.cx, size.cy});
            const HDC read = source == ours.dc() ? rule.dc() : source;
            ForShadow(size.cx, size.cy, [&](int x, int y, int row, int column) {
                ::SetPixel(rule.dc(), x, y, Shaded(::GetPixel(read, x, y), row, column));
            });
            EXPECT_EQ(ours.Snapshot(), rule.Snapshot()) << size.cx << " x " << size.cy;
        }
    }
    ::DeleteDC(empty);
}

TEST(MenuEffects, SurviveAbsurdRectanglesAndContexts) {
    const Canvas canvas(40, 30);
    DrawMenuShadow(canvas.dc(), canvas.dc(), {0, 0, 40, 30}); // what is kept is in place by now
    const GdiLedger ledger;
    for (const RECT& rect : {RECT{INT_MIN, INT_MIN, INT_MAX, INT_MAX}, RECT{9, 9, -9, -9},
                             RECT{0, 0, INT_MAX, INT_MAX}, RECT{0, 0, INT_MIN, INT_MIN}})
        for (const HDC dc : {canvas.dc(), static_cast<HDC>(nullptr)}) {
            DrawGradient(dc, 0, 0xFFFFFF, rect);
            DrawMenuShadow(dc, dc, rect);
            tint::DrawBarItemShadow(dc, rect);
        }
    EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
}

} // namespace
