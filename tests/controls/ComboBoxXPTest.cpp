// SPDX-License-Identifier: MIT
#include "controls/ComboBoxXP.h"

#include <gtest/gtest.h>

#include <afxext.h>

#include <array>
#include <functional>
#include <tuple>
#include <utility>
#include <vector>

#include "automation/Picture.h"
#include "automation/RealInput.h"
#include "automation/SystemColors.h"
#include "draw/Hls.h"
#include "draw/Skin.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

using automation::Picture;

namespace {

constexpr WORD kSubject = 101;
constexpr WORD kPlain = 102;
constexpr DWORD kStyles[] = {CBS_DROPDOWN, CBS_DROPDOWNLIST};

void ParkMouse() {
    automation::MoveMouse({700, 500});
    PumpFor(30);
}

void Fill(CComboBox& combo) {
    for (int i = 0; i < 20; ++i)
        combo.AddString("item");
}

/// Notes the commands that its child sends without a notification code, as Enter on a bar does.
template <class Base>
class Listening : public Base {
public:
    int m_enters = 0;
    int m_defaults = 0;
    std::function<void()> m_onEnter = [] {};

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && wParam == kSubject && lParam == 0) {
            ++m_enters;
            m_onEnter();
        }
        m_defaults += message == WM_COMMAND && wParam == IDOK;
        return Base::WindowProc(message, wParam, lParam);
    }
};

class ComboDialog : public Listening<CDialog> {
public:
    explicit ComboDialog(DWORD style = CBS_DROPDOWN) {
        m_template.Add("COMBOBOX", "", kSubject, style | WS_TABSTOP | WS_VSCROLL, 10, 10, 80, 60)
            .Add("COMBOBOX", "", kPlain, style | WS_VSCROLL, 10, 35, 80, 60)
            .Add("BUTTON", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 10, 60, 60, 16);
        CreateIndirect(m_template.Get(), nullptr);
        ::SetForegroundWindow(m_hWnd);
        Fill(m_subject);
        ParkMouse();
    }
    ~ComboDialog() override { DestroyWindow(); }

    CComboBoxXP m_subject;
    int m_openings = 0; ///< of the list, that the dialog is told of

protected:
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        m_openings += id == kSubject && code == CBN_DROPDOWN;
        return Listening::OnCmdMsg(id, code, extra, info);
    }
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, kSubject, m_subject);
    }
    void OnOK() override {}

private:
    DialogTemplate m_template{"Combo boxes", 140, 90};
};

class Bar : public Listening<CControlBar> {
public:
    void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}
    CSize CalcFixedLayout(BOOL, BOOL) override { return {300, 30}; }
};

/// A frame with a combo box on a control bar.
class ComboFrame : public CFrameWnd {
public:
    ComboFrame() {
        CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), "frame", WS_POPUP | WS_VISIBLE,
                 CRect(100, 100, 400, 300), nullptr, 0);
        m_bar.Create(AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE)), "",
                     WS_CHILD | WS_VISIBLE | CBRS_TOP, CRect(0, 0, 300, 30), this, 50);
        m_subject.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN | WS_VSCROLL, CRect(10, 4, 130, 26),
                         &m_bar, kSubject);
        Fill(m_subject);
        ::SetForegroundWindow(m_hWnd);
        SetFocus();
        ParkMouse();
    }
    ~ComboFrame() override { DestroyWindow(); }

    Bar m_bar;
    CComboBoxXP m_subject;

protected:
    void PostNcDestroy() override {} // it stands on the stack
};

// ---- Colours ------------------------------------------------------------------------------------

/// Outer frame, inner frame and separator, arrow frame, arrow face, glyph.
using Look = std::array<COLORREF, 5>;

/// The colour of the outline of a box; one that no look has when it is not of one colour.
COLORREF Outline(const Picture& picture, int left, int top, int right, int bottom) {
    const COLORREF color = picture.At(left, top);
    for (int x = left; x <= right; ++x)
        for (int y = top; y <= bottom; ++y)
            if ((x == left || x == right || y == top || y == bottom) && picture.At(x, y) != color)
                return CLR_INVALID;
    return color;
}

