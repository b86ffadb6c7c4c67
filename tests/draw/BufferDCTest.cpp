// SPDX-License-Identifier: MIT
#include "draw/BufferDC.h"

#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>

#include "draw/Selectors.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"

namespace {

constexpr COLORREF kInk = RGB(12, 34, 56);

void FillAll(CDC& dc) {
    dc.FillSolidRect(0, 0, 1000, 1000, kInk);
}

TEST(BufferDC, OnlyItsRectangleIsCopied) {
    constexpr RECT all = {0, 0, 200, 100};
    const struct {
        RECT asked;
        RECT clip; ///< the target's clip region
        RECT copied;
        SIZE bitmap;
    } cases[] = {{{50, 20, 150, 60}, all, {50, 20, 150, 60}, {150, 60}},
                 {{0, 0, 40, 30}, all, {0, 0, 40, 30}, {40, 30}},
                 {{7, 9, 8, 10}, all, {7, 9, 8, 10}, {8, 10}},
                 {{0, 0, 0, 0}, {10, 5, 90, 50}, {10, 5, 90, 50}, {90, 50}}, // the clip box
                 {{9, 9, 3, 3}, all, all, {200, 100}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        Canvas canvas(200, 100);
        ::IntersectClipRect(canvas.dc(), c.clip.left, c.clip.top, c.clip.right, c.clip.bottom);
        {
            CBufferDC dc(canvas.dc(), &c.asked);
            BITMAP bitmap = {};
            ::GetObjectA(::GetCurrentObject(dc, OBJ_BITMAP), sizeof bitmap, &bitmap);
            EXPECT_EQ(CSize(bitmap.bmWidth, bitmap.bmHeight), CSize(c.bitmap));
            CRect clip;
            ::GetClipBox(dc, &clip);
            EXPECT_EQ(clip, CRect(c.copied)) << "the rest is excluded from clipping";
            FillAll(dc);
            EXPECT_EQ(canvas.Count(Canvas::kUntouched, all), 200 * 100) << "nothing shows yet";
        }
        const int area = (c.copied.right - c.copied.left) * (c.copied.bottom - c.copied.top);
        EXPECT_EQ(canvas.Count(kInk, c.copied), area);
        EXPECT_EQ(canvas.Count(Canvas::kUntouched, all), 200 * 100 - area);
    }
}

BOOL CALLBACK DrawGrayed(HDC dc, LPARAM text, int count) {
    return ::TextOutA(dc, 0, 0, reinterpret_cast<LPCSTR>(text), count);
}

// Each overridden operation gives the result, and the pixels, of the system call of the same name.
TEST(BufferDC, OverridesAnswerAsTheSystemCalls) {
    constexpr RECT rect = {10, 5, 90, 25};
    int tab = 30;
    int widths[] = {9, 8, 7};
    DRAWTEXTPARAMS parameters = {sizeof parameters, 4, 3, 2, 0};
    char text[] = "a\tb";
    CBrush gray(RGB(100, 100, 100));

    Canvas expected(100, 30);
    Canvas actual(100, 30);
    {
        const HDC ref = expected.dc();
        CBufferDC buffer(actual.dc(), nullptr);
        buffer.FillSolidRect(0, 0, 100, 30, Canvas::kUntouched);
        buffer.SetBkColor(::GetBkColor(ref));
        CDC& dc = buffer;

        EXPECT_FALSE(dc.PtVisible(100, 29));
        EXPECT_TRUE(buffer.PtVisible(CPoint(99, 29))) << "the other form is not hidden";
        EXPECT_EQ(dc.RectVisible(&rect), ::RectVisible(ref, &rect));
        EXPECT_EQ(dc.TextOut(0, 0, text, 3), ::TextOutA(ref, 0, 0, text, 3));
        EXPECT_EQ(dc.ExtTextOut(5, 5, ETO_CLIPPED, &rect, "abc", 3, widths),
                  ::ExtTextOutA(ref, 5, 5, ETO_CLIPPED, &rect, "abc", 3, widths));
        const DWORD size = ::TabbedTextOutA(ref, 2, 12, text, 3, 1, &tab, 1);
        EXPECT_EQ(dc.TabbedTextOut(2, 12, text, 3, 1, &tab, 1),
                  CSize(static_cast<short>(LOWORD(size)), static_cast<short>(HIWORD(size))));
        RECT ours = rect;
        RECT theirs = rect;
        EXPECT_EQ(dc.DrawText(text, 3, &ours, DT_RIGHT | DT_SINGLELINE),
                  ::DrawTextA(ref, text, 3, &theirs, DT_RIGHT | DT_SINGLELINE));
        EXPECT_EQ(dc.DrawTextEx(text, 3, &ours, DT_EXPANDTABS, &parameters),
                  ::DrawTextExA(ref, text, 3, &theirs, DT_EXPANDTABS, &parameters));
        const auto data = reinterpret_cast<LPARAM>("gray");
        EXPECT_EQ(dc.GrayString(&gray, DrawGrayed, data, 4, 60, 2, 30, 16),
                  ::GrayStringA(ref, gray, DrawGrayed, data, 4, 60, 2, 30, 16));
        const int query = SETABORTPROC;
        const auto input = reinterpret_cast<LPCSTR>(&query);
        EXPECT_EQ(dc.Escape(QUERYESCSUPPORT, sizeof query, input, nullptr),
                  ::Escape(ref, QUERYESCSUPPORT, sizeof query, input, nullptr));
    }
    EXPECT_TRUE(actual.Snapshot() == expected.Snapshot());
}

TEST(BufferDC, GivesEverythingBackWhateverHappens) {
    Canvas canvas(50, 50);
    ::SetTextColor(canvas.dc(), RGB(1, 2, 3));
    GdiLedger ledger;
    const RECT rect = {5, 5, 20, 20};
    const RECT absurd = {30, 0, INT_MAX, INT_MAX}; // no such bitmap can be had
    try {
        CBufferDC dc(canvas.dc(), &rect);
        CPenSelector pen(dc, kInk);
        CBrushSelector brush(dc, kInk);
        dc.Rectangle(&rect);
        throw std::runtime_error("in the middle of a paint");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(canvas.Count(kInk, rect), 15 * 15) << "what was drawn until then is shown";
    for (const HDC target : {canvas.dc(), HDC{}, reinterpret_cast<HDC>(0x12345)})
        for (const RECT* const asked : {&absurd, &rect}) {
            CBufferDC dc(target, asked);
            CPenSelector pen(dc, kInk);
            dc.SetTextColor(RGB(4, 5, 6));
            FillAll(dc);
        }
    EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
    EXPECT_EQ(canvas.Count(kInk, {0, 0, 50, 50}), 15 * 15 + 20 * 50) << "straight on the target";
    EXPECT_EQ(::GetTextColor(canvas.dc()), RGB(1, 2, 3)) << "which is as found";
    EXPECT_TRUE(::PtVisible(canvas.dc(), 0, 0));
}

} // namespace
