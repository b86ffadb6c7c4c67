// SPDX-License-Identifier: MIT
// Skinned menus in use: by mouse and keyboard, changed while open, opened over and over.
#include <afxext.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "automation/SystemColors.h"
#include "menus/MenuState.h"
#include "tests/menus/MenuTesting.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

namespace {

constexpr UINT kFirst = TestMenu::kFirst;

POINT MiddleOf(HWND owner, HMENU menu, UINT position) {
    RECT item = {};
    ::GetMenuItemRect(owner, menu, position, &item);
    return {(item.left + item.right) / 2, (item.top + item.bottom) / 2};
}

void Click(POINT point) {
    automation::MoveMouse(point);
    automation::PressMouse();
    automation::ReleaseMouse();
}

constexpr WORD kClickFirst = VK_LBUTTON; ///< of the open popup
constexpr WORD kClickLast = VK_RBUTTON;

/// Opens a menu by Alt and the first key (or by a click on the bar's first item), then types the rest.
void TypeInto(const MenuWindow& window, const std::vector<WORD>& keys) {
    if (keys[0] == kClickFirst)
        Click(MiddleOf(window, window.Bar(), 0));
    else
        automation::TypeKey(keys[0], VK_MENU);
    EXPECT_NE(WaitForPopup(), nullptr);
    for (std::size_t i = 1; i < keys.size(); ++i) {
        const HMENU file = window.File();
        if (keys[i] == kClickFirst || keys[i] == kClickLast)
            Click(
                MiddleOf(window, file, keys[i] == kClickFirst ? 0 : ::GetMenuItemCount(file) - 1));
        else
            automation::TypeKey(keys[i]);
        ::Sleep(50);
    }
    EXPECT_TRUE(WaitForNoPopup());
}

TEST(MenuUse, KeysAndMouseChooseAsEver) {
    std::vector<std::string> tall(500, "Item"); // taller than the screen
    tall.back() = "&Last";
    struct Case {
        std::vector<WORD> keys;
        UINT chosen; ///< 0: nothing
        std::vector<std::string> lines = {"&New\tCtrl+N", "Save && E&xit", "-", "&Disabled"};
    };
    for (const Case& c : {
             Case{{'F', 'N'}, kFirst},
             Case{{'F', 'X'}, kFirst + 1},
             Case{{'F', VK_DOWN, VK_RETURN}, kFirst + 1},
             Case{{'F', VK_RIGHT, VK_RETURN}, 900},
             Case{{'H', 'A'}, 900},
             Case{{kClickFirst, kClickFirst}, kFirst},
             Case{{'F', kClickLast, VK_ESCAPE, VK_ESCAPE}, 0},
             Case{{'F', 'L'}, kFirst + 499, tall},
             Case{{'F', VK_UP, VK_UP, VK_RETURN}, kFirst + 498, tall},
         }) {
        MenuWindow window(c.lines);
        ::EnableMenuItem(window.File(), kFirst + 3, MF_GRAYED | MF_DISABLED);
        EXPECT_TRUE(WhileMenusRun([&] { TypeInto(window, c.keys); }));
        PumpFor(50);
        EXPECT_EQ(window.m_commands, c.chosen == 0 ? std::vector<UINT>() : std::vector{c.chosen});
    }
}

TEST(MenuUse, ChangesShowWhileAMenuIsOpen) {
    MenuWindow window({"&One", "&Two"});
    EXPECT_TRUE(WhileMenusRun([&] {
        automation::TypeKey('F', VK_MENU);
        const HWND popup = WaitForPopup();
        const automation::Picture before = automation::CaptureWindow(popup);
        ::CheckMenuItem(window.File(), kFirst + 1, MF_CHECKED);
        const auto repaint = [&] {
            ::RedrawWindow(popup, nullptr, nullptr, RDW_INVALIDATE);
            return automation::WaitUntilSteady(popup);
        };
        EXPECT_NE(repaint(), before);
        ::CheckMenuItem(window.File(), kFirst + 1, MF_UNCHECKED);
        EXPECT_EQ(repaint(), before);
        {
            const automation::SystemColorGuard warm(automation::FindColorScheme("warm")->colors);
            const automation::Picture now = repaint();
            EXPECT_EQ(now.At(0, 5), ::GetSysColor(COLOR_3DDKSHADOW)) << "the frame";
            EXPECT_EQ(now.At(5, 3), ::GetSysColor(COLOR_HIGHLIGHT)) << "the selected item's";
        }
        ::DeleteMenu(window.File(), kFirst, MF_BYCOMMAND);
        ::AppendMenuA(window.File(), MF_STRING, kFirst + 5, "Added");
        repaint();
        CloseMenus();
    }));
    window.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(window.File())); // opened again
    EXPECT_TRUE(IsOwnerDrawn(window.File(), 1));
}