Look LookOf(HWND combo) {
    const Picture shown = automation::CaptureWindow(combo);
    const int arrow = shown.width - ::GetSystemMetrics(SM_CXVSCROLL);
    const int right = shown.width - 1;
    const int bottom = shown.height - 1;
    const COLORREF inner = Outline(shown, 1, 1, arrow - 2, bottom - 1);
    const COLORREF separator = Outline(shown, arrow - 1, 1, arrow - 1, bottom - 1);
    return {Outline(shown, 0, 0, right, bottom), inner == separator ? inner : CLR_INVALID,
            Outline(shown, arrow, 1, arrow, bottom - 1),
            Outline(shown, arrow + 1, 1, right - 1, bottom - 1),
            shown.At((arrow + shown.width) / 2, shown.height / 2 + 2)};
}

Look Resting(int frame, bool enabled = true) {
    return {::GetSysColor(frame), ::GetSysColor(enabled ? COLOR_WINDOW : COLOR_BTNFACE),
            ::GetSysColor(frame), ::GetSysColor(COLOR_BTNFACE),
            ::GetSysColor(enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT)};
}

Look Lit(bool dropped = false) {
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    return {highlight, ::GetSysColor(COLOR_WINDOW), highlight,
            dropped ? AdjustColorLS(highlight, 50, -50) : AdjustColorLS(highlight, 70, -57),
            dropped ? RGB(0xF0, 0xF0, 0xF0) : RGB(0, 0, 0)};
}

testing::AssertionResult ComesToShow(const CComboBoxXP& combo, const Look& look) {
    if (PumpUntil([&] { return LookOf(combo) == look; }))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "shows " << testing::PrintToString(LookOf(combo));
}

/// @param frame  colour index of the resting frame
void WalkThroughStates(CComboBoxXP& combo, int frame, const Look& focused) {
    CRect rect;
    combo.GetWindowRect(rect);
    EXPECT_TRUE(ComesToShow(combo, Resting(frame)));
    automation::MoveMouse({rect.right - 6, rect.CenterPoint().y});
    EXPECT_TRUE(ComesToShow(combo, Lit())) << "over the arrow";
    automation::MoveMouseOver(combo);
    for (int i = 0; i < 10; ++i) { // also when the late leave of the arrow's side has come
        PumpFor(60);
        EXPECT_EQ(LookOf(combo), Lit()) << "into the text";
    }
    ParkMouse();
    EXPECT_TRUE(ComesToShow(combo, Resting(frame))) << "after the mouse has left the text";
    combo.SetFocus();
    EXPECT_TRUE(ComesToShow(combo, focused));
    for (const Look& look : {Lit(true), focused, Lit(true), focused}) {
        automation::TypeKey(VK_F4); // opens and closes the list
        EXPECT_TRUE(ComesToShow(combo, look));
    }
    combo.GetParent()->SetFocus();
    EXPECT_TRUE(ComesToShow(combo, Resting(frame))) << "without the focus";
    combo.EnableWindow(FALSE);
    EXPECT_TRUE(ComesToShow(combo, Resting(frame, false)));
    combo.EnableWindow();
}

TEST(ComboBoxXP, ColorsFollowEveryState) {
    for (const char* name : {"default", "high-contrast-dark"}) {
        SCOPED_TRACE(name);
        const automation::SystemColorGuard scheme(automation::FindColorScheme(name)->colors);
        for (const DWORD style : kStyles) {
            ComboDialog dialog(style);
            WalkThroughStates(dialog.m_subject, COLOR_BTNSHADOW, Resting(COLOR_BTNSHADOW));
            EXPECT_EQ(dialog.m_openings, 2);
        }
        ComboFrame frame;
        WalkThroughStates(frame.m_subject, COLOR_WINDOW, Lit());

        frame.m_bar.m_pDockSite = nullptr; // a bar that belongs to no frame is as a dialog
        frame.m_subject.Invalidate();
        EXPECT_TRUE(ComesToShow(frame.m_subject, Resting(COLOR_BTNSHADOW)));
        frame.m_bar.m_pDockSite = &frame;
    }
}

