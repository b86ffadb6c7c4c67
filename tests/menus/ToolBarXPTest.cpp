// SPDX-License-Identifier: MIT
#include "menus/ToolBarXP.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "automation/RealInput.h"
#include "automation/SystemColors.h"
#include "draw/Skin.h"
#include "tests/menus/MenuRules.h"
#include "tests/menus/MenuTesting.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

using automation::Picture;

namespace {

// The buttons of the resource, by index and command: plain, checked, a separator, split, disabled.
enum Index { kPlain, kChecked, kSeparator, kSplit, kDisabled, kCount };
constexpr UINT kSplitCommand = 203;
constexpr UINT kControl = 300;
constexpr UINT kOpenMenu = WM_APP;
constexpr UINT kEndToolBar = WM_APP + 1;
constexpr COLORREF kInk =
    RGB(10, 60, 20); ///< of the images: their left half, the right one is clear

/// A frame window with a toolbar of class Bar, docked at the top.  Its window deletes it.
template <class Bar>
class ToolFrame : public CFrameWnd {
public:
    static ToolFrame* Open() {
        auto* const frame = OpenBarFrame<ToolFrame>(320);
        frame->SetUp();
        ::SetForegroundWindow(frame->m_hWnd);
        ParkMouse();
        return frame;
    }
    static void ParkMouse() {
        automation::MoveMouse({700, 500});
        PumpFor(30);
    }
    ~ToolFrame() override {
        automation::ReleaseMouse();
        ParkMouse();
    }

    Bar& ToolBar() { return *m_bar; }
    CRect ButtonRect(int index) {
        CRect rect;
        m_bar->SendMessage(TB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    void MoveMouseTo(CPoint client) {
        m_bar->ClientToScreen(&client);
        automation::MoveMouse(client);
    }
    Picture Show() {
        CRect rect;
        m_bar->GetClientRect(rect);
        m_bar->ClientToScreen(rect);
        return automation::CaptureScreen(rect);
    }

    std::unique_ptr<Bar> m_bar = std::make_unique<Bar>();
    TestMenu m_menu{{"&One", "&Two"}, 400};
    std::vector<UINT> m_commands;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && lParam == 0) {
            m_commands.push_back(LOWORD(wParam));
            if (LOWORD(wParam) == 0x10000 - kSplitCommand)
                return OpenMenu();
        } else if (message == kOpenMenu) {
            return OpenMenu();
        } else if (message == kEndToolBar) {
            m_bar.reset();
        }
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }

private:
    BOOL OpenMenu() {
        if constexpr (std::is_same_v<Bar, CToolBarXP>)
            m_bar->TrackDropDownMenu(kSplitCommand, m_menu);
        return TRUE;
    }