TEST(MenuUse, TwoThousandOpeningsLeaveNothingBehind) {
    MenuWindow window({"&One\tCtrl+O", "-", "&Two"});
    TestMenu popup({"&Three", "&Four"}, 500);
    ::AppendMenuA(window.File(), MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Release()), "Sub");
    window.m_onMenuIdle = [] { ::EndMenu(); };
    const auto open = [&](int times) {
        for (int i = 0; i < times; ++i)
            ::TrackPopupMenu(window.File(), TPM_RETURNCMD, 200, 200, 0, window.m_hWnd, nullptr);
    };
    open(5); // what is kept is in place by now
    const GdiLedger ledger;
    open(2000);
    EXPECT_GT(ledger.Made(), 2000) << "they were painted";
    EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
    HWND left = nullptr;
    while ((left = ::FindWindowExA(nullptr, left, "#32768", nullptr)) != nullptr) {
        EXPECT_FALSE(IsSubclassed(left));
        EXPECT_EQ(CMenuXP::FindMenuWindow(left, true), nullptr);
    }
}

TEST(MenuUse, AWindowMayGoWhileItsMenuIsOpen) {
    for (int i = 0; i < 20; ++i) {
        MenuWindow window({"&One"});
        std::vector<HWND> popups;
        window.m_onMenuIdle = [&] {
            window.m_onMenuIdle = nullptr;
            popups = VisiblePopups();
            window.DestroyWindow();
            ::EndMenu();
            ::PostThreadMessageA(::GetCurrentThreadId(), WM_NULL, 0, 0); // the loop looks up
        };
        ::TrackPopupMenu(window.File(), TPM_RETURNCMD, 200, 200, 0, window.m_hWnd, nullptr);
        ASSERT_EQ(popups.size(), 1U);
        EXPECT_EQ(CMenuXP::FindMenuWindow(popups[0], true), nullptr);
        EXPECT_FALSE(IsSubclassed(popups[0]));
    }
}

/// A skinned window of any base, on the stack.
template <class Base>
class Skinned : public CSkinnedMenus<Base> {
public:
    ~Skinned() override { this->DestroyWindow(); }
    void PostNcDestroy() override {}

    std::function<void()> m_onPopup; ///< called before a popup opens
    std::vector<WPARAM> m_commands;  ///< the application's and the system's

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITMENUPOPUP && m_onPopup)
            m_onPopup();
        if (message == WM_COMMAND || message == WM_SYSCOMMAND)
            m_commands.push_back(wParam);
        return CSkinnedMenus<Base>::WindowProc(message, wParam, lParam);
    }
};

HMENU NewBar() {
    const HMENU bar = ::CreateMenu();
    ::AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(TestMenu({"&New"}).Release()), "&File");
    return bar;
}

