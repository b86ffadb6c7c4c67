// SPDX-License-Identifier: MIT
#include "controls/ButtonXP.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <set>
#include <string>
#include <tuple>

#include "automation/Picture.h"
#include "automation/SystemColors.h"
#include "draw/Hls.h"
#include "draw/Selectors.h"
#include "draw/Skin.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/SubjectDialog.h"

using automation::Picture;

namespace {

constexpr WORD kOther = 100;

class ButtonDialog : public SubjectDialog<CButtonXP> {
public:
    explicit ButtonDialog(DWORD style = BS_PUSHBUTTON) {
        Open("BUTTON", "MHMHM", style | WS_TABSTOP);
    }
    ~ButtonDialog() override { automation::ReleaseMouse(); }

    int m_clicks = 0;

protected:
    afx_msg void OnClicked() { ++m_clicks; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ButtonDialog, CDialog)
    ON_BN_CLICKED(kSubject, &ButtonDialog::OnClicked)
END_MESSAGE_MAP()

struct Look {
    COLORREF frame;
    COLORREF face;
    COLORREF text;
    bool focusRectangle = false;

    Look Focused() const { return {frame, face, text, true}; }
    Look Disabled() const { return {frame, face, ::GetSysColor(COLOR_GRAYTEXT), focusRectangle}; }
};

// The colours by the rule, from the system colours of the moment.
Look Unpressed(int frame) {
    return {::GetSysColor(frame), AdjustColorLS(::GetSysColor(COLOR_BTNFACE), 15, 0),
            ::GetSysColor(COLOR_BTNTEXT)};
}

Look Resting() {
    return Unpressed(COLOR_BTNSHADOW);
}

Look Emphasised() {
    return Unpressed(COLOR_3DDKSHADOW);
}

Look Hot() {
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    return {highlight, AdjustColorLS(highlight, 80, -66), RGB(0, 0, 0)};
}

Look Pressed() {
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    return {highlight, AdjustColorLS(highlight, 50, -50), RGB(0xF0, 0xF0, 0xF0)};
}

using Colors = std::set<COLORREF>;

/// The colours between `from` and `to` pixels from the edge of a picture.
Colors RingColors(const Picture& picture, int from, int to) {
    Colors colors;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) {
            const int inset = std::min({x, y, picture.width - 1 - x, picture.height - 1 - y});
            if (inset >= from && inset < to)
                colors.insert(picture.At(x, y));
        }
    return colors;
}

bool Shows(const Picture& picture, const Look& look) {
    const bool focusDots = RingColors(picture, 2, 3).size() > 1;
    return RingColors(picture, 0, 1) == Colors{look.frame} &&
           RingColors(picture, 1, 2) == Colors{look.face} && focusDots == look.focusRectangle &&
           RingColors(picture, 3, INT_MAX) == Colors{look.face, look.text};
}

/// Waits until the subject shows the look on the screen.
testing::AssertionResult ComesToShow(const ButtonDialog& dialog, const Look& look) {
    Picture picture;
    if (PumpUntil([&] {
            picture = automation::CaptureWindow(dialog.m_subject.m_hWnd);
            return Shows(picture, look);
        }))
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << "frame and face are " << testing::PrintToString(RingColors(picture, 0, 2))
           << ", the inside " << testing::PrintToString(RingColors(picture, 2, INT_MAX));
}

void WalkThroughStates() {
    ButtonDialog dialog;
    CButtonXP& subject = dialog.m_subject;
    EXPECT_TRUE(ComesToShow(dialog, Resting()));
    automation::MoveMouseOver(subject.m_hWnd);
    EXPECT_TRUE(ComesToShow(dialog, Hot()));
    ButtonDialog::ParkMouse();
    EXPECT_TRUE(ComesToShow(dialog, Resting())) << "after the mouse has left";

    automation::MoveMouseOver(subject.m_hWnd);
    automation::PressMouse();
    EXPECT_TRUE(ComesToShow(dialog, Pressed().Focused())) << "pressing takes the focus too";
    ButtonDialog::ParkMouse();
    automation::ReleaseMouse();
    EXPECT_TRUE(ComesToShow(dialog, Emphasised().Focused())) << "released outside";
    EXPECT_EQ(dialog.m_clicks, 0);
    automation::PressKey(VK_SPACE);
    EXPECT_TRUE(ComesToShow(dialog, Pressed().Focused())) << "by a key";
    automation::ReleaseKey(VK_SPACE);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_clicks == 1; }));
    automation::TypeKey(VK_TAB);
    EXPECT_TRUE(ComesToShow(dialog, Resting())) << "after the focus has left";

    dialog.SetDefID(kSubject);
    subject.Invalidate();
    EXPECT_TRUE(ComesToShow(dialog, Emphasised())) << "default button";
    automation::MoveMouseOver(subject.m_hWnd);
    EXPECT_TRUE(ComesToShow(dialog, Hot())) << "the hot frame wins over the default one";
    subject.EnableWindow(FALSE);
    EXPECT_TRUE(ComesToShow(dialog, Emphasised().Disabled())) << "disabled under the mouse";
    dialog.SetDefID(kOther);
    subject.Invalidate();
    EXPECT_TRUE(ComesToShow(dialog, Resting().Disabled()));

    const automation::SystemColorGuard other(automation::FindColorScheme("default")->colors);
    subject.Invalidate();
    EXPECT_TRUE(ComesToShow(dialog, Resting().Disabled())) << "the colours of the moment";
}

