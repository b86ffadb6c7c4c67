// SPDX-License-Identifier: MIT
// One item, painted into a canvas as the system would ask for it.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "automation/SystemColors.h"
#include "draw/Hls.h"
#include "draw/Selectors.h"
#include "menus/MenuItemData.h"
#include "menus/MenuLook.h"
#include "menus/MenuPaint.h"
#include "menus/MenuRecords.h"
#include "menus/MenuState.h"
#include "tests/menus/MenuTesting.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/ImportPatch.h"

namespace {

constexpr RECT kRow = {10, 6, 150, 28};
constexpr int kWidth = 140;
constexpr int kHeight = 22;
constexpr UINT kId = TestMenu::kFirst;
constexpr ULONG_PTR kPopupData = tint::MenuItemData::PopupItem(kHeight, 40, 60).Word();
constexpr ULONG_PTR kBarData = tint::MenuItemData::BarItem(60).Word();

COLORREF System(int index) {
    return ::GetSysColor(index);
}

COLORREF Face(int luminance) {
    return AdjustColorLS(System(COLOR_BTNFACE), luminance, 0);
}

COLORREF Highlight(int luminance, int saturation) {
    return AdjustColorLS(System(COLOR_HIGHLIGHT), luminance, saturation);
}

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

DRAWITEMSTRUCT RequestFor(HMENU menu, const Canvas& canvas, ULONG_PTR data, UINT state) {
    DRAWITEMSTRUCT request = {};
    request.CtlType = ODT_MENU;
    request.itemID = kId;
    request.itemState = state;
    request.hwndItem = reinterpret_cast<HWND>(menu);
    request.hDC = canvas.dc();
    request.rcItem = kRow;
    request.itemData = data;
    return request;
}

void PaintInto(const Canvas& canvas, HMENU menu, ULONG_PTR data, UINT state) {
    DRAWITEMSTRUCT request = RequestFor(menu, canvas, data, state);
    EXPECT_TRUE(CMenuXP::OnDrawItem(&request, nullptr));
}

/// The colours of a gradient by column, from its own test's rule by way of a canvas.
class GradientColumns {
public:
    GradientColumns(COLORREF start, COLORREF end, int width) : m_canvas(kWidth, 1) {
        DrawGradient(m_canvas.dc(), start, end, {0, 0, width, 1});
    }
    COLORREF At(int x) const { return m_canvas.At(x, 0); }

private:
    Canvas m_canvas;
};

bool OnFrame(int x, int y, int right) {
    return x == 0 || y == 0 || x == right - 1 || y == kHeight - 1;
}

struct BackgroundCase {
    const char* name;
    bool bar;
    UINT state;
    bool disabled = false;
    bool gradient = true;
    bool gradientSelected = true;
    int bitsPerPixel = 32;
};

/// What the rule says for a pixel of the row.
COLORREF Expected(const BackgroundCase& c, int x, int y, const GradientColumns& column,
                  const GradientColumns& selected, const GradientColumns& disabledSelected) {
    const bool gradient = c.gradient && c.bitsPerPixel > 8;
    const bool isSelected = (c.state & ODS_SELECTED) != 0;
    const bool hot = (c.state & ODS_HOTLIGHT) != 0 && (c.state & ODS_INACTIVE) == 0;
    if (c.bar && isSelected) {
        const int strip = x - (kWidth - 4);
        if (strip < 0)
            return OnFrame(x, y, kWidth - 4) ? System(COLOR_3DDKSHADOW) : Face(20);
        const int column4 = 3 - strip;
        const int row = y - 4;
        COLORREF color = System(COLOR_BTNFACE);
        if (row >= (column4 < 2 ? 2 - column4 : 0) &&
            row < kHeight - column4 - (column4 < 1 ? 2 : 1)) {
            const int k = row == 0   ? 0
                          : row == 1 ? (column4 >= 2 ? 1 : 0)
                          : row == 2 ? std::min(column4, 2)
                                     : column4;
            const int p = (3 - k) * 5 + 78;
            color = RGB(GetRValue(color) * p / 100, GetGValue(color) * p / 100,
                        GetBValue(color) * p / 100);
        }
        return color;
    }
    if (isSelected || hot) {
        if (c.bar && x >= kWidth - 4)
            return System(COLOR_BTNFACE);
        if (OnFrame(x, y, c.bar ? kWidth - 4 : kWidth))
            return System(COLOR_HIGHLIGHT);
        if (!c.bar && gradient && c.gradientSelected)
            return (c.disabled ? disabledSelected : selected).At(x);
        return c.disabled ? Face(73) : Highlight(70, -57);
    }
    if (c.bar)
        return System(COLOR_BTNFACE);
    if (gradient)
        return x < 30 ? column.At(x) : 0xFFFFFF;
    return x < 22 ? Face(20) : Face(75);
}

decltype(&::GetDeviceCaps) g_realDeviceCaps;
int g_bitsPerPixel = 0;

int WINAPI PretendDeviceCaps(HDC dc, int index) {
    return index == BITSPIXEL ? g_bitsPerPixel : g_realDeviceCaps(dc, index);
}

class MenuItemBackground : public testing::TestWithParam<const char*> {};

TEST_P(MenuItemBackground, IsByTheRuleInEveryState) {
    const automation::SystemColorGuard scheme(automation::FindColorScheme(GetParam())->colors);
    ImportPatch patch;
    g_realDeviceCaps = patch.Redirect("gdi32.dll", "GetDeviceCaps", &PretendDeviceCaps);
    // No caption was recorded for it: background is all there is.
    const TestMenu menu({""});
    const GradientColumns column(0xE4C4B4, 0xFFFFFF, 30);
    const GradientColumns selected(0xE4C4B4, 0xFFFFFF, kWidth);
    const GradientColumns disabledSelected(Face(73), 0xFFFFFF, kWidth);

    for (const BackgroundCase& c : {
             BackgroundCase{"bar", true, 0},
             BackgroundCase{"hot bar", true, ODS_HOTLIGHT},
             BackgroundCase{"hot disabled bar", true, ODS_HOTLIGHT, true},
             BackgroundCase{"hot bar of an inactive window", true, ODS_HOTLIGHT | ODS_INACTIVE},
             BackgroundCase{"open bar", true, ODS_SELECTED},
             BackgroundCase{"popup", false, 0},
             BackgroundCase{"popup, flat", false, 0, false, false},
             BackgroundCase{"popup, 256 colours", false, 0, false, true, true, 8},
             BackgroundCase{"popup, 15 bits", false, 0, false, true, true, 15},
             BackgroundCase{"selected", false, ODS_SELECTED},
             BackgroundCase{"hot popup", false, ODS_HOTLIGHT},
             BackgroundCase{"selected, flat column", false, ODS_SELECTED, false, false, true},
             BackgroundCase{"selected, flat highlight", false, ODS_SELECTED, false, true, false},
             BackgroundCase{"selected, 256 colours", false, ODS_SELECTED, false, true, true, 8},
             BackgroundCase{"selected, disabled", false, ODS_SELECTED, true},
             BackgroundCase{"selected, disabled, flat", false, ODS_SELECTED, true, false},
         }) {
        ::EnableMenuItem(menu, kId, c.disabled ? MF_GRAYED | MF_DISABLED : MF_ENABLED);
        const LookSetting gradient("MenuXP", "ShowGradient", c.gradient);
        const LookSetting gradientSelected("MenuEx", "ShowGradientSel", c.gradientSelected);
        g_bitsPerPixel = c.bitsPerPixel;
        const Canvas canvas(160, 40);
        PaintInto(canvas, menu, c.bar ? kBarData : kPopupData, c.state);
        const auto picture = canvas.Snapshot();
        int wrong = 0;
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                const bool inside = ::PtInRect(&kRow, {x, y}) != FALSE;
                const COLORREF expected = inside ? Expected(c, x - kRow.left, y - kRow.top, column,
                                                            selected, disabledSelected)
                                                 : Canvas::kUntouched;
                if (picture.At(x, y) != expected && ++wrong == 1)
                    ADD_FAILURE() << c.name << " at " << x - kRow.left << ", " << y - kRow.top
                                  << std::hex << ": have " << picture.At(x, y) << ", want "
                                  << expected;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Schemes, MenuItemBackground,
                         testing::Values("default", "high-contrast-dark", "warm"),
                         [](const auto& info) {
                             std::string name = info.param;
                             name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
                             return name;
                         });

TEST(MenuItemLook, ComesFromTheProfileOnceAndFollowsTheSystemWhereItSaysSo) {
    const LookSetting start("MenuXP", "GradientStart", -1);
    const LookSetting end("MenuXP", "GradientEnd", -1);
    tint::MenuLook& look = tint::MenuLook::Get();
    EXPECT_EQ(look.GradientStart(), Face(20));
    {
        const automation::SystemColorGuard warm(automation::FindColorScheme("warm")->colors);
        EXPECT_EQ(look.GradientStart(), Face(20));
        EXPECT_EQ(look.GradientEnd(), Face(75));
    }
    ::AfxGetApp()->WriteProfileInt("MenuXP", "GradientStart", 0x123456);
    EXPECT_EQ(look.GradientStart(), Face(20)) << "it was read before";
    for (const int width : {-5, 0, 12, INT_MAX}) {
        const LookSetting setting("MenuXP", "GradientWidth", width);
        const int read = look.GradientWidth();
        EXPECT_EQ(read, std::clamp(width, 0, 0x7FFF));
        const Canvas canvas(160, 40);
        PaintInto(canvas, nullptr, kPopupData, 0);
        const int column = std::min(read, kWidth);
        EXPECT_EQ(canvas.Count(Face(75), {kRow.left + column, kRow.top, kRow.right, kRow.bottom}),
                  (kWidth - column) * kHeight);
    }
}

struct TextCase {
    const char* name;
    const char* caption;
    ULONG_PTR data;
    UINT state = 0;
    UINT itemFlags = 0;
    bool isDefault = false;
    bool keyboardCues = true;
};

TEST(MenuItemText, IsWhatTheRuleDraws) {
    const char* const caption = "Save && &Exit\tCtrl+Shift+&S";
    for (const TextCase& c : {
             TextCase{"popup", caption, kPopupData},
             TextCase{"selected", caption, kPopupData, ODS_SELECTED},
             TextCase{"disabled", caption, kPopupData, 0, MF_GRAYED | MF_DISABLED},
             TextCase{"only one of the disabled bits", caption, kPopupData, 0, MF_GRAYED},
             TextCase{"inactive", caption, kPopupData, ODS_INACTIVE, MF_GRAYED | MF_DISABLED},
             TextCase{"default", caption, kPopupData, 0, 0, true},
             TextCase{"no cues wanted", caption, kPopupData, ODS_NOACCEL, 0, false, true},
             TextCase{"cues hidden", caption, kPopupData, ODS_NOACCEL, 0, false, false},
             TextCase{"cues off, but asked for", caption, kPopupData, 0, 0, false, false},
             TextCase{"no accelerator", "&Plain", kPopupData},
             TextCase{"bar", "&File", kBarData},
             TextCase{"default bar", "&File", kBarData, 0, 0, true}, // bold in popups only
             TextCase{"inactive bar", "&File", kBarData, ODS_INACTIVE},
             TextCase{"open bar without cues", "&File", kBarData, ODS_SELECTED | ODS_NOACCEL, 0,
                      false, false},
             TextCase{"one character and accelerator", "X\tCtrl+X", kPopupData},
         }) {
        ::SystemParametersInfoA(SPI_SETKEYBOARDCUES, 0,
                                reinterpret_cast<void*>(INT_PTR{c.keyboardCues}), 0);
        const TestMenu menu({c.caption});
        const Canvas ours(160, 40);
        const Canvas rule(160, 40);
        ::EnableMenuItem(menu, kId, c.itemFlags);
        if (c.isDefault)
            ::SetMenuDefaultItem(menu, kId, FALSE);
        tint::MenuRecords::Get().textOfCommand.RemoveKey(kId);
        PaintInto(rule, menu, c.data, c.state); // its background
        CMenuXP::ConvertMenu(nullptr, menu, true, false);
        PaintInto(ours, menu, c.data, c.state);

        const std::string label =
            std::string(c.caption).substr(0, std::string(c.caption).find('\t'));
        const std::string accelerator = label == c.caption ? "" : c.caption + label.size() + 1;
        if (label != "X") {
            const bool bar = c.data == kBarData;
            const bool disabled = (c.itemFlags & 3) == 3;
            const CDCObjectSaver font(rule.dc(), DEFAULT_GUI_FONT,
                                      (c.state & ODS_INACTIVE) != 0 ? System(COLOR_BTNSHADOW)
                                      : disabled                    ? Face(-18)
                                                                    : System(COLOR_MENUTEXT));
            const CFontWeightSelector weight(rule.dc(), c.isDefault && !bar);
            ::SetBkMode(rule.dc(), TRANSPARENT);
            const UINT prefix = (c.state & ODS_NOACCEL) != 0 && !c.keyboardCues ? DT_HIDEPREFIX : 0;
            const UINT format = DT_VCENTER | DT_SINGLELINE;
            RECT place = kRow;
            if (bar) {
                place.right -= 4;
                ::DrawTextA(rule.dc(), label.c_str(), -1, &place, format | DT_CENTER | prefix);
            } else {
                place.left += 30;
                ::DrawTextA(rule.dc(), label.c_str(), -1, &place, format | prefix);
                place.right -= 12;
                ::DrawTextA(rule.dc(), accelerator.c_str(), -1, &place, format | DT_RIGHT);
            }
        }
        EXPECT_EQ(ours.Snapshot(), rule.Snapshot()) << c.name;
    }
    ::SystemParametersInfoA(SPI_SETKEYBOARDCUES, 0, reinterpret_cast<void*>(INT_PTR{TRUE}), 0);
}

TEST(MenuItemMarks, SeparatorIsALineFromTheTextOn) {
    const HMENU menu = ::CreatePopupMenu();
    ::AppendMenuA(menu, MF_SEPARATOR, kId, nullptr);
    const Canvas canvas(160, 40);
    PaintInto(canvas, menu, kPopupData, 0);
    const int y = (kRow.top + kRow.bottom) / 2;
    EXPECT_EQ(canvas.Count(Face(-18), {kRow.left + 30, y, kRow.right - 1, y + 1}), kWidth - 31);
    EXPECT_EQ(canvas.Count(Face(-18), kRow), kWidth - 31);
    ::DestroyMenu(menu);
}

constexpr COLORREF kRed = RGB(200, 0, 0);

/// A list with one image, a red square with a transparent pixel in its upper left corner.
class RedImage {
public:
    RedImage() : m_list(::ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 0)) {
        CClientDC screen(nullptr);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 16, 16);
        {
            CDC dc;
            dc.CreateCompatibleDC(&screen);
            CBitmap* const previous = dc.SelectObject(&bitmap);
            dc.FillSolidRect(0, 0, 16, 16, kRed);
            dc.SetPixel(0, 0, RGB(255, 0, 255));
            dc.SelectObject(previous);
        }
        ::ImageList_AddMasked(m_list, bitmap, RGB(255, 0, 255));
    }
    ~RedImage() { ::ImageList_Destroy(m_list); }

