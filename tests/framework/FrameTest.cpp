// SPDX-License-Identifier: MIT
// Frame windows: commands, menus, message line, accelerators, MDI.
#include "BarFrame.h"

#include <gtest/gtest.h>

#include "automation/RealInput.h"
#include "tests/support/Pump.h"

BEGIN_MESSAGE_MAP(BarFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_COMMAND(201, &BarFrame::OnHandled)
    ON_COMMAND(203, &BarFrame::OnHandled)
    ON_UPDATE_COMMAND_UI(203, &BarFrame::OnUpdateChecked)
END_MESSAGE_MAP()

namespace {

class FrameTest : public testing::Test {
protected:
    void SetUp() override {
        m_frame = BarFrame::Open();
        ASSERT_NE(m_frame->m_hWnd, nullptr);
    }
    void TearDown() override { m_frame->Close(); }

    CString Prompt() const {
        CString text;
        m_frame->m_status.GetWindowText(text);
        return text;
    }
    UINT ItemState(UINT id) const { return m_frame->GetMenu()->GetMenuState(id, MF_BYCOMMAND); }

    BarFrame* m_frame = nullptr;
};

TEST_F(FrameTest, AnOpeningMenuIsUpdated) {
    m_frame->m_checked = true;
    CMenu* const popup = m_frame->GetMenu()->GetSubMenu(0);
    const auto open = [&] {
        m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), 0);
    };
    open();
    EXPECT_EQ(ItemState(201), static_cast<UINT>(MF_ENABLED));
    EXPECT_NE(ItemState(202) & MF_GRAYED, 0u);
    EXPECT_NE(ItemState(203) & MF_CHECKED, 0u);
    EXPECT_NE(ItemState(ID_VIEW_TOOLBAR) & MF_CHECKED, 0u);
    m_frame->SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    EXPECT_FALSE(m_frame->m_tools.IsWindowVisible());
    EXPECT_EQ(m_frame->Pane().top, 0);
    popup->EnableMenuItem(202, MF_BYCOMMAND | MF_ENABLED);
    m_frame->m_bAutoMenuEnable = FALSE;
    open();
    EXPECT_EQ(ItemState(202), static_cast<UINT>(MF_ENABLED));
    EXPECT_EQ(ItemState(ID_VIEW_TOOLBAR) & MF_CHECKED, 0u);
    // Shown later, in idle time.
    m_frame->ShowControlBar(&m_frame->m_tools, TRUE, TRUE);
    EXPECT_FALSE(m_frame->m_tools.IsWindowVisible());
    AfxGetApp()->OnIdle(0);
    EXPECT_TRUE(m_frame->m_tools.IsWindowVisible());
    EXPECT_GT(m_frame->Pane().top, 0);
}

TEST_F(FrameTest, TheMessageLineTellsOfTheChosenItem) {
    PumpFor();
    EXPECT_EQ(Prompt(), "Ready");
    const auto select = [this](UINT id, UINT flags) {
        m_frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(id, flags), 1);
    };
    select(201, MF_HILITE);
    EXPECT_EQ(Prompt(), "What the command does");
    select(0, MF_SEPARATOR);
    EXPECT_EQ(Prompt(), "");
    m_frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    EXPECT_EQ(Prompt(), "Ready");
    m_frame->SetMessageText("Own text");
    EXPECT_EQ(Prompt(), "Own text");
    EXPECT_EQ(m_frame->GetTitle(), "Frame title");
}

TEST_F(FrameTest, AcceleratorsAndButtonsGiveCommands) {
    m_frame->GetDlgItem(AFX_IDW_PANE_FIRST)->SetFocus();
    automation::TypeKey(VK_F9);
    EXPECT_TRUE(PumpUntil([this] { return m_frame->m_handled == 1; }));
    CRect button;
    m_frame->m_tools.GetItemRect(0, button);
    m_frame->m_tools.ClientToScreen(button);
    automation::MoveMouse(button.CenterPoint());
    automation::PressMouse();
    automation::ReleaseMouse();
    EXPECT_TRUE(PumpUntil([this] { return m_frame->m_handled == 2; }));
    // Also from a mini frame, and from a control in the bar.
    m_frame->FloatControlBar(&m_frame->m_tools, CPoint(200, 200));
    CButton inside;
    ASSERT_TRUE(inside.Create("", WS_CHILD, CRect(0, 0, 5, 5), &m_frame->m_tools, 203));
    m_frame->m_tools.SendMessage(WM_COMMAND, MAKEWPARAM(203, BN_CLICKED),
                                 reinterpret_cast<LPARAM>(inside.m_hWnd));
    EXPECT_EQ(m_frame->m_handled, 3);
    EXPECT_EQ(m_frame->m_tools.GetParentFrame()->GetParent(), m_frame);
}

TEST_F(FrameTest, ModalStatesNestAndEnableWhatTheyDisabled) {
    m_frame->FloatControlBar(&m_frame->m_tools, CPoint(200, 200));
    CWnd* const mini = m_frame->m_tools.GetParentFrame();
    m_frame->BeginModalState();
    m_frame->BeginModalState();
    EXPECT_FALSE(m_frame->IsWindowEnabled());
    EXPECT_FALSE(mini->IsWindowEnabled());
    m_frame->EndModalState();
    EXPECT_TRUE(m_frame->InModalState());
    m_frame->EndModalState();
    EXPECT_TRUE(m_frame->IsWindowEnabled());
    EXPECT_TRUE(mini->IsWindowEnabled());
    mini->EnableWindow(FALSE);
    m_frame->BeginModalState();
    m_frame->EndModalState();
    EXPECT_FALSE(mini->IsWindowEnabled()) << "it was disabled before";
}