TEST(ButtonXP, ColorsFollowEveryState) {
    for (const char* const name : {"default", "high-contrast-dark", "warm"}) {
        SCOPED_TRACE(name);
        const automation::SystemColorGuard scheme(automation::FindColorScheme(name)->colors);
        WalkThroughStates();
    }
}

TEST(ButtonXP, WithoutItsSkinItIsTheSystemsOwnButton) {
    ButtonDialog dialog(BS_PUSHBUTTON | WS_GROUP | BS_NOTIFY);
    CButtonXP& subject = dialog.m_subject;
    CRect rect;
    subject.GetWindowRect(rect);
    CButton plain;
    plain.Create("MHMHM", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect({150, 100}, rect.Size()),
                 &dialog, kOther + 10);
    plain.SetFont(dialog.GetFont());
    const auto showsTheSame = [&] {
        return PumpUntil([&] {
            return automation::CaptureWindow(subject.m_hWnd) ==
                   automation::CaptureWindow(plain.m_hWnd);
        });
    };
    const DWORD common = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP | BS_NOTIFY;
    EXPECT_EQ(subject.GetStyle(), common | BS_OWNERDRAW);

    tint::EnableSkin(subject.m_hWnd, false);
    EXPECT_FALSE(subject.GetUpdateRect(nullptr)) << "repainted at once";
    EXPECT_EQ(subject.GetStyle(), common | BS_PUSHBUTTON);
    EXPECT_TRUE(showsTheSame());
    automation::Click(subject.m_hWnd);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_clicks == 1; })) << "it still notifies";

    tint::EnableSkin(subject.m_hWnd, true);
    EXPECT_FALSE(subject.GetUpdateRect(nullptr)) << "repainted at once";
    EXPECT_EQ(subject.GetStyle(), common | BS_OWNERDRAW);
    EXPECT_TRUE(ComesToShow(dialog, Hot().Focused())) << "the mouse is still over it";
    dialog.SetDefID(kSubject);
    tint::EnableSkin(subject.m_hWnd, false);
    EXPECT_EQ(subject.GetStyle(), common | BS_DEFPUSHBUTTON) << "switched off as the default one";

    tint::EnableSkin(nullptr, false);
    EXPECT_TRUE(tint::IsSkinEnabled(nullptr));
    EXPECT_TRUE(tint::IsSkinEnabled(plain.m_hWnd)) << "the others stay as they are";
    const DWORD before = plain.GetStyle();
    tint::EnableSkin(plain.m_hWnd, false);
    CButtonXP late;
    late.SubclassWindow(plain.UnsubclassWindow());
    EXPECT_EQ(late.GetStyle(), before) << "switched off before it is there";
    tint::EnableSkin(late, true);
    EXPECT_EQ(late.GetStyle(), before | BS_OWNERDRAW);
    late.UnsubclassWindow();
}

TEST(ButtonXP, TheCaptionIsOneCentredLineInTheSystemsFont) {
    ButtonDialog dialog;
    dialog.m_subject.SetWindowText("two\r\nlines");
    const Canvas shown(82, 42);
    const Canvas expected(82, 42);
    DRAWITEMSTRUCT item = {};
    item.hDC = shown.dc();
    item.rcItem = {0, 0, 82, 42};
    dialog.m_subject.DrawItem(&item);

    const CPenSelector frame(expected.dc(), Resting().frame);
    const CBrushSelector face(expected.dc(), Resting().face);
    const CDCObjectSaver font(expected.dc(), DEFAULT_GUI_FONT, Resting().text);
    ::Rectangle(expected.dc(), 0, 0, 82, 42);
    ::SetBkMode(expected.dc(), TRANSPARENT);
    ::DrawTextA(expected.dc(), "two\r\nlines", -1, &item.rcItem,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    EXPECT_EQ(shown.Snapshot(), expected.Snapshot());
}

TEST(ButtonXP, APaintLeavesTheContextAsFoundAndGivesEverythingBack) {
    ButtonDialog dialog;
    const Canvas canvas(200, 60);
    const HDC dc = canvas.dc();
    const auto state = [dc] {
        return std::tuple(::GetCurrentObject(dc, OBJ_PEN), ::GetCurrentObject(dc, OBJ_BRUSH),
                          ::GetCurrentObject(dc, OBJ_FONT), ::GetTextColor(dc), ::GetBkMode(dc));
    };
    const auto found = state();
    DRAWITEMSTRUCT item = {};
    item.hwndItem = dialog.m_subject.m_hWnd;
    item.itemState = ODS_SELECTED | ODS_FOCUS;
    for (const RECT& rect : {RECT{0, 0, 70, 30}, RECT{0, 0, 0, 0}, RECT{5, 5, 2, 2},
                             RECT{-100000, -100000, 100000, 100000}})
        for (const HDC target : {dc, HDC{}, reinterpret_cast<HDC>(0x12345)}) {
            const GdiLedger ledger;
            item.rcItem = rect;
            item.hDC = target;
            dialog.m_subject.DrawItem(&item);
            EXPECT_TRUE(state() == found);
            EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
            EXPECT_TRUE(target != dc || ledger.Made() == 4)
                << "one context, one bitmap, one pen, one brush";
        }
}

} // namespace
