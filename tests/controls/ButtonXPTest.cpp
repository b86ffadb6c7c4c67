// SPDX-License-Identifier: MIT
#include "controls/ButtonXP.h"

#include <gtest/gtest.h>

#include <psapi.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "automation/Picture.h"
#include "automation/RealInput.h"
#include "automation/SystemColors.h"
#include "draw/Hls.h"
#include "draw/Skin.h"
#include "tests/support/Canvas.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

using automation::Picture;

namespace {

constexpr WORD kOther = 100;
constexpr WORD kSubject = 101;
constexpr COLORREF kPressedText = 0x00F0F0F0;

/// A dialog with a plain button, which has the focus at first, and the skinned one.
class ButtonDialog : public CDialog {
public:
    explicit ButtonDialog(DWORD subjectStyle = BS_PUSHBUTTON) {
        m_template.Add("BUTTON", "Other", kOther, BS_PUSHBUTTON | WS_TABSTOP, 10, 10, 60, 16)
            .Add("BUTTON", "MHMHM", kSubject, subjectStyle | WS_TABSTOP, 10, 40, 60, 20);
        CreateIndirect(m_template.Get(), nullptr);
        ::SetForegroundWindow(m_hWnd);
        ParkMouse();
    }

    ~ButtonDialog() override {
        automation::ReleaseMouse();
        DestroyWindow();
        ParkMouse();
    }

    static void ParkMouse() {
        automation::MoveMouse({700, 500});
        PumpFor(30);
    }

    CButtonXP m_subject;
    int m_clicks = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, kSubject, m_subject);
    }

    afx_msg void OnClicked() { ++m_clicks; }
    DECLARE_MESSAGE_MAP()

private:
    DialogTemplate m_template{"Buttons", 120, 80};
};

BEGIN_MESSAGE_MAP(ButtonDialog, CDialog)
    ON_BN_CLICKED(kSubject, &ButtonDialog::OnClicked)
END_MESSAGE_MAP()

struct Look {
    COLORREF frame;
    COLORREF face;
    COLORREF text;
    bool focusRectangle = false;
};

// The colours by the rule, from the system colours of the moment.
COLORREF Highlight() {
    return ::GetSysColor(COLOR_HIGHLIGHT);
}

COLORREF RestingFace() {
    return AdjustColorLS(::GetSysColor(COLOR_BTNFACE), 15, 0);
}

Look Resting() {
    return {::GetSysColor(COLOR_BTNSHADOW), RestingFace(), ::GetSysColor(COLOR_BTNTEXT)};
}

Look Emphasised() {
    return {::GetSysColor(COLOR_3DDKSHADOW), RestingFace(), ::GetSysColor(COLOR_BTNTEXT)};
}

Look Hot() {
    return {Highlight(), AdjustColorLS(Highlight(), 80, -66), RGB(0, 0, 0)};
}

Look Pressed() {
    return {Highlight(), AdjustColorLS(Highlight(), 50, -50), kPressedText};
}

Look Disabled(Look enabled) {
    enabled.text = ::GetSysColor(COLOR_GRAYTEXT);
    return enabled;
}

Look Focused(Look look) {
    look.focusRectangle = true;
    return look;
}

/// Calls `visit` with each point of the outline of a picture, `inset` pixels from its edge.
void ForOutline(const Picture& picture, int inset, const std::function<void(int, int)>& visit) {
    const int right = picture.width - 1 - inset;
    const int bottom = picture.height - 1 - inset;
    for (int x = inset; x <= right; ++x) {
        visit(x, inset);
        visit(x, bottom);
    }
    for (int y = inset; y <= bottom; ++y) {
        visit(inset, y);
        visit(right, y);
    }
}

std::set<COLORREF> OutlineColors(const Picture& picture, int inset) {
    std::set<COLORREF> colors;
    ForOutline(picture, inset, [&](int x, int y) { colors.insert(picture.At(x, y)); });
    return colors;
}