    CImgDesc Desc() const { return {m_list, 0}; }

private:
    HIMAGELIST m_list;
};

struct MarkCase {
    const char* name;
    bool selected;
    bool checked;
    bool disabled;
};

constexpr MarkCase kMarkCases[] = {
    {"resting", false, false, false},         {"selected", true, false, false},
    {"disabled", false, false, true},         {"selected, disabled", true, false, true},
    {"checked", false, true, false},          {"checked, selected", true, true, false},
    {"checked, disabled", false, true, true}, {"all", true, true, true},
};

COLORREF CheckedFill(const MarkCase& c) {
    return c.disabled ? Face(73) : c.selected ? Highlight(50, -50) : Highlight(70, -57);
}

/// An item with a caption, in the state of the case, painted.
class MarkedItem {
public:
    MarkedItem(const MarkCase& c, bool radio, CImgDesc image) : m_menu({"   "}) {
        MENUITEMINFOA info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_STATE;
        info.fType = radio ? MFT_RADIOCHECK : 0;
        info.fState = (c.checked ? MFS_CHECKED : 0) | (c.disabled ? MFS_DISABLED : 0);
        ::SetMenuItemInfoA(m_menu, 0, TRUE, &info);
        CMenuXP::ConvertMenu(nullptr, m_menu, true, false);
        tint::MenuRecords::Get().imageOfCommand.SetAt(kId, image);
        PaintInto(m_canvas, m_menu, kPopupData, c.selected ? ODS_SELECTED : 0);
        tint::MenuRecords::Get().imageOfCommand.RemoveKey(kId);
    }

