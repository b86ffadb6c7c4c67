// SPDX-License-Identifier: MIT
// One item, painted into a canvas as the system would ask for it, against the rule's own picture.
#include <afxwin.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "automation/SystemColors.h"
#include "draw/Selectors.h"
#include "menus/MenuItemData.h"
#include "menus/MenuLook.h"
#include "menus/MenuPaint.h"
#include "menus/MenuRecords.h"
#include "menus/MenuState.h"
#include "tests/menus/MenuRules.h"
#include "tests/menus/MenuTesting.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/ImportPatch.h"

namespace {

constexpr int kLeft = 10;
constexpr int kTop = 6;
constexpr int kWidth = 140;
constexpr int kHeight = 22;
constexpr RECT kRow = {kLeft, kTop, kLeft + kWidth, kTop + kHeight};
constexpr UINT kId = TestMenu::kFirst;
constexpr ULONG_PTR kPopup = tint::MenuItemData::PopupItem(kHeight, 40, 60).Word();
constexpr ULONG_PTR kBar = tint::MenuItemData::BarItem(60).Word();
constexpr UINT kDisabled = MF_GRAYED | MF_DISABLED;

/// A canvas with room around the row, and the shapes a rule is made of, in coordinates of the row.
class RowCanvas : public Canvas {
public:
    RowCanvas() : Canvas(160, 40) {}