std::set<COLORREF> InnerColors(const Picture& picture, int inset) {
    std::set<COLORREF> colors;
    for (int y = inset; y < picture.height - inset; ++y)
        for (int x = inset; x < picture.width - inset; ++x)
            colors.insert(picture.At(x, y));
    return colors;
}

bool Shows(const Picture& picture, const Look& look) {
    const bool focusDots = OutlineColors(picture, 2).size() > 1;
    return OutlineColors(picture, 0) == std::set{look.frame} &&
           OutlineColors(picture, 1) == std::set{look.face} && focusDots == look.focusRectangle &&
           InnerColors(picture, 3) == std::set{look.face, look.text};
}

std::string Describe(const Picture& picture) {
    std::string text;
    const auto add = [&](const char* name, const std::set<COLORREF>& colors) {
        text += name;
        for (const COLORREF color : colors) {
            char hex[16];
            ::wsprintfA(hex, " %06x", color);
            text += hex;
        }
    };
    add("frame:", OutlineColors(picture, 0));
    add("\nface:", OutlineColors(picture, 1));
    add("\nfocus line:", OutlineColors(picture, 2));
    add("\ninside:", InnerColors(picture, 3));
    return text;
}

/// Waits until the subject shows the look on the screen.
testing::AssertionResult ComesToShow(const ButtonDialog& dialog, const Look& look) {
    Picture picture;
    const bool shown = PumpUntil([&] {
        picture = automation::CaptureWindow(dialog.m_subject.m_hWnd);
        return Shows(picture, look);
    });
    if (shown)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the screen has\n" << Describe(picture);
}

class ButtonXPColors : public testing::TestWithParam<const char*> {};

TEST_P(ButtonXPColors, FollowEveryState) {
    const automation::SystemColorGuard scheme(automation::FindColorScheme(GetParam())->colors);
    ButtonDialog dialog;
    CButtonXP& subject = dialog.m_subject;
    EXPECT_TRUE(ComesToShow(dialog, Resting()));

    automation::MoveMouseOver(subject.m_hWnd);
    EXPECT_TRUE(ComesToShow(dialog, Hot()));
    ButtonDialog::ParkMouse();
    EXPECT_TRUE(ComesToShow(dialog, Resting())) << "after the mouse has left";

    automation::MoveMouseOver(subject.m_hWnd);
    automation::PressMouse();
    EXPECT_TRUE(ComesToShow(dialog, Focused(Pressed()))) << "pressing takes the focus too";
    ButtonDialog::ParkMouse();
    EXPECT_TRUE(PumpUntil([&] {
        return !Shows(automation::CaptureWindow(subject.m_hWnd), Focused(Pressed()));
    })) << "dragged out, it is up again";
    automation::ReleaseMouse();
    EXPECT_TRUE(ComesToShow(dialog, Focused(Emphasised()))) << "released outside";
    EXPECT_EQ(dialog.m_clicks, 0);

    automation::TypeKey(VK_TAB);
    EXPECT_TRUE(ComesToShow(dialog, Resting())) << "after the focus has left";
    automation::TypeKey(VK_TAB);
    EXPECT_TRUE(ComesToShow(dialog, Focused(Emphasised()))) << "focused by Tab";
    automation::TypeKey(VK_TAB);

    dialog.SetDefID(kSubject);
    subject.Invalidate();
    EXPECT_TRUE(ComesToShow(dialog, Emphasised())) << "default button";
    automation::MoveMouseOver(subject.m_hWnd);
    EXPECT_TRUE(ComesToShow(dialog, Hot())) << "the hot frame wins over the default one";
    ButtonDialog::ParkMouse();

    subject.EnableWindow(FALSE);
    EXPECT_TRUE(ComesToShow(dialog, Disabled(Emphasised()))) << "disabled default button";
    dialog.SetDefID(kOther);
    subject.Invalidate();
    EXPECT_TRUE(ComesToShow(dialog, Disabled(Resting())));
    automation::MoveMouseOver(subject.m_hWnd);
    PumpFor();
    EXPECT_TRUE(ComesToShow(dialog, Disabled(Resting()))) << "disabled under the mouse";
}

