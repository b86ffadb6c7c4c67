// SPDX-License-Identifier: MIT
#include "menus/StatusBarXP.h"

#include <afxcmn.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "automation/Picture.h"
#include "automation/SystemColors.h"
#include "draw/Skin.h"
#include "tests/menus/MenuTesting.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

using automation::Picture;

namespace {

constexpr UINT kPanes[] = {ID_SEPARATOR, 201, 202};
constexpr int kCount = 3;

/// A frame window with a status bar of class Bar.  Its window deletes it.
template <class Bar>
class StatusFrame : public CFrameWnd {
public:
    static StatusFrame* Open() {
        auto* const frame = OpenBarFrame<StatusFrame>(700);
        frame->m_bar.Create(frame);
        EXPECT_TRUE(frame->m_bar.SetIndicators(kPanes, kCount));
        frame->RecalcLayout();
        PumpFor();
        return frame;
    }

    Picture Show() const { return automation::CaptureWindow(m_bar.m_hWnd); }

    Bar m_bar;
};

using Frame = StatusFrame<CStatusBarXP>;

/// Whether each pane has a line of the shadow's colour around it, and only that.
testing::AssertionResult HasFlatFrames(const Frame& frame) {
    const Picture shown = frame.Show();
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    for (int pane = 0; pane < kCount; ++pane) {
        CRect r;
        frame.m_bar.GetItemRect(pane, r);
        for (LONG y = r.top; y < r.bottom; ++y)
            for (LONG x = r.left; x < r.right; ++x) {
                const LONG inset =
                    std::min({x - r.left, y - r.top, r.right - 1 - x, r.bottom - 1 - y});
                if (inset < 2 && (shown.At(x, y) == shadow) != (inset == 0))
                    return testing::AssertionFailure() << "pane " << pane << " at " << x << ", "
                                                       << y << std::hex << ": " << shown.At(x, y);
            }
    }
    return testing::AssertionSuccess();
}

TEST(StatusBarXP, FramesItsPanesInEveryScheme) {
    Frame* const frame = Frame::Open();
    for (const automation::ColorScheme& scheme : automation::ColorSchemes()) {
        const automation::SystemColorGuard colors(scheme.colors);
        frame->m_bar.Invalidate();
        PumpUntil([&] { return static_cast<bool>(HasFlatFrames(*frame)); });
        EXPECT_TRUE(HasFlatFrames(*frame)) << scheme.name;
    }
    frame->m_bar.Invalidate();
    const GdiLedger ledger;
    frame->m_bar.UpdateWindow();
    EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
    frame->DestroyWindow();
}

TEST(StatusBarXP, TakesThePanesBordersAwayWithItsSkin) {
    auto* const plain = StatusFrame<CStatusBar>::Open();
    const Picture system = plain->Show();
    plain->DestroyWindow();

    Frame* const frame = Frame::Open();
    const Picture skinned = frame->Show();
    EXPECT_GE(skinned.height, 20);
    EXPECT_EQ(frame->m_bar.GetPaneStyle(1), UINT{SBPS_NOBORDERS});
    constexpr UINT missing[] = {ID_SEPARATOR, 299};
    EXPECT_FALSE(frame->m_bar.SetIndicators(missing, 2));
    EXPECT_EQ(frame->m_bar.GetCount(), kCount) << "as they were";

    tint::EnableSkin(frame->m_bar, false);
    EXPECT_TRUE(PumpUntil([&] { return frame->Show() == system; }));
    EXPECT_TRUE(frame->m_bar.SetIndicators(kPanes, kCount));
    EXPECT_EQ(frame->m_bar.GetPaneStyle(1), 0U) << "without the skin";
    tint::EnableSkin(frame->m_bar, true);
    EXPECT_TRUE(PumpUntil([&] { return frame->Show() == skinned; }));
    frame->DestroyWindow();
}

} // namespace
