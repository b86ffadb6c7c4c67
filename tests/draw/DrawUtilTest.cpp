// SPDX-License-Identifier: MIT
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include "draw/DrawUtil.h"

#include <gtest/gtest.h>

#include "draw/Selectors.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

namespace {

constexpr COLORREF kInk = RGB(12, 34, 56);

TEST(DrawArrowTriangle, RowsWidenFromTheApex) {
    for (const bool down : {true, false})
        for (const int size : {-1, 0, 1, 3, 4}) {
            Canvas canvas(21, 21);
            {
                const CPenSelector pen(canvas.dc(), kInk);
                DrawArrowTriangle(canvas.dc(), 10, 10, size, down);
            }
            int drawn = 0;
            for (int i = 0; i < size; ++i) {
                const int row = down ? 10 - i : 10 + i;
                EXPECT_EQ(canvas.Count(kInk, {10 - i, row, 10 + i + 1, row + 1}), 2 * i + 1)
                    << "row " << i << " of " << size;
                drawn += 2 * i + 1;
            }
            EXPECT_EQ(canvas.Count(kInk, {0, 0, 21, 21}), drawn) << "and nothing else";
        }
}

TEST(CopyScreenToBitmap, CopiesWhatTheScreenShows) {
    const RECT place = {30, 40, 94, 72};
    const HWND window =
        ::CreateWindowExA(WS_EX_TOPMOST, "STATIC", "", WS_POPUP | WS_VISIBLE | SS_WHITERECT,
                          place.left, place.top, 64, 32, nullptr, nullptr, nullptr, nullptr);
    ::UpdateWindow(window);
    const HDC dc = ::GetDC(window);
    ::SetPixel(dc, 0, 0, kInk);
    ::SetPixel(dc, 63, 31, kInk);
    ::ReleaseDC(window, dc);

    // What is drawn reaches the screen with some delay.
    EXPECT_TRUE(PumpUntil([&] { return automation::CaptureScreen(place).At(63, 31) == kInk; }));

    GdiLedger ledger;
    const HBITMAP bitmap = CopyScreenToBitmap(place);
    ASSERT_NE(bitmap, nullptr);
    const automation::Picture picture = automation::ReadBitmap(bitmap);
    EXPECT_EQ(picture.width, 64);
    EXPECT_EQ(picture.height, 32);
    EXPECT_EQ(picture.At(0, 0), kInk);
    EXPECT_EQ(picture.At(63, 31), kInk);
    EXPECT_EQ(picture.At(1, 0), RGB(255, 255, 255));

    EXPECT_EQ(ledger.Unreturned(), "CreateCompatibleBitmap x1\n")
        << "the caller's, and all else back";
    ::DeleteObject(bitmap);
    EXPECT_EQ(ledger.Faults(), "");
    ::DestroyWindow(window);
}

TEST(CopyScreenToBitmap, AnImpossibleSizeGivesNothingBack) {
    GdiLedger ledger;
    EXPECT_EQ(CopyScreenToBitmap({0, 0, 0x7FFFFFF0, 0x7FFFFFF0}), nullptr);
    EXPECT_EQ(ledger.Unreturned(), "");
}

} // namespace