INSTANTIATE_TEST_SUITE_P(Schemes, ButtonXPColors,
                         testing::Values("default", "high-contrast-dark", "warm"),
                         [](const auto& info) {
                             std::string name = info.param;
                             name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
                             return name;
                         });

TEST(ButtonXP, SchemeChangeShowsAtTheNextPaint) {
    ButtonDialog dialog;
    EXPECT_TRUE(ComesToShow(dialog, Resting()));
    const automation::SystemColorGuard scheme(automation::FindColorScheme("warm")->colors);
    dialog.m_subject.Invalidate();
    EXPECT_TRUE(ComesToShow(dialog, Resting()));
}

TEST(ButtonXP, ClicksAndKeysNotifyAsOfAnyButton) {
    ButtonDialog dialog;
    automation::Click(dialog.m_subject.m_hWnd);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_clicks == 1; }));

    automation::PressKey(VK_SPACE);
    EXPECT_TRUE(ComesToShow(dialog, Focused(Pressed())));
    EXPECT_EQ(dialog.m_clicks, 1);
    automation::ReleaseKey(VK_SPACE);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_clicks == 2; }));

    ButtonDialog::ParkMouse();
    dialog.SetDefID(kSubject);
    automation::TypeKey(VK_TAB);
    dialog.GetDlgItem(kOther)->SendMessage(BM_SETSTYLE, BS_OWNERDRAW, FALSE);
    automation::TypeKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_clicks == 3; })) << "Enter on the default button";
}

TEST(ButtonXP, SubclassingOnlyAddsTheOwnerDrawStyle) {
    const ButtonDialog plain(BS_PUSHBUTTON | WS_GROUP | BS_NOTIFY);
    const DWORD expected = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP | BS_NOTIFY | BS_OWNERDRAW;
    EXPECT_EQ(plain.m_subject.GetStyle(), expected);
}

TEST(ButtonXP, WithoutItsSkinItIsTheSystemsOwnButton) {
    ButtonDialog dialog;
    CButtonXP& subject = dialog.m_subject;
    CRect rect;
    subject.GetWindowRect(rect);
    dialog.SetWindowPos(nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER); // room for one more
    CButton plain;
    plain.Create("MHMHM", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect({10, 100}, rect.Size()),
                 &dialog, kOther + 10);
    plain.SetFont(dialog.GetFont());
    const auto showsTheSame = [&] {
        return PumpUntil([&] {
            return automation::CaptureWindow(subject.m_hWnd) ==
                   automation::CaptureWindow(plain.m_hWnd);
        });
    };
    const DWORD skinned = subject.GetStyle();
    const DWORD common = skinned & ~DWORD{BS_TYPEMASK};

    tint::EnableSkin(subject.m_hWnd, false);
    EXPECT_FALSE(tint::IsSkinEnabled(subject.m_hWnd));
    EXPECT_TRUE(tint::IsSkinEnabled(plain.m_hWnd)) << "the others stay as they are";
    EXPECT_FALSE(subject.GetUpdateRect(nullptr)) << "repainted at once";
    EXPECT_EQ(subject.GetStyle(), common | BS_PUSHBUTTON);
    EXPECT_TRUE(showsTheSame());
    automation::Click(subject.m_hWnd);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_clicks == 1; })) << "it still notifies";

    tint::EnableSkin(subject.m_hWnd, true);
    EXPECT_FALSE(subject.GetUpdateRect(nullptr)) << "repainted at once";
    EXPECT_EQ(subject.GetStyle(), skinned);
    EXPECT_TRUE(ComesToShow(dialog, Focused(Hot()))) << "the mouse is still over it";
    dialog.GotoDlgCtrl(dialog.GetDlgItem(kOther));
    ButtonDialog::ParkMouse();
    EXPECT_TRUE(ComesToShow(dialog, Resting()));

    dialog.SetDefID(kSubject);
    tint::EnableSkin(subject.m_hWnd, false);
    EXPECT_EQ(subject.GetStyle(), common | BS_DEFPUSHBUTTON)
        << "switched off as the default button";
}