/// Puts an item before that of a command when it is updated.
class GrowingMenu : public CFrameWnd {
public:
    int m_updates = 0;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (id != 203 || code != CN_UPDATE_COMMAND_UI)
            return CFrameWnd::OnCmdMsg(id, code, extra, info);
        const auto* const item = static_cast<CCmdUI*>(extra);
        if (++m_updates == 1)
            item->m_pMenu->InsertMenu(item->m_nIndex, MF_BYPOSITION, 210, "New");
        return TRUE;
    }
};

TEST(Frame, AnItemIsUpdatedOnceThoughItsMenuGrows) {
    auto* const frame = std::make_unique<GrowingMenu>().release();
    ASSERT_TRUE(frame->LoadFrame(102, WS_POPUP));
    const HMENU popup = frame->GetMenu()->GetSubMenu(0)->m_hMenu;
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup), 0);
    EXPECT_EQ(frame->m_updates, 1);
    frame->DestroyWindow();
}

// ---- MDI ----------------------------------------------------------------------------------------

/// Counts the commands it handles and itself.
class Child : public CMDIChildWnd {
    DECLARE_DYNCREATE(Child)
public:
    static int alive;
    int m_handled = 0;
    Child() { ++alive; }
    ~Child() override { --alive; }
    void OnHandled() { ++m_handled; }
    DECLARE_MESSAGE_MAP()
};
int Child::alive = 0;
IMPLEMENT_DYNCREATE(Child, CMDIChildWnd)
BEGIN_MESSAGE_MAP(Child, CMDIChildWnd)
    ON_COMMAND(201, &Child::OnHandled)
END_MESSAGE_MAP()

class MdiFrame : public CMDIFrameWnd {
public:
    int m_handled = 0;
    void OnHandled() { ++m_handled; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(MdiFrame, CMDIFrameWnd)
    ON_COMMAND(201, &MdiFrame::OnHandled)
END_MESSAGE_MAP()

TEST(Mdi, TheActiveChildBringsItsMenuAndComesFirst) {
    auto* const frame = std::make_unique<MdiFrame>().release();
    ASSERT_TRUE(frame->LoadFrame(102, WS_OVERLAPPEDWINDOW));
    AfxGetApp()->m_pMainWnd = frame;
    frame->ShowWindow(SW_SHOW);
    CMenu own;
    own.Attach(frame->GetMenu()->m_hMenu);
    EXPECT_EQ(frame->GetActiveFrame(), frame);
    CMenu childMenu;
    ASSERT_TRUE(childMenu.LoadMenu(103));
    auto* const first =
        static_cast<Child*>(frame->CreateNewChild(RUNTIME_CLASS(Child), 102, childMenu.m_hMenu));
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(frame->GetMenu()->m_hMenu, childMenu.m_hMenu);
    auto* const second = static_cast<Child*>(frame->CreateNewChild(RUNTIME_CLASS(Child), 102));
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(frame->MDIGetActive(), second);
    EXPECT_EQ(second->GetMDIFrame(), frame);
    EXPECT_EQ(frame->GetMenu()->m_hMenu, own.m_hMenu);
    first->MDIActivate();
    EXPECT_EQ(frame->GetActiveFrame(), first);
    EXPECT_EQ(frame->GetMenu()->m_hMenu, childMenu.m_hMenu);
    frame->SendMessage(WM_COMMAND, 201);
    EXPECT_EQ(first->m_handled, 1);
    EXPECT_EQ(second->m_handled, 0);
    BOOL maximized = FALSE;
    frame->MDIMaximize(first);
    frame->MDIGetActive(&maximized);
    EXPECT_TRUE(maximized);
    frame->MDIRestore(first);
    frame->MDITile();
    CRect one, other;
    first->GetWindowRect(one);
    second->GetWindowRect(other);
    EXPECT_TRUE(one.top == other.top && one.left != other.left) << "side by side";
    // The standard commands, and the name of each child in the menu.
    frame->MDINext();
    EXPECT_EQ(frame->MDIGetActive(), second);
    BYTE keys[256] = {};
    keys[VK_CONTROL] = 0x80;
    ::SetKeyboardState(keys);
    MSG next = {second->m_hWnd, WM_KEYDOWN, VK_F6, 1, 0, {}};
    EXPECT_TRUE(frame->PreTranslateMessage(&next));
    keys[VK_CONTROL] = 0;
    ::SetKeyboardState(keys);
    EXPECT_EQ(frame->MDIGetActive(), first);
    EXPECT_EQ(frame->GetWindowMenuPopup(own.m_hMenu), own.GetSubMenu(1)->m_hMenu);
    EXPECT_GE(own.GetSubMenu(1)->GetMenuItemCount(), 4u);
    second->DestroyWindow();
    EXPECT_EQ(frame->MDIGetActive(), first);
    first->SendMessage(WM_CLOSE);
    EXPECT_EQ(Child::alive, 0);
    EXPECT_EQ(frame->GetMenu()->m_hMenu, own.m_hMenu);
    // A child's accelerators are for the frame, too.
    auto* const plain = std::make_unique<CMDIChildWnd>().release();
    ASSERT_TRUE(plain->LoadFrame(102));
    MSG key = {plain->m_hWnd, WM_KEYDOWN, VK_F9, 1, 0, {}};
    EXPECT_TRUE(plain->PreTranslateMessage(&key));
    EXPECT_EQ(frame->m_handled, 1);
    plain->DestroyWindow();
    own.Detach();
    AfxGetApp()->m_pMainWnd = nullptr;
    frame->DestroyWindow();
}

} // namespace