TEST(ComboBoxXP, WithoutItsSkinItIsTheSystemsOwnCombo) {
    for (const DWORD style : kStyles) {
        ComboDialog dialog(style);
        CComboBoxXP& combo = dialog.m_subject;
        const auto showsTheSame = [&] {
            return automation::CaptureWindow(combo) ==
                   automation::CaptureWindow(::GetDlgItem(dialog, kPlain));
        };
        dialog.GetDlgItem(IDOK)->SetFocus();
        ASSERT_TRUE(ComesToShow(combo, Resting(COLOR_BTNSHADOW)));
        ASSERT_FALSE(showsTheSame());
        tint::EnableSkin(combo, false);
        EXPECT_TRUE(PumpUntil(showsTheSame));
        automation::MoveMouseOver(combo);
        PumpFor();
        ParkMouse();
        EXPECT_TRUE(PumpUntil(showsTheSame)) << "after the mouse has left";
        const GdiLedger ledger;
        tint::EnableSkin(combo, true);
        EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
        EXPECT_GT(ledger.Made(), 0) << "repainted at once";
        EXPECT_TRUE(ComesToShow(combo, Resting(COLOR_BTNSHADOW)));
    }
}

// ---- Keyboard -----------------------------------------------------------------------------------

TEST(ComboBoxXP, EnterInADialogIsTheDialogs) {
    ComboDialog dialog;
    CComboBoxXP& combo = dialog.m_subject;
    const LRESULT usual = combo.SendMessage(WM_GETDLGCODE);
    combo.SetFocus();
    automation::PressKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_defaults == 1; }));
    EXPECT_EQ(dialog.m_enters, 0);
    EXPECT_EQ(combo.SendMessage(WM_GETDLGCODE), usual | DLGC_WANTALLKEYS);
    automation::ReleaseKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return combo.SendMessage(WM_GETDLGCODE) == usual; }));
}

TEST(ComboBoxXP, EnterAndEscapeOnABar) {
    ComboFrame frame;
    CComboBoxXP& combo = frame.m_subject;
    combo.SetFocus();
    automation::TypeKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return frame.m_bar.m_enters == 1; }));

    combo.ShowDropDown();
    automation::TypeKey(VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return !combo.GetDroppedState(); }));
    EXPECT_EQ(::GetParent(::GetFocus()), combo.m_hWnd) << "the first one only closes the list";
    automation::TypeKey(VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == frame.m_hWnd; }));

    MSG enter = {combo.m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_FALSE(combo.PreTranslateMessage(&enter)) << "the key goes on";
    frame.m_bar.m_onEnter = [&] { combo.DestroyWindow(); };
    EXPECT_TRUE(combo.PreTranslateMessage(&enter)) << "there is nowhere for it to go";
}

TEST(ComboBoxXP, LeavesTheFieldToAComboBoxThatLivesOn) {
    const ComboDialog dialog;
    HWND combos[2];
    HWND fields[2];
    for (const int i : {0, 1}) {
        combos[i] = ::CreateWindowExW(0, L"COMBOBOX", L"", WS_CHILD | CBS_DROPDOWN, 0, 0, 50, 50,
                                      dialog, nullptr, nullptr, nullptr);
        fields[i] = ::FindWindowExA(combos[i], nullptr, "Edit", nullptr);
    }
    {
        CComboBoxXP passing;
        for (const int i : {0, 1}) {
            passing.SubclassWindow(combos[i]);
            EXPECT_NE(CWnd::FromHandlePermanent(fields[i]), nullptr) << i;
            passing.UnsubclassWindow();
        }
        EXPECT_EQ(CWnd::FromHandlePermanent(fields[0]), nullptr) << "one at a time";
    }
    for (const int i : {0, 1})
        EXPECT_TRUE(::IsWindow(fields[i]) && CWnd::FromHandlePermanent(fields[i]) == nullptr) << i;
}

// ---- Height -------------------------------------------------------------------------------------

/// A combo box over a system that answers with fixed item heights; notes what reaches the system.
class Measured : public CComboBoxXP {
public:
    std::vector<int> m_windows;
    std::vector<int> m_fields;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const bool ofField = wParam == static_cast<WPARAM>(-1);
        constexpr UINT bySystem = SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW;
        if (message == CB_GETITEMHEIGHT)
            return ofField ? 18 : 16;
        if (message == CB_SETITEMHEIGHT && ofField && m_fields.size() < 9) {
            m_fields.push_back(static_cast<int>(lParam));
            SetWindowPos(nullptr, 0, 0, 90, 30 + static_cast<int>(m_fields.size()), bySystem);
            return 0;
        }
        if (message == WM_WINDOWPOSCHANGING) {
            const auto* const position = reinterpret_cast<const WINDOWPOS*>(lParam);
            if ((position->flags & (SWP_NOSIZE | SWP_NOREDRAW)) == 0)
                m_windows.push_back(position->cy);
        }
        return CComboBoxXP::DefWindowProc(message, wParam, lParam);
    }
};