TEST(ButtonXP, TheSkinMayBeSwitchedOffBeforeItIsThere) {
    ButtonDialog dialog;
    const HWND other = ::GetDlgItem(dialog, kOther);
    const DWORD before = ::GetWindowLongA(other, GWL_STYLE);
    tint::EnableSkin(other, false);
    tint::EnableSkin(nullptr, false);
    EXPECT_TRUE(tint::IsSkinEnabled(nullptr));
    CButtonXP late;
    late.SubclassWindow(other);
    EXPECT_EQ(late.GetStyle(), before);
    tint::EnableSkin(other, true);
    EXPECT_EQ(late.GetStyle(), before | BS_OWNERDRAW);
    late.UnsubclassWindow();
}

/// A draw request as the system would send it, on a canvas of the button's size.
DRAWITEMSTRUCT RequestFor(const CButtonXP& button, const Canvas& canvas, UINT state) {
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_BUTTON;
    item.CtlID = kSubject;
    item.itemAction = ODA_DRAWENTIRE;
    item.itemState = state;
    item.hwndItem = button.m_hWnd;
    item.hDC = canvas.dc();
    button.GetClientRect(&item.rcItem);
    return item;
}

/// Notes which drawing calls reach one device context.
class DrawCalls {
public:
    explicit DrawCalls(HDC watched) {
        g_calls = this;
        m_watched = watched;
        m_blit = m_patch.Redirect("gdi32.dll", "BitBlt", &Blit);
        m_rectangle = m_patch.Redirect("gdi32.dll", "Rectangle", &DrawRectangle);
        m_text = m_patch.Redirect("user32.dll", "DrawTextA", &DrawString);
        m_focus = m_patch.Redirect("user32.dll", "DrawFocusRect", &DrawFocus);
    }

    std::vector<std::string> m_all; ///< in order
    std::vector<std::string> m_onWatched;

private:
    void Note(HDC dc, const char* name) {
        m_all.push_back(name);
        if (dc == m_watched)
            m_onWatched.push_back(name);
    }

    static BOOL WINAPI Blit(HDC dc, int x, int y, int width, int height, HDC source, int sourceX,
                            int sourceY, DWORD operation) {
        g_calls->Note(dc, "BitBlt");
        return g_calls->m_blit(dc, x, y, width, height, source, sourceX, sourceY, operation);
    }

    static BOOL WINAPI DrawRectangle(HDC dc, int left, int top, int right, int bottom) {
        g_calls->Note(dc, "Rectangle");
        return g_calls->m_rectangle(dc, left, top, right, bottom);
    }

    static int WINAPI DrawString(HDC dc, LPCSTR text, int count, LPRECT rect, UINT format) {
        g_calls->Note(dc, "DrawText");
        EXPECT_EQ(format, UINT{DT_CENTER | DT_VCENTER | DT_SINGLELINE});
        return g_calls->m_text(dc, text, count, rect, format);
    }

    static BOOL WINAPI DrawFocus(HDC dc, const RECT* rect) {
        g_calls->Note(dc, "DrawFocusRect");
        return g_calls->m_focus(dc, rect);
    }

    static inline DrawCalls* g_calls = nullptr;
    HDC m_watched;
    decltype(&::BitBlt) m_blit;
    decltype(&::Rectangle) m_rectangle;
    decltype(&::DrawTextA) m_text;
    decltype(&::DrawFocusRect) m_focus;
    ImportPatch m_patch;
};

TEST(ButtonXP, NothingReachesTheTargetBeforeTheBufferCloses) {
    ButtonDialog dialog;
    const Canvas canvas(200, 60);
    DRAWITEMSTRUCT item = RequestFor(dialog.m_subject, canvas, ODS_FOCUS);
    const DrawCalls calls(canvas.dc());
    dialog.m_subject.DrawItem(&item);
    EXPECT_EQ(calls.m_all,
              (std::vector<std::string>{"Rectangle", "DrawText", "DrawFocusRect", "BitBlt"}));
    EXPECT_EQ(calls.m_onWatched, std::vector<std::string>{"BitBlt"});
}