    void Fill(int left, int top, int right, int bottom, COLORREF color) const {
        const CBrushSelector brush(dc(), color);
        ::PatBlt(dc(), kLeft + left, kTop + top, right - left, bottom - top, PATCOPY);
    }
    void Frame(int left, int top, int right, int bottom, COLORREF line, COLORREF fill) const {
        const CPenSelector pen(dc(), line);
        const CBrushSelector brush(dc(), fill);
        ::Rectangle(dc(), kLeft + left, kTop + top, kLeft + right, kTop + bottom);
    }
    void Gradient(int width, COLORREF start) const { // has a test of its own
        const int state = ::SaveDC(dc());
        ::IntersectClipRect(dc(), kLeft, kTop, kRow.right, kRow.bottom);
        DrawGradient(dc(), start, 0xFFFFFF, {kLeft, kTop, kLeft + width, kRow.bottom});
        ::RestoreDC(dc(), state);
    }
    void Paint(HMENU menu, ULONG_PTR data, UINT state) const {
        DRAWITEMSTRUCT request = {};
        request.CtlType = ODT_MENU;
        request.itemID = kId;
        request.itemState = state;
        request.hwndItem = reinterpret_cast<HWND>(menu);
        request.hDC = dc();
        request.rcItem = kRow;
        request.itemData = data;
        EXPECT_TRUE(CMenuXP::OnDrawItem(&request, nullptr));
    }
};

/// A value of the profile for the life of the object.
class LookSetting {
public:
    LookSetting(const char* section, const char* key, int value) : m_section(section), m_key(key) {
        ::AfxGetApp()->WriteProfileInt(section, key, value);
        tint::MenuLook::Get().Forget();
    }
    ~LookSetting() {
        ::AfxGetApp()->WriteProfileString(m_section, m_key, nullptr);
        tint::MenuLook::Get().Forget();
    }

private:
    const char* m_section;
    const char* m_key;
};

decltype(&::GetDeviceCaps) g_realDeviceCaps;
int g_bitsPerPixel = 32;

int WINAPI PretendDeviceCaps(HDC dc, int index) {
    return index == BITSPIXEL ? g_bitsPerPixel : g_realDeviceCaps(dc, index);
}

struct BackgroundCase {
    const char* name;
    ULONG_PTR data;
    UINT state;
    std::function<void(const RowCanvas&)> rule;
    UINT flags = 0;
    bool gradient = true;
    bool gradientSelected = true;
    int bitsPerPixel = 32;
};

TEST(MenuItemPaint, BackgroundIsTheRules) {
    ImportPatch patch;
    g_realDeviceCaps = patch.Redirect("gdi32.dll", "GetDeviceCaps", &PretendDeviceCaps);
    // A rule is worked out at each call, from the colours of the moment.
    const auto bar = [](auto& c) { c.Fill(0, 0, kWidth, kHeight, System(COLOR_BTNFACE)); };
    const auto hotBar = [](COLORREF (*fill)()) {
        return [fill](auto& c) {
            c.Fill(0, 0, kWidth, kHeight, System(COLOR_BTNFACE));
            c.Frame(0, 0, kWidth - 4, kHeight, System(COLOR_HIGHLIGHT), fill());
        };
    };
    const auto light = [] { return Highlight(70, -57); };
    const auto pale = [] { return Face(73); };
    const auto openBar = [](auto& c) {
        c.Fill(0, 0, kWidth, kHeight, System(COLOR_BTNFACE));
        c.Frame(0, 0, kWidth - 4, kHeight, System(COLOR_3DDKSHADOW), Face(20));
        ForRightEdge(kWidth, 0, kHeight, [&](int x, int y, int row, int column) {
            if (y < kHeight)
                c.Fill(x, y, x + 1, y + 1, Shaded(System(COLOR_BTNFACE), row, column));
        });
    };
    const auto resting = [](auto& c) {
        c.Fill(0, 0, kWidth, kHeight, 0xFFFFFF);
        c.Gradient(30, 0xE4C4B4);
    };
    const auto flat = [](auto& c) {
        c.Fill(0, 0, kWidth, kHeight, Face(75));
        c.Fill(0, 0, 22, kHeight, Face(20));
    };
    const auto separator = [resting](auto& c) {
        resting(c);
        c.Fill(30, kHeight / 2, kWidth - 1, kHeight / 2 + 1, Face(-18));
    };
    const auto selected = [](auto& c) {
        c.Gradient(kWidth, 0xE4C4B4);
        c.Frame(0, 0, kWidth, kHeight, System(COLOR_HIGHLIGHT), tint::kNoColor);
    };
    const auto selectedDisabled = [](auto& c) {
        c.Gradient(kWidth, Face(73));
        c.Frame(0, 0, kWidth, kHeight, System(COLOR_HIGHLIGHT), tint::kNoColor);
    };
    const auto selectedFlat = [](COLORREF (*fill)()) {
        return [fill](auto& c) { c.Frame(0, 0, kWidth, kHeight, System(COLOR_HIGHLIGHT), fill()); };
    };
    const BackgroundCase cases[] = {
        {"bar", kBar, 0, bar},
        {"hot bar", kBar, ODS_HOTLIGHT, hotBar(light)},
        {"hot disabled bar", kBar, ODS_HOTLIGHT, hotBar(pale), kDisabled},
        {"hot, inactive", kBar, ODS_HOTLIGHT | ODS_INACTIVE, bar},
        {"open bar", kBar, ODS_SELECTED, openBar},
        {"popup", kPopup, 0, resting},
        {"flat", kPopup, 0, flat, 0, false},
        {"256 colours", kPopup, 0, flat, 0, true, true, 8},
        {"15 bits", kPopup, 0, resting, 0, true, true, 15},
        {"selected", kPopup, ODS_SELECTED, selected},
        {"hot popup", kPopup, ODS_HOTLIGHT, selected},
        {"flat column", kPopup, ODS_SELECTED, selectedFlat(light), 0, false},
        {"flat highlight", kPopup, ODS_SELECTED, selectedFlat(light), 0, true, false},
        {"selected, 256 colours", kPopup, ODS_SELECTED, selectedFlat(light), 0, true, true, 8},
        {"selected, disabled", kPopup, ODS_SELECTED, selectedDisabled, kDisabled},
        {"the same, flat", kPopup, ODS_SELECTED, selectedFlat(pale), kDisabled, false},
        {"separator", kPopup, 0, separator, MF_SEPARATOR},
    };
    tint::MenuRecords::Get().textOfCommand.RemoveKey(kId); // background is all there is
    const TestMenu menu({""});
    for (const automation::ColorScheme& scheme : automation::ColorSchemes()) {
        const automation::SystemColorGuard colors(scheme.colors);
        for (const BackgroundCase& c : cases) {
            ::ModifyMenuA(menu, kId, c.flags, kId, "");
            const LookSetting gradient("MenuXP", "ShowGradient", c.gradient);
            const LookSetting gradientSelected("MenuEx", "ShowGradientSel", c.gradientSelected);
            g_bitsPerPixel = c.bitsPerPixel;
            CMenuXP::ConvertMenu(nullptr, menu, true, false); // as a popup that opens anew
            const RowCanvas ours;
            const RowCanvas rule;
            ours.Paint(menu, c.data, c.state);
            c.rule(rule);
            EXPECT_EQ(ours.Snapshot(), rule.Snapshot()) << scheme.name << ": " << c.name;
        }
    }
}

TEST(MenuItemPaint, LookIsReadOnceAndFollowsTheSystemWhereItSaysSo) {
    const LookSetting start("MenuXP", "GradientStart", -1);
    const LookSetting end("MenuXP", "GradientEnd", -1);
    tint::MenuLook& look = tint::MenuLook::Get();
    EXPECT_EQ(look.GradientStart(), Face(20));
    const automation::SystemColorGuard warm(automation::FindColorScheme("warm")->colors);
    EXPECT_EQ(look.GradientStart(), Face(20));
    EXPECT_EQ(look.GradientEnd(), Face(75));
    ::AfxGetApp()->WriteProfileInt("MenuXP", "GradientStart", 0x123456);
    EXPECT_EQ(look.GradientStart(), Face(20)) << "it was read before";
    for (const int width : {-5, 0, 12, INT_MAX}) {
        const LookSetting setting("MenuXP", "GradientWidth", width);
        const RowCanvas canvas;
        canvas.Paint(nullptr, kPopup, 0);
        const int column = std::clamp(width, 0, kWidth);
        EXPECT_EQ(canvas.Count(Face(75), {kLeft + column, kTop, kRow.right, kRow.bottom}),
                  (kWidth - column) * kHeight);
    }
}

struct TextCase {
    const char* caption;
    ULONG_PTR data = kPopup;
    UINT state = 0;
    UINT flags = 0;
    bool isDefault = false;
    bool keyboardCues = true;
};

TEST(MenuItemPaint, TextsAreTheRules) {
    const char* const save = "Save && &Exit\tCtrl+Shift+&S";
    for (const TextCase& c : {
             TextCase{save}, TextCase{save, kPopup, ODS_SELECTED},
             TextCase{save, kPopup, 0, kDisabled},
             TextCase{save, kPopup, 0, MF_GRAYED}, // one of the two bits is not enough
             TextCase{save, kPopup, ODS_INACTIVE, kDisabled}, TextCase{save, kPopup, 0, 0, true},
             TextCase{save, kPopup, ODS_NOACCEL},
             TextCase{save, kPopup, ODS_NOACCEL, 0, false, false},
             TextCase{save, kPopup, 0, 0, false, false}, TextCase{"&Plain"},
             TextCase{"&File", kBar}, TextCase{"&File", kBar, 0, 0, true}, // bold in popups only
             TextCase{"&File", kBar, ODS_INACTIVE},
             TextCase{"&File", kBar, ODS_SELECTED | ODS_NOACCEL, 0, false, false},
             TextCase{"X\tCtrl+X"}, // one character before a tab: blank
         }) {
        ::SystemParametersInfoA(SPI_SETKEYBOARDCUES, 0,
                                reinterpret_cast<void*>(INT_PTR{c.keyboardCues}), 0);
        const TestMenu menu({c.caption});
        const RowCanvas ours;
        const RowCanvas rule;
        ::EnableMenuItem(menu, kId, c.flags);
        if (c.isDefault)
            ::SetMenuDefaultItem(menu, kId, FALSE);
        tint::MenuRecords::Get().textOfCommand.RemoveKey(kId);
        rule.Paint(menu, c.data, c.state); // the background
        CMenuXP::ConvertMenu(nullptr, menu, true, false);
        ours.Paint(menu, c.data, c.state);

        const std::string caption = c.caption;
        const std::size_t tab = std::min(caption.find('\t'), caption.size());
        const bool bar = c.data == kBar;
        const CDCObjectSaver font(rule.dc(), DEFAULT_GUI_FONT,
                                  (c.state & ODS_INACTIVE) != 0 ? System(COLOR_BTNSHADOW)
                                  : c.flags == kDisabled        ? Face(-18)
                                                                : System(COLOR_MENUTEXT));
        const CFontWeightSelector weight(rule.dc(), c.isDefault && !bar);
        ::SetBkMode(rule.dc(), TRANSPARENT);
        const UINT prefix = (c.state & ODS_NOACCEL) != 0 && !c.keyboardCues ? DT_HIDEPREFIX : 0;
        RECT place = kRow;
        (bar ? place.right : place.left) += bar ? -4 : 30;
        if (tab != 1)
            ::DrawTextA(rule.dc(), caption.c_str(), static_cast<int>(tab), &place,
                        DT_VCENTER | DT_SINGLELINE | prefix | (bar ? DT_CENTER : 0));
        place.right -= 12;
        if (tab != 1 && tab < caption.size())
            ::DrawTextA(rule.dc(), caption.c_str() + tab + 1, -1, &place,
                        DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
        EXPECT_EQ(ours.Snapshot(), rule.Snapshot()) << caption << ' ' << c.state << ' ' << c.flags;
    }
    ::SystemParametersInfoA(SPI_SETKEYBOARDCUES, 0, reinterpret_cast<void*>(INT_PTR{TRUE}), 0);
}

/// An image list with a red square of which the upper left pixel is transparent.
class RedImage {
public:
    static constexpr COLORREF kRed = RGB(200, 0, 0);

    RedImage() : m_list(::ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 0)) {
        const RowCanvas canvas;
        canvas.Fill(0, 0, 16, 16, kRed);
        canvas.Fill(0, 0, 1, 1, Canvas::kUntouched);
        const HBITMAP bitmap = ::CreateCompatibleBitmap(canvas.dc(), 16, 16);
        {
            CDC dc;
            dc.Attach(::CreateCompatibleDC(canvas.dc()));
            tint::ObjectSelection selection(dc);
            selection.Select(bitmap);
            ::BitBlt(dc, 0, 0, 16, 16, canvas.dc(), kLeft, kTop, SRCCOPY);
        }
        ::ImageList_AddMasked(m_list, bitmap, Canvas::kUntouched);
        ::DeleteObject(bitmap);
    }
    ~RedImage() { ::ImageList_Destroy(m_list); }

    CImgDesc Desc() const { return {m_list, 0}; }

private:
    HIMAGELIST m_list;
};

/// The image or its silhouette in one colour.
void PutSquare(const RowCanvas& canvas, int at, COLORREF color) {
    const COLORREF corner = canvas.At(kLeft + at, kTop + at);
    canvas.Fill(at, at, at + 16, at + 16, color);
    canvas.Fill(at, at, at + 1, at + 1, corner);
}

void PutBullet(const RowCanvas& canvas, COLORREF color, COLORREF fill) {
    const CPenSelector pen(canvas.dc(), color);
    const CBrushSelector brush(canvas.dc(), color);
    const int x = kLeft + 12;
    const int y = kTop + kHeight / 2;
    ::Ellipse(canvas.dc(), x - 4, y - 3, x + 3, y + 4);
    ::SetPixel(canvas.dc(), x + 1, y + 2, fill);
}

void PutCheck(const RowCanvas& canvas, COLORREF color, COLORREF fill) {
    const HBITMAP check = ::LoadBitmapA(nullptr, MAKEINTRESOURCEA(32760));
    const auto shape = automation::ReadBitmap(check);
    ::DeleteObject(check);
    for (int y = 0; y < shape.height; ++y)
        for (int x = 0; x < std::min(shape.width, 15); ++x)
            canvas.Fill(5 + x, 3 + y, 6 + x, 4 + y, shape.At(x, y) == 0 ? color : fill);
}

TEST(MenuItemPaint, MarksAndImagesAreTheRules) {
    enum Kind { kCheck, kRadio, kImage };
    const RedImage image;
    auto& records = tint::MenuRecords::Get();
    for (int c = 0; c < 24; ++c) {
        const Kind kind = static_cast<Kind>(c / 8);
        const bool selected = (c & 1) != 0;
        const bool checked = (c & 2) != 0;
        const bool disabled = (c & 4) != 0;
        // An inactive window's bullets have the colour of others.
        const UINT state = (selected ? ODS_SELECTED : 0) | (kind == kRadio ? ODS_INACTIVE : 0);
        const TestMenu menu({"   "});
        MENUITEMINFOA info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_STATE;
        info.fType = kind == kRadio ? MFT_RADIOCHECK : 0;
        info.fState = (checked ? MFS_CHECKED : 0) | (disabled ? MFS_DISABLED : 0);
        ::SetMenuItemInfoA(menu, 0, TRUE, &info);

        const RowCanvas ours;
        const RowCanvas rule;
        records.textOfCommand.RemoveKey(kId);
        rule.Paint(menu, kPopup, state);
        CMenuXP::ConvertMenu(nullptr, menu, true, false);
        if (kind == kImage)
            records.imageOfCommand[kId] = image.Desc();
        ours.Paint(menu, kPopup, state);
        records.imageOfCommand.RemoveKey(kId);

        const COLORREF fill = disabled   ? Face(73)
                              : selected ? Highlight(50, -50)
                                         : Highlight(70, -57);
        const COLORREF faint = Face(-27);
        if (checked)
            rule.Frame(1, 1, 20, kHeight - 1, System(COLOR_HIGHLIGHT), fill);
        if (kind == kImage && disabled) {
            PutSquare(rule, 3, faint);
        } else if (kind == kImage) {
            const bool raised = selected && !checked;
            if (raised)
                PutSquare(rule, 4, Highlight(50, -66));
            PutSquare(rule, raised ? 2 : 3, RedImage::kRed);
        } else if (checked && kind == kRadio) {
            PutBullet(rule, disabled ? faint : System(COLOR_MENUTEXT), fill);
        } else if (checked) {
            PutCheck(rule, disabled ? Face(-18) : System(COLOR_MENUTEXT), fill);
        }
        EXPECT_EQ(ours.Snapshot(), rule.Snapshot())
            << kind << (selected ? " selected" : "") << (checked ? " checked" : "")
            << (disabled ? " disabled" : "");
    }
}

TEST(MenuItemPaint, CountsItselfAndLosesNothing) {
    const TestMenu menu({"&Text\tF1"});
    ::CheckMenuItem(menu, kId, MF_CHECKED);
    CMenuXP::ConvertMenu(nullptr, menu, true, false);
    const RowCanvas canvas;
    canvas.Paint(menu, kBar, ODS_SELECTED); // what is kept is in place by now
    const GdiLedger ledger;
    const BYTE before = tint::GetMenuState().paintCount;
    canvas.Paint(menu, kPopup, ODS_SELECTED);
    canvas.Paint(menu, kBar, ODS_SELECTED);
    DRAWITEMSTRUCT request = {};
    request.CtlType = ODT_MENU;
    request.hDC = canvas.dc();
    for (const RECT& rect : {RECT{0, 0, 0, 0}, RECT{5, 5, 2, 2}, RECT{0, 0, INT_MAX, INT_MAX},
                             RECT{INT_MIN, INT_MIN, INT_MAX, INT_MAX}}) {
        request.rcItem = rect;
        CMenuXP::OnDrawItem(&request, nullptr);
    }
    EXPECT_EQ(static_cast<BYTE>(tint::GetMenuState().paintCount - before), 6);
    EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
    ::SetRectEmpty(&tint::GetMenuState().openBarItem);
    request.CtlType = ODT_BUTTON;
    EXPECT_FALSE(CMenuXP::OnDrawItem(&request, nullptr));
}

} // namespace