    /// In coordinates of the row.
    COLORREF At(int x, int y) const { return m_canvas.At(kRow.left + x, kRow.top + y); }
    int Count(COLORREF color, int left, int top, int right, int bottom) const {
        return m_canvas.Count(
            color, {kRow.left + left, kRow.top + top, kRow.left + right, kRow.top + bottom});
    }

private:
    TestMenu m_menu;
    Canvas m_canvas{160, 40};
};

TEST(MenuItemMarks, CheckedItemsHaveAFrame) {
    for (const MarkCase& c : kMarkCases) {
        const MarkedItem item(c, true, {});
        // Inside the highlight frame that a selected item has at its edge.
        EXPECT_EQ(item.Count(System(COLOR_HIGHLIGHT), 1, 1, 20, kHeight - 1),
                  c.checked ? 2 * 19 + 2 * (kHeight - 4) : 0)
            << c.name;
        if (c.checked) {
            EXPECT_EQ(item.At(2, 2), CheckedFill(c)) << c.name;
        }
    }
}

TEST(MenuItemMarks, ImagesAreLiftedOrFlat) {
    const RedImage image;
    for (const MarkCase& c : kMarkCases) {
        const MarkedItem item(c, false, image.Desc());
        const bool raised = c.selected && !c.checked;
        const int at = raised ? 2 : 3;
        const int red = c.disabled ? 0 : 16 * 16 - 1;
        EXPECT_EQ(item.Count(kRed, at, at, at + 16, at + 16), red) << c.name;
        EXPECT_EQ(item.Count(kRed, 0, 0, kWidth, kHeight), red) << c.name;

        const COLORREF lifted = Highlight(50, -66);
        // The lifted silhouette looks out below and to the right.
        EXPECT_EQ(item.Count(lifted, 4, 4, 20, 20), raised && !c.disabled ? 2 * 16 + 2 * 14 : 0)
            << c.name;
        EXPECT_EQ(item.Count(Face(-27), 3, 3, 19, 19), c.disabled ? 16 * 16 - 1 : 0) << c.name;
    }
}

