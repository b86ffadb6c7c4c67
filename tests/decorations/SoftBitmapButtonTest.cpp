// SPDX-License-Identifier: MIT
#include "decorations/SoftBitmapButton.h"

#include <gtest/gtest.h>

#include <string>

#include "automation/RealInput.h"
#include "tests/support/Canvas.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

namespace {

constexpr WORD kSubject = 101;
constexpr UINT kStrip = 301; // 7 x 1 pixels
constexpr int kStripWidth = 7;

COLORREF StripColor(int column) {
    const BYTE grey = static_cast<BYTE>(0x11 * (column + 1));
    return RGB(grey, grey, grey);
}

class BitmapDialog : public CDialog {
public:
    BitmapDialog() {
        m_template.Add("BUTTON", "unseen", kSubject, BS_PUSHBUTTON | WS_TABSTOP, 10, 10, 40, 20);
        CreateIndirect(m_template.Get(), nullptr);
        ::SetForegroundWindow(m_hWnd);
        automation::MoveMouse({700, 500});
        PumpFor(30);
    }
    ~BitmapDialog() override { DestroyWindow(); }

    COLORREF Shown(int x) const {
        CRect rect;
        m_subject.GetWindowRect(rect);
        const CRect pixel(rect.left + x, rect.top, rect.left + x + 1, rect.top + 1);
        return automation::CaptureScreen(pixel).At(0, 0);
    }

    CSoftBitmapButton m_subject;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, kSubject, m_subject);
    }

private:
    DialogTemplate m_template{"Bitmap buttons", 120, 80};
};

/// The frame that the rule chooses: 0 normal, 1 pressed, 2 hover, 3 disabled.
int FrameFor(UINT state, bool hover, int loaded) {
    if ((state & ODS_SELECTED) != 0 && loaded > 1)
        return 1;
    if ((state & ODS_DISABLED) != 0 && loaded > 3)
        return 3;
    return hover && loaded > 2 ? 2 : 0;
}

TEST(SoftBitmapButton, ShowsTheFrameOfEachStateForEveryStrip) {
    BitmapDialog dialog;
    for (const bool hover : {false, true}) {
        if (hover) {
            automation::MoveMouseOver(dialog.m_subject.m_hWnd);
            PumpFor(100);
        }
        for (int count = 1; count <= kStripWidth; ++count) {
            const GdiLedger ledger;
            ASSERT_TRUE(dialog.m_subject.LoadBitmapStrip(kStrip, static_cast<UINT>(count)));
            const int width = kStripWidth / count;
            const int loaded = count < 4 ? count : 4;
            EXPECT_EQ(ledger.Made() - loaded, 3) << "the client's context and two more";
            for (UINT bits = 0; bits < 8; ++bits) {
                const UINT state = (bits & 1 ? ODS_SELECTED : 0) | (bits & 2 ? ODS_DISABLED : 0) |
                                   (bits & 4 ? ODS_FOCUS : 0);
                const int frame = FrameFor(state, hover, loaded);
                for (const int itemWidth : {1, 3, 12}) { // narrower and wider than the frame
                    const Canvas canvas(20, 3);
                    DRAWITEMSTRUCT item = {};
                    item.itemState = state;
                    item.hDC = canvas.dc();
                    item.rcItem = {5, 1, 5 + itemWidth, 3};
                    dialog.m_subject.DrawItem(&item);
                    for (int x = 0; x < 20; ++x) {
                        const int column = x - 5;
                        const bool drawn = column >= 0 && column < width && column < itemWidth;
                        ASSERT_EQ(canvas.At(x, 1),
                                  drawn ? StripColor(frame * width + column) : canvas.kUntouched)
                            << hover << count << bits << ' ' << itemWidth << ' ' << x;
                    }
                    EXPECT_EQ(canvas.At(5, 0), canvas.kUntouched);
                    EXPECT_EQ(canvas.At(5, 2), canvas.kUntouched) << "the strip is one row high";
                }
            }
            EXPECT_EQ(ledger.Faults(), "");
            EXPECT_FALSE(dialog.m_subject.LoadBitmapStrip(kStrip, 0));
            EXPECT_EQ(ledger.Unreturned(), "");
        }
    }
}

TEST(SoftBitmapButton, AFailedLoadEmptiesIt) {
    BitmapDialog dialog;
    const struct {
        UINT id;
        UINT count;
    } cases[] = {{kStrip, 0}, {kStrip, 8}, {kStrip, 0xFFFFFFFF}, {999, 4}};
    for (const auto& c : cases) {
        ASSERT_TRUE(dialog.m_subject.LoadBitmapStrip(kStrip, 4));
        const Canvas canvas(20, 3);
        const GdiLedger ledger;
        EXPECT_FALSE(dialog.m_subject.LoadBitmapStrip(c.id, c.count));
        DRAWITEMSTRUCT item = {};
        item.hDC = canvas.dc();
        item.rcItem = {0, 0, 20, 3};
        dialog.m_subject.DrawItem(&item);
        EXPECT_EQ(canvas.Count(canvas.kUntouched, item.rcItem), 60) << c.id << ' ' << c.count;
        EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
    }
}

TEST(SoftBitmapButton, FollowsTheMouseOnTheScreen) {
    BitmapDialog dialog;
    CSoftBitmapButton& subject = dialog.m_subject;
    EXPECT_EQ(subject.GetStyle() & BS_TYPEMASK, DWORD{BS_OWNERDRAW});
    ASSERT_TRUE(subject.LoadBitmapStrip(kStrip, 4));
    subject.Invalidate();
    const auto shows = [&](int frame) {
        return PumpUntil([&] { return dialog.Shown(0) == StripColor(frame); });
    };
    EXPECT_TRUE(shows(0));
    automation::MoveMouseOver(subject.m_hWnd);
    EXPECT_TRUE(shows(2));
    automation::PressMouse();
    EXPECT_TRUE(shows(1)) << "pressed, under the mouse";
    automation::ReleaseMouse();
    EXPECT_TRUE(shows(2));
    subject.EnableWindow(FALSE);
    EXPECT_TRUE(shows(3));
    subject.EnableWindow(TRUE);
    automation::MoveMouse({700, 500});
    EXPECT_TRUE(shows(0));
    automation::MoveMouseOver(subject.m_hWnd);
    EXPECT_TRUE(shows(2)) << "a second time";

    const CRuntimeClass* const record = RUNTIME_CLASS(CSoftBitmapButton);
    EXPECT_STREQ(record->m_lpszClassName, "CSoftBitmapButton");
    EXPECT_TRUE(subject.IsKindOf(RUNTIME_CLASS(CBitmapButton)));
}

} // namespace
