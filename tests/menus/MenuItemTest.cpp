// SPDX-License-Identifier: MIT
// What a converted item knows and measures, and which item a mnemonic finds.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "draw/Selectors.h"
#include "menus/MenuItemData.h"
#include "menus/MenuItemXP.h"
#include "tests/menus/MenuTesting.h"

namespace {

SIZE Measure(ULONG_PTR data, UINT type = ODT_MENU) {
    MEASUREITEMSTRUCT request = {};
    request.CtlType = type;
    request.itemData = data;
    CMenuXP::OnMeasureItem(&request);
    return {static_cast<LONG>(request.itemWidth), static_cast<LONG>(request.itemHeight)};
}

/// The width of a text in the menu's font.
int TextWidth(const char* text, bool bold = false) {
    CClientDC dc(nullptr);
    const CDCObjectSaver font(dc, DEFAULT_GUI_FONT);
    const CFontWeightSelector weight(dc, bold);
    return dc.GetTextExtent(text, static_cast<int>(std::strlen(text))).cx;
}

struct CaptionCase {
    const char* caption;
    const char* label;
    const char* accelerator;
    const char* measured; ///< of the label; empty: 0 wide
};

TEST(MenuItem, SplitsAndMeasuresItsCaption) {
    for (const CaptionCase& expected : {
             CaptionCase{"&Open...\tCtrl+O", "&Open...", "Ctrl+O", "Open..."},
             CaptionCase{"Plain", "Plain", "", "Plain"},
             CaptionCase{"X", "X", "", "X"},
             CaptionCase{"X\tCtrl+X", "X", "Ctrl+X", ""}, // one character before a tab: blank
             CaptionCase{"XY\tA\tB", "XY", "A\tB", "XY"},
             CaptionCase{"\tDel", "", "Del", ""},
             CaptionCase{"Save && E&xit", "Save && E&xit", "", "Save & E&xit"}, // only the first
             CaptionCase{"", "", "", ""},
         }) {
        for (const bool isDefault : {false, true}) {
            const TestMenu menu({expected.caption});
            if (isDefault)
                ::SetMenuDefaultItem(menu, TestMenu::kFirst, FALSE);
            CMenuXP::ConvertMenu(nullptr, menu, true, false);
            const CMenuItemXP item(menu, 0, true);
            CClientDC dc(nullptr);
            const CDCObjectSaver font(dc, DEFAULT_GUI_FONT);
            EXPECT_STREQ(item.LabelText(), expected.label);
            EXPECT_STREQ(item.AcceleratorText(), expected.accelerator);
            EXPECT_EQ(item.LabelWidth(dc), TextWidth(expected.measured, isDefault))
                << expected.caption;
            EXPECT_EQ(item.AcceleratorWidth(dc), TextWidth(expected.accelerator, isDefault));
        }
    }
}

TEST(MenuItem, SizesOfAPopupAreItsWidestTexts) {
    const TestMenu menu({"&New\tCtrl+Shift+N", "A longer label", "-", "X\tCtrl+X"});
    CMenuXP::ConvertMenu(nullptr, menu, true, false);
    TEXTMETRICA metrics = {};
    CClientDC dc(nullptr);
    const CDCObjectSaver font(dc, DEFAULT_GUI_FONT);
    ::GetTextMetricsA(dc, &metrics);

    const LONG width = TextWidth("A longer label") + TextWidth("Ctrl+Shift+N") + 42;
    const LONG height = std::max<LONG>(metrics.tmHeight + 2, 16) + 4;
    for (const int position : {0, 1, 3}) {
        const SIZE size = Measure(InfoOf(menu, position).dwItemData);
        EXPECT_EQ(size.cx, width) << position;
        EXPECT_EQ(size.cy, height) << position;
    }
    EXPECT_EQ(Measure(InfoOf(menu, 2).dwItemData).cx, 42);
    EXPECT_EQ(Measure(InfoOf(menu, 2).dwItemData).cy, metrics.tmHeight / 2 + 2);
    EXPECT_EQ(Measure(0x123456, ODT_LISTBOX).cx, 0) << "not a menu's";
    EXPECT_EQ(tint::MenuItemData::PopupItem(0x120, 0x1FF, 0x12345).Word(), 0x2345FF20U);

    const HMENU bar = ::CreateMenu();
    ::AppendMenuA(bar, MF_STRING, 1, "&File");
    CMenuXP::ConvertMenu(nullptr, bar, true, true);
    EXPECT_EQ(Measure(InfoOf(bar, 0).dwItemData).cx, TextWidth("File") + 4);
    EXPECT_EQ(InfoOf(bar, 0).dwItemData & 0xFFFF, 0U);
    ::DestroyMenu(bar);
}

struct MnemonicCase {
    std::vector<std::string> lines;
    char character;
    int position; ///< -1: none
};

TEST(MenuChar, FindsTheFirstItemWithTheMnemonic) {
    for (const MnemonicCase& expected : {
             MnemonicCase{{"&Alpha", "&Beta"}, 'b', 1},
             MnemonicCase{{"&Alpha", "&Beta"}, 'B', 1},
             MnemonicCase{{"&Beta", "-", "A&bba"}, 'B', 0},
             MnemonicCase{{"Q && A", "x &&A", "Y &A"}, 'a', 2}, // doubled: an ampersand
             MnemonicCase{{"&&A"}, 'a', -1},
             MnemonicCase{{"Open\t&A"}, 'a', -1}, // not in the accelerator
             MnemonicCase{{"Last&"}, 'a', -1},
             MnemonicCase{{"", "-"}, 'a', -1},
             MnemonicCase{{"&\xC4rger"}, '\xE4', 0},
         }) {
        const TestMenu menu(expected.lines);
        CMenuXP::ConvertMenu(nullptr, menu, true, false);
        const LRESULT answer =
            expected.position < 0 ? 0 : MAKELRESULT(expected.position, MNC_EXECUTE);
        const auto character = static_cast<BYTE>(expected.character);
        EXPECT_EQ(CMenuXP::OnMenuChar(menu, character, MF_POPUP), answer) << expected.lines[0];
        EXPECT_EQ(CMenuXP::OnMenuChar(menu, character, 0), answer);
        EXPECT_EQ(CMenuXP::OnMenuChar(menu, character, MF_POPUP | MF_SYSMENU), 0);
        EXPECT_EQ(CMenuXP::OnMenuChar(menu, character, MF_SYSMENU), 0);
    }
    EXPECT_EQ(CMenuXP::OnMenuChar(nullptr, 'a', 0), 0);
}

} // namespace