TEST(ButtonXP, DisabledUnderTheMouseItIsHotNoMore) {
    ButtonDialog dialog;
    automation::MoveMouseOver(dialog.m_subject.m_hWnd);
    ASSERT_TRUE(ComesToShow(dialog, Hot()));
    const Canvas canvas(200, 60);
    DRAWITEMSTRUCT item = RequestFor(dialog.m_subject, canvas, ODS_DISABLED);
    dialog.m_subject.DrawItem(&item);
    EXPECT_EQ(canvas.At(0, 0), Resting().frame);
    EXPECT_EQ(canvas.At(1, 1), Resting().face);
}

TEST(ButtonXP, APaintLeavesTheContextAsFoundAndGivesEverythingBack) {
    ButtonDialog dialog;
    const Canvas canvas(200, 60);
    const auto state = [&] {
        const HDC dc = canvas.dc();
        return std::vector<UINT_PTR>{reinterpret_cast<UINT_PTR>(::GetCurrentObject(dc, OBJ_PEN)),
                                     reinterpret_cast<UINT_PTR>(::GetCurrentObject(dc, OBJ_BRUSH)),
                                     reinterpret_cast<UINT_PTR>(::GetCurrentObject(dc, OBJ_FONT)),
                                     reinterpret_cast<UINT_PTR>(::GetCurrentObject(dc, OBJ_BITMAP)),
                                     static_cast<UINT_PTR>(::GetTextColor(dc)),
                                     static_cast<UINT_PTR>(::GetBkMode(dc))};
    };
    const auto found = state();
    for (const UINT itemState :
         {0u, UINT{ODS_FOCUS}, UINT{ODS_SELECTED | ODS_FOCUS}, UINT{ODS_DISABLED}}) {
        const GdiLedger ledger;
        DRAWITEMSTRUCT item = RequestFor(dialog.m_subject, canvas, itemState);
        dialog.m_subject.DrawItem(&item);
        EXPECT_EQ(state(), found);
        EXPECT_EQ(ledger.Unreturned(), "");
        EXPECT_EQ(ledger.Faults(), "");
        EXPECT_EQ(ledger.Made(), 4) << "one context, one bitmap, one pen, one brush";
    }
}

TEST(ButtonXP, SurvivesADrawRequestWithoutAUsableContext) {
    ButtonDialog dialog;
    const Canvas canvas(10, 10);
    const GdiLedger ledger;
    DRAWITEMSTRUCT item = RequestFor(dialog.m_subject, canvas, ODS_FOCUS);
    for (const HDC dc : {static_cast<HDC>(nullptr), reinterpret_cast<HDC>(0x12345)}) {
        item.hDC = dc;
        dialog.m_subject.DrawItem(&item);
    }
    item.hDC = canvas.dc();
    for (const RECT& rect : {RECT{0, 0, 0, 0}, RECT{5, 5, 2, 2}, RECT{0, 0, 30000, 30000},
                             RECT{-100000, -100000, 100000, 100000}}) {
        item.rcItem = rect;
        dialog.m_subject.DrawItem(&item);
    }
    EXPECT_EQ(ledger.Unreturned(), "");
    EXPECT_EQ(ledger.Faults(), "");
}

SIZE_T MemoryInUse() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

// The handle table of GDI holds 65,536 entries: one lost object a paint would end in failure.
TEST(ButtonXP, SeventyThousandPaintsLoseNothing) {
    ButtonDialog dialog;
    const auto paint = [&](int times) {
        for (int i = 0; i < times; ++i) {
            dialog.m_subject.Invalidate(FALSE);
            dialog.m_subject.UpdateWindow();
        }
    };
    paint(1000); // what is kept is in place by now
    const SIZE_T before = MemoryInUse();
    paint(70000);
    const SIZE_T after = MemoryInUse();
    EXPECT_LT(after, before + 1024 * 1024);

    const HPEN pen = ::CreatePen(PS_SOLID, 1, 0);
    EXPECT_NE(pen, nullptr);
    ::DeleteObject(pen);
    EXPECT_TRUE(ComesToShow(dialog, Resting()));
}

} // namespace
