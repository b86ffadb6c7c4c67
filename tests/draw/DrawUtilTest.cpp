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
        for (const int size : {-1, 0, 1, 4}) {
            Canvas canvas(21, 21);
            {
                const CPenSelector pen(canvas.dc(), kInk);
                DrawArrowTriangle(canvas.dc(), 10, 10, size, down);
            }
            int drawn = 0;
            for (int i = 0; i < size; drawn += 2 * i++ + 1) {
                const int row = down ? 10 - i : 10 + i;
                EXPECT_EQ(canvas.Count(kInk, {10 - i, row, 10 + i + 1, row + 1}), 2 * i + 1) << i;
            }
            EXPECT_EQ(canvas.Count(kInk, {0, 0, 21, 21}), drawn) << "and nothing else";
        }
}

TEST(CopyScreenToBitmap, CopiesWhatTheScreenShows) {
    const RECT place = {30, 40, 94, 72};
    CWnd window;
    window.CreateEx(WS_EX_TOPMOST, "STATIC", "", WS_POPUP | WS_VISIBLE | SS_WHITERECT, place,
                    nullptr, 0);
    window.UpdateWindow();
    const auto isThere = [](const automation::Picture& picture) {
        return picture.width == 64 && picture.height == 32 && picture.At(0, 0) == kInk &&
               picture.At(63, 31) == kInk && picture.At(1, 0) == RGB(255, 255, 255);
    };
    EXPECT_TRUE(PumpUntil([&] { // the screen follows with some delay
        CClientDC dc(&window);
        dc.SetPixel(0, 0, kInk);
        dc.SetPixel(63, 31, kInk);
        return isThere(automation::CaptureScreen(place));
    }));

    GdiLedger ledger;
    const HBITMAP bitmap = CopyScreenToBitmap(place);
    EXPECT_TRUE(isThere(automation::ReadBitmap(bitmap)));
    for (const RECT& none : {RECT{0, 0, 0x7FFFFFF0, 0x7FFFFFF0}, {5, 5, 5, 9}, {5, 5, 9, 5}})
        EXPECT_EQ(CopyScreenToBitmap(none), nullptr) << "not the system's stock bitmap either";
    EXPECT_EQ(ledger.Unreturned(), "CreateCompatibleBitmap x1\n") << "the caller's, and no other";
    ::DeleteObject(bitmap);
    EXPECT_EQ(ledger.Faults(), "");
}

} // namespace