TEST(MenuItemMarks, RadioBulletIsOffCentreWithAGlint) {
    for (const MarkCase& c : kMarkCases) {
        if (!c.checked)
            continue;
        const MarkedItem item(c, true, {});
        const COLORREF color = c.disabled ? Face(-27) : System(COLOR_MENUTEXT);
        const Canvas rule(20, kHeight, CheckedFill(c));
        {
            const CPenSelector pen(rule.dc(), color);
            const CBrushSelector brush(rule.dc(), color);
            ::Ellipse(rule.dc(), 12 - 4, 11 - 3, 12 + 3, 11 + 4);
            ::SetPixel(rule.dc(), 12 + 1, 11 + 2, CheckedFill(c));
        }
        for (int y = 3; y < kHeight - 3; ++y)
            for (int x = 3; x < 18; ++x)
                ASSERT_EQ(item.At(x, y), rule.At(x, y)) << c.name << ' ' << x << ", " << y;
    }
}

TEST(MenuItemMarks, CheckMarkIsTheSystemsInTextColour) {
    const HBITMAP check = ::LoadBitmapA(nullptr, MAKEINTRESOURCEA(32760));
    const auto shape = automation::ReadBitmap(check);
    ::DeleteObject(check);
    ASSERT_GT(shape.width, 0);
    for (const MarkCase& c : kMarkCases) {
        if (!c.checked)
            continue;
        const MarkedItem item(c, false, {});
        const COLORREF color = c.disabled ? Face(-18) : System(COLOR_MENUTEXT);
        for (int y = 0; y < shape.height; ++y)
            for (int x = 0; x < std::min(shape.width, 13); ++x)
                ASSERT_EQ(item.At(5 + x, 3 + y), shape.At(x, y) == 0 ? color : CheckedFill(c))
                    << c.name << ' ' << x << ", " << y;
    }
}

