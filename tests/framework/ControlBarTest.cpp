// SPDX-License-Identifier: MIT
// Control bars: layout, docking, wrapping, resources, updates.
#include "BarFrame.h"

#include <gtest/gtest.h>

#include "automation/RealInput.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

namespace {

// Four buttons of 16 + 7 pixels, a separator of 8 behind the second.
constexpr int kButton = 23;
constexpr int kButtonHeight = 22;
constexpr int kGap = 8;
constexpr int kGripper = 7;
constexpr int kLength = 4 * kButton + kGap;

class ControlBarTest : public testing::Test {
protected:
    void SetUp() override {
        m_frame = BarFrame::Open();
        ASSERT_NE(m_frame->m_hWnd, nullptr);
    }
    void TearDown() override { m_frame->Close(); }

    CToolBar& Tools() { return m_frame->m_tools; }
    CRect ToolsPlace() { return m_frame->PlaceOf(Tools()); }

    BarFrame* m_frame = nullptr;
};

TEST_F(ControlBarTest, EverySideLeavesTheRestToThePane) {
    const CRect client = m_frame->Client();
    const int statusTop = static_cast<int>(m_frame->PlaceOf(m_frame->m_status).top);
    EXPECT_EQ(m_frame->PlaceOf(m_frame->m_status).bottom, client.bottom);
    const int lying = kButtonHeight;
    const int standing = 4 * kButtonHeight + kGap * 2 / 3;
    const struct {
        UINT id;
        CRect tools;
        CRect pane;
    } rows[] = {
        {AFX_IDW_DOCKBAR_TOP, CRect(0, 0, kGripper + kLength, lying),
         CRect(0, lying, client.right, statusTop)},
        {AFX_IDW_DOCKBAR_BOTTOM, CRect(0, statusTop - lying, kGripper + kLength, statusTop),
         CRect(0, 0, client.right, statusTop - lying)},
        {AFX_IDW_DOCKBAR_LEFT, CRect(0, 0, kButton, kGripper + standing),
         CRect(kButton, 0, client.right, statusTop)},
        {AFX_IDW_DOCKBAR_RIGHT, CRect(client.right - kButton, 0, client.right, kGripper + standing),
         CRect(0, 0, client.right - kButton, statusTop)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.id);
        m_frame->DockControlBar(&Tools(), row.id);
        EXPECT_EQ(ToolsPlace(), row.tools);
        EXPECT_EQ(m_frame->Pane(), row.pane);
        EXPECT_EQ(Tools().GetDockingFrame(), m_frame);
        EXPECT_FALSE(Tools().IsFloating());
        // A standing bar has each button in a row of its own.
        CRect first, last;
        Tools().GetItemRect(0, first);
        Tools().GetItemRect(4, last);
        const bool stands = row.tools.Height() > row.tools.Width();
        EXPECT_EQ(first.left == last.left, stands);
        EXPECT_EQ(first.top == last.top, !stands);
        EXPECT_LE(last.bottom, row.tools.Height());
    }
}

TEST_F(ControlBarTest, TheMouseDragsABarToEverySide) {
    const CRect client = m_frame->Client();
    const LONG middleX = client.right / 2, middleY = client.bottom / 2;
    const struct {
        CPoint drop;
        UINT site;
    } rows[] = {
        {CPoint(3, middleY), AFX_IDW_DOCKBAR_LEFT},
        {CPoint(middleX, m_frame->Pane().bottom - 3), AFX_IDW_DOCKBAR_BOTTOM},
        {CPoint(client.right - 3, middleY), AFX_IDW_DOCKBAR_RIGHT},
        {CPoint(middleX, 3), AFX_IDW_DOCKBAR_TOP},
        {CPoint(middleX, middleY), AFX_IDW_DOCKBAR_FLOAT},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.site);
        CRect bar;
        Tools().GetWindowRect(bar);
        CPoint drop = row.drop;
        m_frame->ClientToScreen(&drop);
        automation::MoveMouse(CPoint(bar.left + 3, bar.top + 3));
        automation::PressMouse();
        automation::MoveMouse(drop);
        automation::ReleaseMouse();
        PumpFor();
        EXPECT_EQ(Tools().m_pDockBar->GetDlgCtrlID(), static_cast<int>(row.site));
    }
    EXPECT_TRUE(Tools().IsFloating());
    EXPECT_EQ(Tools().m_pDockSite, m_frame);
    EXPECT_NE(Tools().GetDockingFrame(), m_frame);
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_TOOLBAR), &Tools());
}