    void SetUp() {
        m_bAutoMenuEnable = FALSE;
        m_bar->CreateEx(this, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_SIZE_DYNAMIC);
        ASSERT_TRUE(m_bar->LoadToolBar(101));
        if constexpr (!std::is_same_v<Bar, CToolBarXP>) { // the skinned one does it by itself
            m_bar->SendMessage(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS);
            m_bar->SetBorders(1, 3, 6, 4);
        }
        for (int i = 0; i < kCount; ++i) {
            if (i == kSeparator)
                continue;
            const UINT style = i == kSplit      ? TBSTYLE_DROPDOWN
                               : i == kChecked  ? TBBS_CHECKBOX | TBBS_CHECKED
                               : i == kDisabled ? TBBS_DISABLED
                                                : 0;
            m_bar->SetButtonStyle(i, style);
        }
        m_bar->EnableDocking(CBRS_ALIGN_ANY);
        EnableDocking(CBRS_ALIGN_ANY);
        DockControlBar(m_bar.get());
        m_bar->UpdateWindow();
    }
};

using Frame = ToolFrame<CToolBarXP>;

// --- Painting -----------------------------------------------------------------------------------

enum Look { kResting = 0, kHot = 1, kPressed = 2, kOpen = 4 };

/// What the bar is to show, put together from rectangles by the rule.
struct Expected : Picture {
    explicit Expected(Frame& frame) {
        CRect client;
        frame.ToolBar().GetClientRect(client);
        width = client.right;
        height = client.bottom;
        pixels.assign(static_cast<std::size_t>(width) * height, Face(20));
    }
    void Fill(LONG left, LONG top, LONG right, LONG bottom, COLORREF color) {
        for (LONG y = std::max(top, 0L); y < std::min<LONG>(bottom, height); ++y)
            for (LONG x = std::max(left, 0L); x < std::min<LONG>(right, width); ++x)
                pixels[static_cast<std::size_t>(y) * width + x] = color;
    }
    void Box(const CRect& r, LONG left, LONG right, COLORREF face) {
        Fill(left, r.top, right, r.bottom, System(COLOR_HIGHLIGHT));
        Fill(left + 1, r.top + 1, right - 1, r.bottom - 1, face);
    }
    void Button(const CRect& r, int index, int look) {
        const bool enabled = index != kDisabled;
        const bool open = (look & kOpen) != 0;
        const bool hot = enabled && look != kResting;
        const bool pressed = (look & kPressed) != 0;
        if (open) {
            const COLORREF dark = System(COLOR_3DDKSHADOW);
            Fill(r.left, r.top, r.left + 1, r.bottom + 1, dark);
            Fill(r.left, r.top, r.right, r.top + 1, dark);
            Fill(r.right - 1, r.top, r.right, r.bottom, dark);
            Fill(r.left, r.bottom - 1, r.right, r.bottom, dark);
        } else if (hot || index == kChecked) {
            const COLORREF face = pressed || (hot && index == kChecked) ? Highlight(50, -50)
                                  : hot                                 ? Highlight(70, -57)
                                                                        : Highlight(80, -66);
            const bool split = index == kSplit && pressed;
            Box(r, r.left, split ? r.right - 13 : r.right, face);
            if (split)
                Box(r, r.right - 14, r.right, Highlight(70, -66));
            else if (index == kSplit)
                Fill(r.right - 14, r.top, r.right - 13, r.bottom, System(COLOR_HIGHLIGHT));
        }
        if (index == kSplit)
            for (int row = 0; row < 3; ++row) {
                const LONG y = (r.top + r.bottom) / 2 - 1 + row;
                Fill(r.right - 9 + row, y, r.right - 4 - row, y + 1,
                     hot && !open ? 0 : System(COLOR_BTNTEXT));
            }
        const bool lifted = hot && !pressed;
        if (lifted || !enabled)
            Image(r, lifted ? 4 : 3, open ? Face(-20) : hot ? Highlight(50, -66) : Face(-27));
        if (enabled)
            Image(r, lifted ? 2 : 3, kInk);
    }
    void Image(const CRect& r, LONG offset, COLORREF color) {
        Fill(r.left + offset, r.top + offset, r.left + offset + 8, r.top + offset + 16, color);
    }
};

/// Waits until the bar shows all buttons resting but `index`, which has that look.
testing::AssertionResult ComesToShow(Frame& frame, int index = kPlain, int look = kResting,
                                     bool vertical = false) {
    const COLORREF line = Face(-15);
    Picture shown;
    Expected expected(frame);
    const auto draw = [&] {
        expected = Expected(frame);
        for (int i = 0; i < kCount; ++i) {
            const CRect r = frame.ButtonRect(i);
            if (i != kSeparator)
                expected.Button(r, i, i == index ? look : kResting);
            else if (vertical)
                expected.Fill(2, r.bottom - 4, expected.width - 2, r.bottom - 3, line);
            else
                expected.Fill((r.left + r.right) / 2 - 1, r.top + 2, (r.left + r.right) / 2,
                              r.bottom - 2, line);
        }
    };
    if (PumpUntil([&] { return draw(), (shown = frame.Show()) == expected; }))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << FirstDifference(shown, expected) << "; the button is at "
                                       << frame.ButtonRect(index).left;
}

void ShowEveryState(Frame* frame) {
    frame->m_commands.clear();
    ASSERT_TRUE(ComesToShow(*frame));
    for (const int index : {kPlain, kChecked, kSplit, kDisabled}) {
        frame->MoveMouseTo(frame->ButtonRect(index).CenterPoint());
        EXPECT_TRUE(ComesToShow(*frame, index, kHot)) << index;
    }
    for (const int index : {kPlain, kSplit}) {
        frame->MoveMouseTo(frame->ButtonRect(index).TopLeft() + CSize(6, 6));
        automation::PressMouse();
        EXPECT_TRUE(ComesToShow(*frame, index, kHot | kPressed)) << index;
        Frame::ParkMouse();
        automation::ReleaseMouse();
        EXPECT_TRUE(ComesToShow(*frame)) << "after the mouse has left";
    }
    EXPECT_TRUE(frame->m_commands.empty());

    const CRect split = frame->ButtonRect(kSplit);
    const CPoint arrow(split.right - 5, split.CenterPoint().y);
    frame->MoveMouseTo({20, 150});
    automation::PressMouse(); // elsewhere, so that no menu opens
    frame->MoveMouseTo(arrow);
    EXPECT_TRUE(ComesToShow(*frame, kSplit, kHot)) << "not the button half is pressed";
    Frame::ParkMouse();
    automation::ReleaseMouse();

    frame->MoveMouseTo(arrow);
    EXPECT_TRUE(WhileMenusRun([&] {
        automation::PressMouse();
        automation::ReleaseMouse();
        const HWND popup = WaitForPopup();
        ASSERT_NE(popup, nullptr);
        CRect place;
        ::GetWindowRect(popup, &place);
        CRect below = split;
        frame->ToolBar().ClientToScreen(below);
        EXPECT_EQ(place.left, below.left);
        EXPECT_NEAR(place.top, below.bottom, 1);
        const Picture shown = frame->Show();
        Expected expected(*frame);
        expected.Button(split, kSplit, kOpen);
        for (LONG y = split.top; y < split.bottom - 1; ++y) // the menu's frame may cover the rest
            for (LONG x = split.left; x < split.right; ++x)
                ASSERT_EQ(shown.At(x, y), expected.At(x, y)) << x << ", " << y;
        automation::TypeKey(VK_DOWN);
        automation::TypeKey(VK_RETURN);
        EXPECT_TRUE(WaitForNoPopup());
    }));
    EXPECT_TRUE(PumpUntil([&] { return frame->m_commands.size() == 2; }));
    EXPECT_EQ(frame->m_commands, (std::vector<UINT>{0x10000 - kSplitCommand, 400}));
    Frame::ParkMouse();
    EXPECT_TRUE(ComesToShow(*frame)) << "closed again";

    frame->DockControlBar(&frame->ToolBar(), AFX_IDW_DOCKBAR_LEFT);
    EXPECT_TRUE(ComesToShow(*frame, kPlain, kResting, true)) << "a column";
    frame->DockControlBar(&frame->ToolBar(), AFX_IDW_DOCKBAR_TOP);
}

TEST(ToolBarXP, ShowsEveryStateInEveryScheme) {
    Frame* const frame = Frame::Open();
    for (const automation::ColorScheme& scheme : automation::ColorSchemes()) {
        SCOPED_TRACE(scheme.name);
        const automation::SystemColorGuard colors(scheme.colors);
        ShowEveryState(frame);
        if (HasFailure())
            break; // each picture that does not come takes seconds
    }
    frame->DestroyWindow();
}

TEST(ToolBarXP, WithoutItsSkinItIsTheSystemsOwn) {
    Picture system;
    {
        auto* const plain = ToolFrame<CToolBar>::Open();
        PumpFor();
        system = plain->Show();
        plain->DestroyWindow();
    }
    Frame* const frame = Frame::Open();
    EXPECT_TRUE(ComesToShow(*frame));
    tint::EnableSkin(frame->ToolBar(), false);
    EXPECT_TRUE(PumpUntil([&] { return frame->Show() == system; }));
    tint::EnableSkin(frame->ToolBar(), true);
    EXPECT_TRUE(ComesToShow(*frame));
    frame->DestroyWindow();
}

// --- Controls among the buttons -----------------------------------------------------------------

TEST(ToolBarXP, LoadsItsBordersAndHidesControlsWhereItStands) {
    Frame* const frame = Frame::Open();
    CToolBarXP& bar = frame->ToolBar();
    EXPECT_FALSE(bar.LoadToolBar(999));
    EXPECT_EQ(bar.GetBorders(), CRect(1, 3, 6, 4));
    EXPECT_EQ(bar.SendMessage(TB_GETEXTENDEDSTYLE), TBSTYLE_EX_DRAWDDARROWS);
    CEdit edit;
    edit.Create(WS_CHILD, CRect(0, 0, 70, 20), &bar, kControl);
    for (const int index : {1000, -1}) {
        EXPECT_TRUE(bar.InsertControl(index, edit));
        EXPECT_EQ(bar.GetItemID(bar.GetCount() - 1), kControl) << "appended";
        bar.SendMessage(TB_DELETEBUTTON, bar.GetCount() - 1);
    }
    EXPECT_TRUE(bar.InsertControl(1, edit));
    TBBUTTON button = {};
    bar.SendMessage(TB_GETBUTTON, 1, reinterpret_cast<LPARAM>(&button));
    EXPECT_EQ(button.iBitmap, 70);
    EXPECT_EQ(button.fsStyle, TBSTYLE_SEP);

    for (const UINT side : {AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_BOTTOM,
                            AFX_IDW_DOCKBAR_RIGHT, AFX_IDW_DOCKBAR_TOP}) {
        frame->DockControlBar(&bar, side);
        const bool lies = side == AFX_IDW_DOCKBAR_TOP || side == AFX_IDW_DOCKBAR_BOTTOM;
        EXPECT_EQ(edit.IsWindowVisible(), lies) << side;
        EXPECT_EQ(bar.SendMessage(TB_ISBUTTONHIDDEN, kControl) == 0, lies) << side;
        CRect inside;
        bar.GetClientRect(inside);
        EXPECT_EQ(inside.Width() > 60, lies) << "the layout knows";
        if (!lies)
            continue;
        CRect place;
        edit.GetWindowRect(place);
        bar.ScreenToClient(place);
        CRect expected = frame->ButtonRect(1);
        expected.InflateRect(-1, -1);
        EXPECT_EQ(place.TopLeft(), expected.TopLeft());
        EXPECT_EQ(place.Width(), expected.Width());
    }
    frame->DestroyWindow();
}

TEST(ToolBarXP, TellsWhetherTheArrowWasHandled) {
    Frame* const frame = Frame::Open();
    ::DestroyMenu(frame->m_menu.Release()); // nothing opens
    for (const int command : {777, static_cast<int>(kSplitCommand), INT_MIN}) {
        NMTOOLBARA notification = {};
        notification.hdr = {frame->ToolBar(), UINT_PTR{AFX_IDW_TOOLBAR}, TBN_DROPDOWN};
        notification.iItem = command;
        EXPECT_EQ(frame->SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification)),
                  command == int{kSplitCommand} ? TBDDRET_DEFAULT : TBDDRET_TREATPRESSED);
        EXPECT_EQ(frame->m_commands.back(), (0x10000U - command) & 0xFFFF);
    }
    frame->DestroyWindow();
}