TEST(MenuItemPainting, CountsItselfAndLosesNothing) {
    const RedImage image;
    const Canvas canvas(160, 40);
    MarkedItem(kMarkCases[1], false, image.Desc()); // what is kept is in place by now
    const GdiLedger ledger;
    const BYTE before = tint::GetMenuState().paintCount;
    for (const MarkCase& c : kMarkCases) {
        const MarkedItem withImage(c, false, image.Desc());
        const MarkedItem withMark(c, c.selected, {});
    }
    PaintInto(canvas, nullptr, kBarData, ODS_SELECTED);
    for (const RECT& rect : {RECT{0, 0, 0, 0}, RECT{5, 5, 2, 2}, RECT{0, 0, INT_MAX, INT_MAX},
                             RECT{INT_MIN, INT_MIN, INT_MAX, INT_MAX}}) {
        DRAWITEMSTRUCT request = RequestFor(nullptr, canvas, kPopupData, ODS_SELECTED);
        request.rcItem = rect;
        CMenuXP::OnDrawItem(&request, nullptr);
    }
    EXPECT_EQ(static_cast<BYTE>(tint::GetMenuState().paintCount - before), 2 * 8 + 1 + 4);
    EXPECT_EQ(ledger.Unreturned(), "");
    EXPECT_EQ(ledger.Faults(), "");
    ::SetRectEmpty(&tint::GetMenuState().openBarItem);

    DRAWITEMSTRUCT button = RequestFor(nullptr, canvas, 0, 0);
    button.CtlType = ODT_BUTTON;
    EXPECT_FALSE(CMenuXP::OnDrawItem(&button, nullptr));
}

} // namespace
