// SPDX-License-Identifier: MIT
#include "controls/ComboBoxXP.h"

#include <gtest/gtest.h>

#include <afxext.h>

#include <string>
#include <vector>

#include "automation/Picture.h"
#include "automation/RealInput.h"
#include "automation/SystemColors.h"
#include "draw/Hls.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

using automation::Picture;

namespace {

constexpr WORD kSubject = 101;

void ParkMouse() {
    automation::MoveMouse({700, 500});
    PumpFor(30);
}

void Fill(CComboBox& combo) {
    for (int i = 0; i < 20; ++i)
        combo.AddString("item");
}

/// Counts the commands that its child sends without a notification code, as Enter on a bar does.
template <class Base>
class Listening : public Base {
public:
    int m_enters = 0;
    int m_defaults = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && wParam == kSubject && lParam == 0)
            ++m_enters;
        if (message == WM_COMMAND && wParam == IDOK)
            ++m_defaults;
        return Base::WindowProc(message, wParam, lParam);
    }
};

class ComboDialog : public Listening<CDialog> {
public:
    explicit ComboDialog(DWORD style = CBS_DROPDOWN) {
        m_template.Add("COMBOBOX", "", kSubject, style | WS_TABSTOP | WS_VSCROLL, 10, 10, 80, 60)
            .Add("BUTTON", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 10, 60, 60, 16);
        CreateIndirect(m_template.Get(), nullptr);
        ::SetForegroundWindow(m_hWnd);
        Fill(m_subject);
        ParkMouse();
    }
    ~ComboDialog() override { DestroyWindow(); }

