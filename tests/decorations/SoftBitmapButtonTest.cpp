// SPDX-License-Identifier: MIT
#include "decorations/SoftBitmapButton.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "automation/Picture.h"
#include "tests/support/SubjectDialog.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"

namespace {

constexpr UINT kStrip = 301; // 7 x 1 pixels
constexpr int kStripWidth = 7;

COLORREF StripColor(int column) {
    return 0x111111u * static_cast<COLORREF>(column + 1);
}

class ButtonDialog : public SubjectDialog<CSoftBitmapButton> {
public:
    ButtonDialog() { Open("BUTTON", "unseen", BS_PUSHBUTTON); }
};

/// The frame that the rule chooses: 0 normal, 1 pressed, 2 hover, 3 disabled.
int FrameFor(UINT state, bool hover, int loaded) {
    if ((state & ODS_SELECTED) != 0 && loaded > 1)
        return 1;
    if ((state & ODS_DISABLED) != 0 && loaded > 3)
        return 3;
    return hover && loaded > 2 ? 2 : 0;
}

/// What the button draws into a rectangle at (5, 1), its first row as colours.
std::vector<COLORREF> Drawn(CSoftBitmapButton& button, UINT state, int width) {
    const Canvas canvas(20, 3);
    DRAWITEMSTRUCT item = {};
    item.itemState = state;
    item.hDC = canvas.dc();
    item.rcItem = {5, 1, 5 + width, 3};
    button.DrawItem(&item);
    std::vector<COLORREF> row;
    for (int x = 0; x < 20; ++x)
        row.push_back(canvas.At(x, 1));
    EXPECT_EQ(canvas.At(5, 0), canvas.kUntouched);
    EXPECT_EQ(canvas.At(5, 2), canvas.kUntouched) << "the strip is one row high";
    return row;
}

const std::vector<COLORREF> kNothing(20, Canvas::kUntouched);

TEST(SoftBitmapButton, ShowsTheFrameOfEachStateForEveryStrip) {
    ButtonDialog dialog;
    CSoftBitmapButton& button = dialog.m_subject;
    for (const bool hover : {false, true}) {
        if (hover)
            automation::MoveMouseOver(button.m_hWnd);
        PumpFor(100);
        for (int count = 1; count <= kStripWidth; ++count) {
            const GdiLedger ledger;
            ASSERT_TRUE(button.LoadBitmapStrip(kStrip, static_cast<UINT>(count)));
            const int frameWidth = kStripWidth / count;
            for (UINT bits = 0; bits < 24; ++bits) {
                const UINT state = (bits & 1 ? ODS_SELECTED : 0) | (bits & 2 ? ODS_DISABLED : 0) |
                                   (bits & 4 ? ODS_FOCUS : 0);
                const int width = bits < 8 ? 1 : bits < 16 ? 3 : 12; // some larger than the frame
                const int first = FrameFor(state, hover, std::min(count, 4)) * frameWidth;
                std::vector<COLORREF> expected = kNothing;
                for (int x = 0; x < std::min(width, frameWidth); ++x)
                    expected[5 + x] = StripColor(first + x);
                EXPECT_EQ(Drawn(button, state, width), expected) << count << ' ' << bits;
            }
            const std::pair<UINT, UINT> failures[] = {
                {kStrip, 0}, {kStrip, 8}, {kStrip, 0xFFFFFFFF}, {999, 4}};
            const auto& [id, frames] = failures[count % 4];
            EXPECT_FALSE(button.LoadBitmapStrip(id, frames));
            EXPECT_EQ(Drawn(button, 0, 12), kNothing) << "emptied";
            EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
        }
    }
}

TEST(SoftBitmapButton, FollowsTheMouseOnTheScreen) {
    ButtonDialog dialog;
    CSoftBitmapButton& subject = dialog.m_subject;
    EXPECT_EQ(subject.GetStyle() & BS_TYPEMASK, DWORD{BS_OWNERDRAW});
    ASSERT_TRUE(subject.LoadBitmapStrip(kStrip, 4));
    subject.Invalidate();
    const auto shows = [&](int frame) {
        return PumpUntil([&] {
            return automation::CaptureWindow(subject.m_hWnd).At(0, 0) == StripColor(frame);
        });
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
    ButtonDialog::ParkMouse();
    EXPECT_TRUE(shows(0));
    automation::MoveMouseOver(subject.m_hWnd);
    EXPECT_TRUE(shows(2)) << "a second time";
    subject.DestroyWindow(); // and in another dialog, although this one was never left
    CButton again;
    again.Create("", WS_CHILD | WS_VISIBLE, CRect(10, 40, 60, 60), &dialog, kSubject);
    subject.SubclassWindow(again.UnsubclassWindow());
    ButtonDialog::ParkMouse();
    EXPECT_TRUE(shows(0));
}

} // namespace