// --- What goes wrong ----------------------------------------------------------------------------

TEST(ToolBarXP, MayEndWhileItsMenuIsOpen) {
    Frame* const frame = Frame::Open();
    EXPECT_TRUE(WhileMenusRun([&] {
        ::PostMessageA(frame->m_hWnd, kOpenMenu, 0, 0);
        EXPECT_NE(WaitForPopup(), nullptr);
        ::SendMessageA(frame->m_hWnd, kEndToolBar, 0, 0);
        automation::TypeKey(VK_ESCAPE);
        EXPECT_TRUE(WaitForNoPopup());
    }));
    EXPECT_EQ(frame->m_bar, nullptr);
    frame->DestroyWindow();
}

TEST(ToolBarXP, PaintsWhatItCanAndGivesEverythingBack) {
    Frame* const frame = Frame::Open();
    CToolBarXP& bar = frame->ToolBar();
    bar.TrackDropDownMenu(kSplitCommand, nullptr);
    bar.TrackDropDownMenu(9999, frame->m_menu);
    EXPECT_FALSE(bar.GetButtonStyle(kSplit) & TBBS_INDETERMINATE);
    bar.SetButtonStyle(kPlain, TBBS_INDETERMINATE);
    bar.SendMessage(TB_SETHOTITEM, kChecked);

    const auto images = bar.SendMessage(TB_GETIMAGELIST);
    for (const bool withImages : {true, false}) {
        bar.SendMessage(TB_SETIMAGELIST, 0, withImages ? images : 0);
        for (const int image : {0, -1, 1, 30000}) {
            for (const int index : {kPlain, kChecked, kSplit, kDisabled})
                bar.SetButtonInfo(index, bar.GetItemID(index), bar.GetButtonStyle(index), image);
            const GdiLedger ledger;
            bar.Invalidate(FALSE);
            bar.UpdateWindow();
            EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
        }
    }
    frame->DestroyWindow();
}

} // namespace