    CComboBoxXP m_subject;

protected:
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

struct Look {
    COLORREF outer, inner, arrowFrame, face, glyph;
};

bool operator==(const Look& left, const Look& right) {
    return left.outer == right.outer && left.inner == right.inner &&
           left.arrowFrame == right.arrowFrame && left.face == right.face &&
           left.glyph == right.glyph;
}

std::ostream& operator<<(std::ostream& stream, const Look& look) {
    return stream << std::hex << look.outer << " inner " << look.inner << " arrow frame "
                  << look.arrowFrame << " face " << look.face << " glyph " << look.glyph;
}

/// The colour of a row or column; a value that no look has when it is not of one colour.
COLORREF LineColor(const Picture& picture, POINT from, POINT to) {
    const COLORREF color = picture.At(from.x, from.y);
    for (int x = from.x; x <= to.x; ++x)
        for (int y = from.y; y <= to.y; ++y)
            if (picture.At(x, y) != color)
                return 0xDEAD0000;
    return color;
}

COLORREF BoxColor(const Picture& picture, int left, int top, int right, int bottom) {
    const COLORREF color = LineColor(picture, {left, top}, {right, top});
    const bool closed = LineColor(picture, {left, bottom}, {right, bottom}) == color &&
                        LineColor(picture, {left, top}, {left, bottom}) == color &&
                        LineColor(picture, {right, top}, {right, bottom}) == color;
    return closed ? color : 0xDEAD0001;
}

Look LookOf(HWND combo) {
    const Picture picture = automation::CaptureWindow(combo);
    const int arrow = picture.width - ::GetSystemMetrics(SM_CXVSCROLL);
    const int bottom = picture.height - 1;
    const COLORREF inner = BoxColor(picture, 1, 1, arrow - 2, bottom - 1);
    const COLORREF separator = LineColor(picture, {arrow - 1, 1}, {arrow - 1, bottom - 1});
    return {BoxColor(picture, 0, 0, picture.width - 1, bottom),
            inner == separator ? inner : 0xDEAD0002,
            LineColor(picture, {arrow, 1}, {arrow, bottom - 1}),
            BoxColor(picture, arrow + 1, 1, picture.width - 2, bottom - 1),
            picture.At((arrow + picture.width) / 2, picture.height / 2 + 2)};
}

Look Resting() {
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    return {shadow, ::GetSysColor(COLOR_WINDOW), shadow, ::GetSysColor(COLOR_BTNFACE),
            ::GetSysColor(COLOR_BTNTEXT)};
}

Look RestingOnBar() {
    Look look = Resting();
    look.outer = look.arrowFrame = ::GetSysColor(COLOR_WINDOW);
    return look;
}

Look Disabled(Look look) {
    look.inner = ::GetSysColor(COLOR_BTNFACE);
    look.glyph = ::GetSysColor(COLOR_GRAYTEXT);
    return look;
}

Look Hot() {
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    return {highlight, ::GetSysColor(COLOR_WINDOW), highlight, AdjustColorLS(highlight, 70, -57),
            RGB(0, 0, 0)};
}

Look Dropped() {
    Look look = Hot();
    look.face = AdjustColorLS(::GetSysColor(COLOR_HIGHLIGHT), 50, -50);
    look.glyph = RGB(0xF0, 0xF0, 0xF0);
    return look;
}

testing::AssertionResult ComesToShow(const CComboBoxXP& combo, const Look& look) {
    if (PumpUntil([&] { return LookOf(combo.m_hWnd) == look; }))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "shows outer " << LookOf(combo.m_hWnd);
}

void MoveOverArrow(const CComboBoxXP& combo) {
    CRect rect;
    combo.GetWindowRect(rect);
    automation::MoveMouse({rect.right - 6, rect.CenterPoint().y});
}

void WalkThroughStates(CComboBoxXP& combo, const Look& resting, const Look& focused) {
    EXPECT_TRUE(ComesToShow(combo, resting));
    MoveOverArrow(combo);
    EXPECT_TRUE(ComesToShow(combo, Hot())) << "over the arrow";
    automation::MoveMouseOver(combo);
    for (int i = 0; i < 10; ++i) { // also when the late leave of the arrow's side has come
        PumpFor(60);
        EXPECT_EQ(LookOf(combo), Hot()) << "into the text";
    }
    ParkMouse();
    EXPECT_TRUE(ComesToShow(combo, resting)) << "after the mouse has left the text";
    combo.SetFocus();
    for (const char* const end : {"closed", "closed again"}) {
        automation::TypeKey(VK_F4);
        EXPECT_TRUE(ComesToShow(combo, Dropped()));
        automation::TypeKey(VK_F4);
        EXPECT_TRUE(ComesToShow(combo, focused)) << end;
    }
    combo.GetParent()->SetFocus();
    combo.EnableWindow(FALSE);
    EXPECT_TRUE(ComesToShow(combo, Disabled(resting)));
    combo.EnableWindow();
}

TEST(ComboBoxXP, ColorsFollowEveryStateInADialog) {
    for (const char* name : {"default", "high-contrast-dark"}) {
        const automation::SystemColorGuard scheme(automation::FindColorScheme(name)->colors);
        for (const DWORD style : {DWORD{CBS_DROPDOWN}, DWORD{CBS_DROPDOWNLIST}}) {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(style));
            ComboDialog dialog(style);
            WalkThroughStates(dialog.m_subject, Resting(), Resting());
        }
    }
}

TEST(ComboBoxXP, OnABarTheFocusShows) {
    ComboFrame frame;
    EXPECT_TRUE(ComesToShow(frame.m_subject, RestingOnBar()));
    frame.m_subject.SetFocus();
    EXPECT_TRUE(ComesToShow(frame.m_subject, Hot())) << "the focus is in the edit field";
    frame.SetFocus();
    WalkThroughStates(frame.m_subject, RestingOnBar(), Hot());

    // A bar that belongs to no frame is as a dialog.
    frame.m_bar.m_pDockSite = nullptr;
    frame.m_subject.Invalidate();
    EXPECT_TRUE(ComesToShow(frame.m_subject, Resting()));
    frame.m_bar.m_pDockSite = &frame;
}

// ---- Keyboard -----------------------------------------------------------------------------------

TEST(ComboBoxXP, EnterInADialogIsTheDialogs) {
    ComboDialog dialog;
    dialog.m_subject.SetFocus();
    automation::TypeKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_defaults == 1; }));
    EXPECT_EQ(dialog.m_enters, 0);
}