TEST(MenuUse, BarsOfDialogsAndFramesAreSkinnedWhenTheyAreSet) {
    DialogTemplate dialogTemplate("Dialog", 120, 60, WS_POPUP | WS_VISIBLE | WS_CAPTION);
    Skinned<CDialog> dialog;
    dialog.CreateIndirect(dialogTemplate.Get(), nullptr);
    Skinned<CFrameWnd> frame;
    frame.Create(nullptr, "frame");
    Skinned<CMDIFrameWnd> mdiFrame;
    mdiFrame.Create(nullptr, "MDI frame");
    for (CWnd* const window :
         {static_cast<CWnd*>(&dialog), static_cast<CWnd*>(&frame), static_cast<CWnd*>(&mdiFrame)}) {
        ::SetMenu(*window, NewBar());
        EXPECT_TRUE(IsOwnerDrawn(::GetMenu(*window)));
    }
    CMenu other; // as an MDI child brings along
    other.Attach(NewBar());
    CMenu* const former = mdiFrame.MDISetMenu(&other, nullptr);
    mdiFrame.DrawMenuBar();
    EXPECT_TRUE(IsOwnerDrawn(::GetMenu(mdiFrame)));
    mdiFrame.MDISetMenu(former, nullptr);
}

TEST(MenuUse, AMaximisedMdiChildHasTheSystemsMenuInASkinnedBar) {
    Skinned<CMDIFrameWnd> frame;
    frame.m_bAutoMenuEnable = FALSE;
    frame.Create(nullptr, "MDI", WS_OVERLAPPEDWINDOW | WS_VISIBLE, {60, 60, 460, 360}, nullptr,
                 nullptr, WS_EX_TOPMOST);
    const HMENU bar = NewBar();
    ::SetMenu(frame, bar);
    auto* const child = new CMDIChildWnd; // deletes itself with its window
    ASSERT_TRUE(child->Create(nullptr, "child", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                              CFrameWnd::rectDefault, &frame));
    ::SetForegroundWindow(frame);
    frame.MDIMaximize(child);
    PumpFor();
    ASSERT_EQ(::GetSubMenu(bar, 0), ::GetSystemMenu(*child, FALSE)) << "it hangs in the bar";
    RECT end = {};
    ::GetMenuItemRect(frame, bar, 1, &end);
    const automation::Picture gap =
        automation::CaptureScreen({end.right, end.top, end.right + 99, end.bottom});
    EXPECT_EQ(std::count(gap.pixels.begin(), gap.pixels.end(), ::GetSysColor(COLOR_BTNFACE)),
              static_cast<int>(gap.pixels.size()))
        << "between the items and the child's buttons";

    for (const UINT position : {1U, 0U}) {
        const bool skinned = position == 1;
        tint::GetMenuState().openBarItem = {1, 2, 3, 4};
        EXPECT_TRUE(WhileMenusRun([&] {
            Click(MiddleOf(frame, bar, position));
            const HWND popup = WaitForPopup();
            EXPECT_TRUE(IsSubclassed(popup)) << "its frame is flat";
            EXPECT_EQ(IsOwnerDrawn(::GetSubMenu(bar, static_cast<int>(position))), skinned);
            EXPECT_EQ(::IsRectEmpty(&tint::GetMenuState().openBarItem) == FALSE, skinned);
            automation::TypeKey(skinned ? 'N' : 'R');
            EXPECT_TRUE(WaitForNoPopup());
        }));
        const WPARAM chosen = skinned ? WPARAM{kFirst} : WPARAM{SC_RESTORE};
        EXPECT_TRUE(PumpUntil([&] { return frame.m_commands.back() == chosen; })) << chosen;
    }
}

TEST(MenuUse, AWindowMayGoBeforeItsPopupOpens) {
    Skinned<CFrameWnd> frame;
    frame.Create(nullptr, "frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const TestMenu menu({"&One"});
    const HWND gone = frame;
    frame.m_onPopup = [&] { frame.DestroyWindow(); };
    ::SendMessageA(gone, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(HMENU{menu}), 0);
    EXPECT_EQ(::GetPropA(gone, "XPWndProp_MenuXP"), nullptr);
    EXPECT_FALSE(IsOwnerDrawn(menu));
}

} // namespace