TEST_F(ControlBarTest, EscapeLeavesABarWhereItWas) {
    const CRect before = ToolsPlace();
    CRect bar;
    Tools().GetWindowRect(bar);
    automation::MoveMouse(CPoint(bar.left + 3, bar.top + 3));
    automation::PressMouse();
    automation::MoveMouse(CPoint(bar.left + 100, bar.top + 100));
    automation::TypeKey(VK_ESCAPE);
    automation::ReleaseMouse();
    PumpFor();
    EXPECT_EQ(ToolsPlace(), before);
}

TEST_F(ControlBarTest, FloatingBarsHaveAFrameOfTheirSize) {
    Tools().SetBarStyle(Tools().GetBarStyle() | CBRS_SIZE_DYNAMIC);
    m_frame->FloatControlBar(&Tools(), CPoint(200, 180));
    CRect bar;
    Tools().GetWindowRect(bar);
    EXPECT_EQ(bar, CRect(CPoint(200, 180), CSize(kLength, kButtonHeight)));
    EXPECT_EQ(m_frame->Pane().top, 0);
    // Hidden and shown again, the bar is where it was.
    const CWnd* const mini = Tools().GetDockingFrame();
    m_frame->ShowControlBar(&Tools(), FALSE, FALSE);
    EXPECT_FALSE(mini->IsWindowVisible());
    m_frame->ShowControlBar(&Tools(), TRUE, FALSE);
    EXPECT_TRUE(Tools().IsWindowVisible());
    const HWND miniHandle = mini->m_hWnd;
    m_frame->DockControlBar(&Tools(), AFX_IDW_DOCKBAR_TOP);
    EXPECT_FALSE(::IsWindow(miniHandle));
    // It takes its frame along, and can be created once more.
    m_frame->FloatControlBar(&Tools(), CPoint(200, 180));
    const HWND second = Tools().GetDockingFrame()->m_hWnd;
    m_frame->ShowControlBar(&Tools(), FALSE, TRUE);
    Tools().DestroyWindow();
    PumpFor();
    EXPECT_FALSE(::IsWindow(second));
    EXPECT_TRUE(Tools().CreateEx(m_frame));
    EXPECT_TRUE(Tools().LoadToolBar(101));
    // What was put off for the first window is not done to the new one.
    AfxGetApp()->OnIdle(0);
    EXPECT_TRUE(Tools().IsWindowVisible());
}

/// Ends another bar when it is shown or hidden, and writes to the memory that becomes free.
class Ender : public CToolBar {
public:
    std::unique_ptr<CToolBar> m_other = std::make_unique<CToolBar>();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_WINDOWPOSCHANGED && m_other != nullptr) {
            m_other.reset();
            for (int i = 0; i < 200; ++i)
                m_written.emplace_back(32, BYTE{0xEE});
        }
        return CToolBar::WindowProc(message, wParam, lParam);
    }

private:
    std::vector<std::vector<BYTE>> m_written;
};

TEST_F(ControlBarTest, ABarMayEndAnotherWhenItIsShownLater) {
    Ender first;
    for (CToolBar* const bar : {static_cast<CToolBar*>(&first), first.m_other.get()})
        ASSERT_TRUE(bar->Create(m_frame, WS_CHILD | CBRS_TOP, AFX_IDW_CONTROLBAR_FIRST + 0x43));
    m_frame->ShowControlBar(first.m_other.get(), TRUE, TRUE);
    m_frame->ShowControlBar(&first, TRUE, TRUE);
    AfxGetApp()->OnIdle(0);
    EXPECT_EQ(first.m_other, nullptr);
    EXPECT_TRUE(first.IsWindowVisible());
}

TEST_F(ControlBarTest, AWishForLengthWrapsBetweenGroups) {
    CToolBar& tools = Tools();
    tools.SetBarStyle(CBRS_ALIGN_TOP | CBRS_SIZE_DYNAMIC);
    const LONG twoRows = 2 * kButtonHeight + kGap * 2 / 3;
    const struct {
        int length;
        DWORD mode;
        CSize size;
    } rows[] = {
        {kLength, LM_HORZ, CSize(kLength, kButtonHeight)},
        {kLength - 1, LM_HORZ, CSize(2 * kButton, twoRows)},
        {2 * kButton, LM_HORZ, CSize(2 * kButton, twoRows)},
        {2 * kButton - 1, LM_HORZ, CSize(kButton, 2 * kButtonHeight + twoRows)},
        {0, LM_HORZ, CSize(kButton, 2 * kButtonHeight + twoRows)},
        {twoRows, LM_HORZ | LM_LENGTHY, CSize(2 * kButton, twoRows)},
        {kButtonHeight, LM_HORZ | LM_LENGTHY, CSize(kLength, kButtonHeight)},
        {-1, LM_HORZ | LM_STRETCH, CSize(32767, kButtonHeight)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.length << ' ' << row.mode);
        EXPECT_EQ(tools.CalcDynamicLayout(row.length, row.mode), row.size);
    }
    // Committed, the buttons wrap at the separator; borders add to the size.
    tools.SetBorders(1, 3, 6, 4);
    EXPECT_EQ(tools.CalcDynamicLayout(kLength, LM_HORZ | LM_COMMIT),
              CSize(2 * kButton + 7, twoRows + 7));
    EXPECT_NE(tools.GetButtonStyle(2) & TBBS_WRAPPED, 0u);
    CRect third;
    tools.GetItemRect(3, third);
    EXPECT_EQ(third.TopLeft(), CPoint(0, kButtonHeight + kGap * 2 / 3));
    // A wider gap, as for a control in the bar, moves what comes after it.
    tools.SetButtonInfo(2, ID_SEPARATOR, TBBS_SEPARATOR, 50);
    EXPECT_EQ(tools.CalcDynamicLayout(1000, LM_HORZ | LM_COMMIT).cx, 4 * kButton + 50 + 7);
    tools.GetItemRect(3, third);
    EXPECT_EQ(third.left, 2 * kButton + 50);
}