TEST(ComboBoxXP, EnterAndEscapeOnABar) {
    ComboFrame frame;
    CComboBoxXP& combo = frame.m_subject;
    combo.SetFocus();
    automation::TypeKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return frame.m_bar.m_enters == 1; }));
    automation::TypeKey('A');
    PumpFor();
    EXPECT_EQ(frame.m_bar.m_enters, 1);

    combo.ShowDropDown();
    automation::TypeKey(VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return !combo.GetDroppedState(); }));
    EXPECT_EQ(::GetParent(::GetFocus()), combo.m_hWnd) << "the first one only closes the list";
    automation::TypeKey(VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == frame.m_hWnd; }));
}

TEST(ComboBoxXP, WantsAllKeysWhileEnterIsDown) {
    ComboDialog dialog;
    const auto wants = [&] {
        return (dialog.m_subject.SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS) != 0;
    };
    const LRESULT usual = dialog.m_subject.SendMessage(WM_GETDLGCODE);
    dialog.GetDlgItem(IDOK)->SetFocus();
    automation::PressKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil(wants));
    automation::ReleaseKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return !wants(); }));
    EXPECT_EQ(dialog.m_subject.SendMessage(WM_GETDLGCODE), usual);
    EXPECT_NE(usual & DLGC_WANTARROWS, 0);
}

// ---- Height -------------------------------------------------------------------------------------