class HeightRule : public testing::Test {
protected:
    HeightRule() {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE,
                          CRect(100, 100, 400, 300), nullptr, 0);
    }

    void Create(CComboBoxXP& combo, DWORD style, int height) {
        ASSERT_TRUE(combo.Create(style | WS_CHILD | WS_VISIBLE | WS_VSCROLL,
                                 CRect(CPoint(10, 10), CSize(100, height)), &m_parent, kSubject));
        Fill(combo);
    }

    CWnd m_parent;
};

TEST_F(HeightRule, WindowHoldsFieldRowsAndBorders) {
    ASSERT_EQ(::GetSystemMetrics(SM_CYBORDER), 1);
    Measured combo;
    Create(combo, CBS_DROPDOWN, 100);
    EXPECT_EQ(combo.m_windows.back(), 137);
    EXPECT_EQ(combo.m_fields.back(), 94) << "100, less the frame";
    for (const auto& [rows, height, field] :
         {std::tuple(7, 100, 94), std::tuple(10, 40, 34), std::tuple(10, 2, 0xFFFC)}) {
        combo.SetVisibleRows(rows);
        combo.m_windows.clear();
        combo.m_fields.clear();
        combo.SetWindowPos(nullptr, 0, 0, 100, height, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_EQ(combo.m_windows, std::vector{18 + 16 * rows + 7}) << "always 7 borders";
        EXPECT_EQ(combo.m_fields, std::vector{field});
        combo.SetWindowPos(nullptr, 20, 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        EXPECT_EQ(combo.m_fields.size(), 1u) << "not for a move";
    }
}

/// Height of the closed window and number of rows in its list.
std::pair<int, int> Shape(CComboBoxXP& combo) {
    combo.ShowDropDown();
    COMBOBOXINFO info = {};
    combo.GetComboBoxInfo(&info);
    RECT list = {};
    ::GetClientRect(info.hwndList, &list);
    combo.ShowDropDown(FALSE);
    CRect window;
    combo.GetWindowRect(window);
    const int row = combo.GetItemHeight(0);
    return {window.Height(), list.bottom % row == 0 ? list.bottom / row : -1};
}

TEST_F(HeightRule, ListShowsTheConfiguredRowsAndTheFieldItsHeight) {
    for (const DWORD style : kStyles) {
        CComboBoxXP combo;
        Create(combo, style, 22);
        EXPECT_EQ(Shape(combo), std::pair(22, 7));
        for (const int rows : {1, 3, 12}) {
            combo.SetVisibleRows(rows);
            EXPECT_EQ(Shape(combo), std::pair(22, rows));
        }
        for (const int height : {100, 40, 40, 25}) {
            combo.MoveWindow(5, 5, 120, height);
            EXPECT_EQ(Shape(combo), std::pair(height, 12));
        }
        ComboDialog dialog(style);
        EXPECT_EQ(Shape(dialog.m_subject).second, 7) << "in a dialog";
        EXPECT_LT(Shape(dialog.m_subject).first, 30) << "as high as its font";

        for (const int height : {0, -1, -2, -40000, 0x7FFFFFFF, 3}) // leaves it usable
            combo.SetWindowPos(nullptr, 0, 0, 100, height, SWP_NOMOVE | SWP_NOZORDER);
        for (const int rows : {0, -7, 0x7FFFFFFF, 4})
            combo.SetVisibleRows(rows);
        combo.MoveWindow(5, 5, 120, 24);
        EXPECT_EQ(Shape(combo), std::pair(24, 4));
    }
}

TEST(ComboBoxXP, ResizingClearsTheSelectionOfAnUnfocusedField) {
    ComboDialog dialog;
    CComboBoxXP& combo = dialog.m_subject;
    combo.SetWindowText("text");
    for (const int id : {int{IDOK}, int{kSubject}}) {
        dialog.GetDlgItem(id)->SetFocus();
        combo.SetEditSel(0, -1);
        combo.MoveWindow(5, 5, 120, id == IDOK ? 24 : 26);
        EXPECT_EQ(HIWORD(combo.GetEditSel()) - LOWORD(combo.GetEditSel()), id == IDOK ? 0 : 4);
    }
}

} // namespace
