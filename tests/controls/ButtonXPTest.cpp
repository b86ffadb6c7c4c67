// SPDX-License-Identifier: MIT
#include "controls/ButtonXP.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "automation/Picture.h"
#include "automation/RealInput.h"
#include "automation/SystemColors.h"
#include "draw/Hls.h"
#include "draw/Skin.h"
#include "tests/support/Canvas.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/Pump.h"

using automation::Picture;

namespace {

constexpr WORD kOther = 100;
constexpr WORD kSubject = 101;

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

Look Tinted(int luminance, int saturation, COLORREF text) {
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    return {highlight, AdjustColorLS(highlight, luminance, saturation), text};
}

Look Hot() {
    return Tinted(80, -66, RGB(0, 0, 0));
}

Look Pressed() {
    return Tinted(50, -50, RGB(0xF0, 0xF0, 0xF0));
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
    const bool shown = PumpUntil([&] {
        picture = automation::CaptureWindow(dialog.m_subject.m_hWnd);
        return Shows(picture, look);
    });
    if (shown)
        return testing::AssertionSuccess();
    const auto list = [&](int from, int to) {
        return testing::PrintToString(RingColors(picture, from, to));
    };
    return testing::AssertionFailure()
           << "the screen has the frame " << list(0, 1) << ", face " << list(1, 2)
           << ", focus line " << list(2, 3) << ", inside " << list(3, INT_MAX);
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
    EXPECT_TRUE(ComesToShow(dialog, Pressed().Focused())) << "pressing takes the focus too";
    ButtonDialog::ParkMouse();
    EXPECT_TRUE(PumpUntil([&] {
        return !Shows(automation::CaptureWindow(subject.m_hWnd), Pressed().Focused());
    })) << "dragged out, it is up again";
    automation::ReleaseMouse();
    EXPECT_TRUE(ComesToShow(dialog, Emphasised().Focused())) << "released outside";
    EXPECT_EQ(dialog.m_clicks, 0);

    automation::TypeKey(VK_TAB);
    EXPECT_TRUE(ComesToShow(dialog, Resting())) << "after the focus has left";
    automation::TypeKey(VK_TAB);
    EXPECT_TRUE(ComesToShow(dialog, Emphasised().Focused())) << "focused by Tab";
    automation::TypeKey(VK_TAB);

    dialog.SetDefID(kSubject);
    subject.Invalidate();
    EXPECT_TRUE(ComesToShow(dialog, Emphasised())) << "default button";
    automation::MoveMouseOver(subject.m_hWnd);
    EXPECT_TRUE(ComesToShow(dialog, Hot())) << "the hot frame wins over the default one";
    ButtonDialog::ParkMouse();

    subject.EnableWindow(FALSE);
    EXPECT_TRUE(ComesToShow(dialog, Emphasised().Disabled())) << "disabled default button";
    dialog.SetDefID(kOther);
    subject.Invalidate();
    EXPECT_TRUE(ComesToShow(dialog, Resting().Disabled()));
    automation::MoveMouseOver(subject.m_hWnd);
    PumpFor();
    EXPECT_TRUE(ComesToShow(dialog, Resting().Disabled())) << "disabled under the mouse";

    const automation::SystemColorGuard other(automation::FindColorScheme("default")->colors);
    subject.Invalidate();
    EXPECT_TRUE(ComesToShow(dialog, Resting().Disabled())) << "the colours of the moment";
}

INSTANTIATE_TEST_SUITE_P(Schemes, ButtonXPColors,
                         testing::Values("default", "high-contrast-dark", "warm"),
                         [](const auto& info) {
                             std::string name = info.param;
                             name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
                             return name;
                         });

TEST(ButtonXP, ClicksAndKeysNotifyAsOfAnyButton) {
    ButtonDialog dialog;
    automation::Click(dialog.m_subject.m_hWnd);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_clicks == 1; }));

    automation::PressKey(VK_SPACE);
    EXPECT_TRUE(ComesToShow(dialog, Pressed().Focused()));
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
    EXPECT_TRUE(ComesToShow(dialog, Hot().Focused())) << "the mouse is still over it";
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

TEST(ButtonXP, NothingReachesTheTargetBeforeTheBufferCloses) {
    static decltype(&::BitBlt) blit;
    static HDC target;
    static COLORREF beforeTheCopy;
    ButtonDialog dialog;
    const Canvas canvas(200, 60);
    DRAWITEMSTRUCT item = RequestFor(dialog.m_subject, canvas, ODS_FOCUS);
    target = canvas.dc();
    beforeTheCopy = CLR_INVALID;
    ImportPatch patch;
    blit = patch.Redirect<decltype(blit)>(
        "gdi32.dll", "BitBlt",
        [](HDC dc, int x, int y, int cx, int cy, HDC source, int sx, int sy, DWORD operation) {
            if (dc == target)
                beforeTheCopy = ::GetPixel(target, 0, 0);
            return blit(dc, x, y, cx, cy, source, sx, sy, operation);
        });
    dialog.m_subject.DrawItem(&item);
    EXPECT_EQ(beforeTheCopy, Canvas::kUntouched);
    EXPECT_EQ(canvas.At(0, 0), Emphasised().frame);
}

TEST(ButtonXP, DisabledUnderTheMouseItIsHotNoMore) {
    ButtonDialog dialog;
    automation::MoveMouseOver(dialog.m_subject.m_hWnd);
    ASSERT_TRUE(ComesToShow(dialog, Hot()));
    const Canvas canvas(200, 60);
    DRAWITEMSTRUCT item = RequestFor(dialog.m_subject, canvas, ODS_DISABLED);
    dialog.m_subject.DrawItem(&item);
    EXPECT_EQ(canvas.At(0, 0), Resting().frame);
}

TEST(ButtonXP, APaintLeavesTheContextAsFoundAndGivesEverythingBack) {
    ButtonDialog dialog;
    const Canvas canvas(200, 60);
    const auto state = [&] {
        std::vector<const void*> objects;
        for (const UINT type : {OBJ_PEN, OBJ_BRUSH, OBJ_FONT, OBJ_BITMAP})
            objects.push_back(::GetCurrentObject(canvas.dc(), type));
        return std::tuple(objects, ::GetTextColor(canvas.dc()), ::GetBkMode(canvas.dc()));
    };
    const auto found = state();
    for (const UINT itemState :
         {0u, UINT{ODS_FOCUS}, UINT{ODS_SELECTED | ODS_FOCUS}, UINT{ODS_DISABLED}}) {
        const GdiLedger ledger;
        DRAWITEMSTRUCT item = RequestFor(dialog.m_subject, canvas, itemState);
        dialog.m_subject.DrawItem(&item);
        EXPECT_TRUE(state() == found);
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

} // namespace