/// A combo box over a system that answers with fixed item heights; notes what reaches the system.
class Measured : public CComboBoxXP {
public:
    bool m_fixed = false;
    std::vector<int> m_windows;
    std::vector<int> m_fields;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const bool ofField = wParam == static_cast<WPARAM>(-1);
        constexpr UINT bySystem = SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW;
        if (m_fixed && message == CB_GETITEMHEIGHT)
            return ofField ? 18 : 16;
        if (m_fixed && message == CB_SETITEMHEIGHT && ofField && m_fields.size() < 9) {
            m_fields.push_back(static_cast<int>(lParam));
            SetWindowPos(nullptr, 0, 0, 90, 30 + static_cast<int>(m_fields.size()), bySystem);
            return 0;
        }
        if (m_fixed && message == WM_WINDOWPOSCHANGING) {
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

    template <class Combo>
    void Create(Combo& combo, DWORD style, int height) {
        ASSERT_TRUE(combo.Create(style | WS_CHILD | WS_VISIBLE | WS_VSCROLL,
                                 CRect(CPoint(10, 10), CSize(100, height)), &m_parent, kSubject));
        Fill(combo);
    }

    CWnd m_parent;
};

int HeightOf(const CWnd& window) {
    CRect rect;
    window.GetWindowRect(rect);
    return rect.Height();
}

TEST_F(HeightRule, WindowHoldsFieldRowsAndBorders) {
    Measured combo;
    Create(combo, CBS_DROPDOWN, 22);
    combo.m_fixed = true;
    const auto resize = [&](int height) {
        combo.m_windows.clear();
        combo.m_fields.clear();
        combo.SetWindowPos(nullptr, 0, 0, 100, height, SWP_NOMOVE | SWP_NOZORDER);
        return std::pair(combo.m_windows, combo.m_fields);
    };
    const auto heights = [](int window, int field) {
        return std::pair(std::vector{window}, std::vector{field});
    };
    ASSERT_EQ(::GetSystemMetrics(SM_CYBORDER), 1);
    EXPECT_EQ(resize(100), heights(137, 94));
    combo.SetVisibleRows(10);
    EXPECT_EQ(resize(40), heights(18 + 16 * 10 + 7, 34)) << "still 7 borders";
    EXPECT_EQ(resize(2), heights(18 + 16 * 10 + 7, 0xFFFC)) << "the low 16 bits";
    combo.m_fields.clear();
    combo.SetWindowPos(nullptr, 20, 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_TRUE(combo.m_fields.empty()) << "a move";
}

int RowsShown(CComboBoxXP& combo) {
    combo.ShowDropDown();
    COMBOBOXINFO info = {};
    combo.GetComboBoxInfo(&info);
    RECT list = {};
    ::GetClientRect(info.hwndList, &list);
    combo.ShowDropDown(FALSE);
    const int row = combo.GetItemHeight(0);
    return list.bottom % row == 0 ? list.bottom / row : -1;
}

TEST_F(HeightRule, ListShowsTheConfiguredRowsAndTheFieldItsHeight) {
    for (const DWORD style : {DWORD{CBS_DROPDOWN}, DWORD{CBS_DROPDOWNLIST}}) {
        CComboBoxXP combo;
        Create(combo, style, 22);
        EXPECT_EQ(HeightOf(combo), 22);
        EXPECT_EQ(RowsShown(combo), 7);
        for (const int rows : {1, 3, 12}) {
            combo.SetVisibleRows(rows);
            EXPECT_EQ(RowsShown(combo), rows);
            EXPECT_EQ(HeightOf(combo), 22) << "the field keeps its height";
        }
        for (const int height : {100, 40, 40, 25}) {
            combo.MoveWindow(5, 5, 120, height);
            EXPECT_EQ(HeightOf(combo), height);
            EXPECT_EQ(RowsShown(combo), 12);
        }

        ComboDialog dialog(style);
        EXPECT_EQ(RowsShown(dialog.m_subject), 7) << "in a dialog";
        EXPECT_LT(HeightOf(dialog.m_subject), 30);
    }
}

TEST_F(HeightRule, NonsenseLeavesAUsableComboBox) {
    CComboBoxXP combo;
    combo.SetVisibleRows(5); // without a window
    Create(combo, CBS_DROPDOWN, -20);
    for (const int height : {0, -1, -2, -40000, 0x7FFFFFFF, 3})
        combo.SetWindowPos(nullptr, 0, 0, 100, height, SWP_NOMOVE | SWP_NOZORDER);
    for (const int rows : {0, -7, 0x7FFFFFFF})
        combo.SetVisibleRows(rows);
    EXPECT_EQ(combo.GetVisibleRows(), CComboBoxXP::kMostVisibleRows);
    combo.SetVisibleRows(4);
    combo.MoveWindow(5, 5, 120, 24);
    EXPECT_EQ(HeightOf(combo), 24);
    EXPECT_EQ(RowsShown(combo), 4);
}

TEST_F(HeightRule, ResizingClearsTheSelectionOfAnUnfocusedField) {
    ComboDialog dialog;
    CComboBoxXP& combo = dialog.m_subject;
    combo.SetWindowText("text");
    const auto selectAndResize = [&] {
        combo.SetEditSel(0, -1);
        combo.MoveWindow(5, 5, 120, 24);
        const DWORD selection = combo.GetEditSel();
        return HIWORD(selection) - LOWORD(selection);
    };
    dialog.GetDlgItem(IDOK)->SetFocus();
    EXPECT_EQ(selectAndResize(), 0);
    combo.SetFocus();
    EXPECT_EQ(selectAndResize(), 4);
}

// ---- Resources ----------------------------------------------------------------------------------

TEST(ComboBoxXP, SeventyThousandPaintsLoseNothing) {
    ComboDialog dialog(CBS_DROPDOWNLIST);
    const auto paint = [&](int times) {
        for (int i = 0; i < times; ++i) {
            dialog.m_subject.Invalidate(FALSE);
            dialog.m_subject.UpdateWindow();
        }
    };
    {
        const GdiLedger ledger;
        paint(1);
        EXPECT_EQ(ledger.Unreturned(), "");
        EXPECT_EQ(ledger.Faults(), "");
    }
    paint(70000);
    const HPEN pen = ::CreatePen(PS_SOLID, 1, 0);
    EXPECT_NE(pen, nullptr);
    ::DeleteObject(pen);
    EXPECT_TRUE(ComesToShow(dialog.m_subject, Resting()));
}

} // namespace