/// Tells the layout, and nobody else, that the first button is not there.
class Shortened : public CToolBar {
public:
    bool m_laysOut = false;
    DWORD m_committed = 0;
    CSize CalcDynamicLayout(int length, DWORD mode) override {
        m_laysOut = true;
        const CSize size = CToolBar::CalcDynamicLayout(length, mode);
        m_laysOut = false;
        m_committed |= (mode & LM_COMMIT) != 0 ? mode : 0;
        return size;
    }

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = CToolBar::DefWindowProc(message, wParam, lParam);
        if (m_laysOut && message == TB_GETBUTTON && wParam == 0)
            reinterpret_cast<TBBUTTON*>(lParam)->fsState |= TBSTATE_HIDDEN;
        return result;
    }
};

TEST_F(ControlBarTest, ADerivedClassCanHideButtonsFromTheLayout) {
    Shortened bar;
    ASSERT_TRUE(bar.CreateEx(m_frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP,
                             CRect(0, 0, 0, 0), AFX_IDW_CONTROLBAR_FIRST + 0x42));
    ASSERT_TRUE(bar.LoadToolBar(101));
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE), CSize(kLength, kButtonHeight + 1));
    EXPECT_EQ(bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK),
              CSize(kLength - kButton, kButtonHeight + 1));
    EXPECT_EQ(bar.m_committed, 0u);
    bar.SetButtonStyle(0, TBBS_WRAPPED);
    bar.EnableDocking(CBRS_ALIGN_LEFT);
    m_frame->DockControlBar(&bar);
    EXPECT_EQ(bar.m_pDockBar->GetDlgCtrlID(), AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(bar.m_committed, static_cast<DWORD>(LM_VERTDOCK | LM_COMMIT));
    // What the layout was told has not got into the control.
    EXPECT_EQ(bar.GetButtonStyle(0), 0u);
    bar.EnableDocking(0);
    m_frame->DockControlBar(&bar);
    EXPECT_TRUE(bar.IsFloating());
}

TEST_F(ControlBarTest, BarsThatDoNotFitGoToFurtherRows) {
    CToolBar second;
    ASSERT_TRUE(second.CreateEx(m_frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP,
                                CRect(0, 0, 0, 0), AFX_IDW_CONTROLBAR_FIRST + 0x40));
    ASSERT_TRUE(second.LoadToolBar(101));
    second.EnableDocking(CBRS_ALIGN_TOP);
    CRect beside;
    Tools().GetWindowRect(beside);
    beside.OffsetRect(150, 0);
    m_frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, beside);
    EXPECT_EQ(m_frame->PlaceOf(second).TopLeft(), CPoint(150, 0));
    CRect window;
    m_frame->GetWindowRect(window);
    const int missing = m_frame->Client().Width() - (kGripper + 2 * kLength);
    m_frame->MoveWindow(50, 50, window.Width() - missing, window.Height());
    EXPECT_EQ(m_frame->PlaceOf(second).TopLeft(), CPoint(kGripper + kLength, 0));
    m_frame->MoveWindow(50, 50, window.Width() - missing - 1, window.Height());
    EXPECT_EQ(m_frame->PlaceOf(second).TopLeft(), CPoint(kGripper + kLength - 1, kButtonHeight));
    EXPECT_EQ(m_frame->Pane().top, 2 * kButtonHeight);
    second.DestroyWindow();
    m_frame->RecalcLayout();
    EXPECT_EQ(m_frame->Pane().top, kButtonHeight);
}

TEST_F(ControlBarTest, DamagedResourcesAreRefused) {
    CToolBar bar;
    ASSERT_TRUE(bar.Create(m_frame, WS_CHILD, AFX_IDW_CONTROLBAR_FIRST + 0x41));
    ASSERT_TRUE(bar.LoadToolBar(101));
    for (const UINT id : {100u, 111u, 112u, 113u, 114u, 115u}) {
        EXPECT_FALSE(bar.LoadToolBar(id)) << id;
        EXPECT_EQ(bar.GetCount(), 5) << id;
    }
    EXPECT_FALSE(bar.LoadToolBar(116));
    EXPECT_FALSE(bar.LoadBitmap(111));
}

TEST_F(ControlBarTest, IdleTimeUpdatesButtonsAndPanes) {
    AfxGetApp()->OnIdle(0);
    const auto& tools = Tools();
    EXPECT_EQ(tools.GetButtonStyle(0) & TBBS_DISABLED, 0u); // it has a handler
    EXPECT_NE(tools.GetButtonStyle(1) & TBBS_DISABLED, 0u); // nobody handles it
    EXPECT_EQ(tools.GetButtonStyle(3), static_cast<UINT>(TBBS_CHECKBOX));
    m_frame->m_checked = true;
    m_frame->m_enabled = false;
    AfxGetApp()->OnIdle(0);
    EXPECT_EQ(tools.GetButtonStyle(3),
              static_cast<UINT>(TBBS_CHECKBOX | TBBS_CHECKED | TBBS_DISABLED));
    // A frame beside the main window is updated, too.
    AfxGetApp()->m_pMainWnd = nullptr;
    m_frame->m_checked = false;
    AfxGetApp()->OnIdle(0);
    EXPECT_EQ(tools.GetButtonStyle(3) & TBBS_CHECKED, 0u);
    const bool caps = (::GetKeyState(VK_CAPITAL) & 1) != 0;
    EXPECT_EQ((m_frame->m_status.GetPaneStyle(1) & SBPS_DISABLED) == 0, caps);

    m_frame->m_status.SetPaneInfo(0, ID_SEPARATOR, SBPS_STRETCH, 50);
    CRect stretch, caption, last;
    m_frame->m_status.GetItemRect(0, stretch);
    m_frame->m_status.GetItemRect(1, caption);
    m_frame->m_status.GetItemRect(2, last);
    EXPECT_LT(caption.Width(), stretch.Width());
    EXPECT_EQ(last.right, m_frame->Client().right);
    EXPECT_EQ(m_frame->m_status.GetPaneText(2), "NUM");
    for (const BOOL update : {FALSE, TRUE}) {
        m_frame->m_status.SetPaneText(0, "new", update);
        char shown[80] = "";
        m_frame->m_status.SendMessage(SB_GETTEXT, 0, reinterpret_cast<LPARAM>(shown));
        EXPECT_EQ(::lstrcmp(shown, "new") == 0, update != FALSE) << shown;
    }
}

TEST_F(ControlBarTest, TheButtonUnderTheMouseHasATip) {
    Tools().SetBarStyle(Tools().GetBarStyle() | CBRS_TOOLTIPS | CBRS_FLYBY);
    CRect rect;
    Tools().GetItemRect(0, rect);
    Tools().ClientToScreen(rect);
    automation::MoveMouse(rect.CenterPoint());
    const auto shown = [this](const char* text) {
        return PumpUntil([this, text] { return m_frame->m_status.GetPaneText(0) == text; });
    };
    EXPECT_TRUE(shown("What the command does"));
    CString tip;
    EXPECT_TRUE(PumpUntil([&tip] {
        CWnd* const window = CWnd::FromHandle(::FindWindow(TOOLTIPS_CLASS, nullptr));
        if (window != nullptr && window->IsWindowVisible())
            window->GetWindowText(tip);
        return tip == "Tip";
    })) << tip;
    automation::MoveMouse(CPoint(0, 0));
    EXPECT_TRUE(shown("Ready"));
    automation::MoveMouse(rect.CenterPoint());
    EXPECT_TRUE(shown("What the command does"));
    automation::PressMouse(); // ends the tip
    EXPECT_TRUE(shown("Ready"));
    automation::ReleaseMouse();
    automation::MoveMouse(CPoint(0, 0));
    PumpFor(50);
}

TEST(ControlBarEnd, NothingIsLeftBehind) {
    BarFrame::Open()->Close(); // the window classes stay
    GdiLedger ledger;
    BarFrame* const frame = BarFrame::Open();
    frame->FloatControlBar(&frame->m_tools, CPoint(200, 180));
    frame->RedrawWindow();
    frame->Close();
    EXPECT_EQ(ledger.Unreturned(), "");
    EXPECT_EQ(ledger.Faults(), "");
}

} // namespace
