// SPDX-License-Identifier: MIT
#include "controls/ListStyle.h"

#include <gtest/gtest.h>

#include <cstring>
#include <optional>
#include <vector>

#include "controls/ListItemRecords.h"

using tint::ListStyle;

namespace {

constexpr DWORD kBold = ListStyle::kBold;
constexpr DWORD kItalic = ListStyle::kItalic;
constexpr DWORD kUnderline = ListStyle::kUnderline;

// The four flags that decide about colours, as the bits of a number from 0 to 15; -1: no style.
DWORD FlagsOf(int bits) {
    return bits < 0 ? 0 : static_cast<DWORD>(bits) << 4;
}

/// The rule, told the other way round than the code does: for each level, whether it is shut out.
COLORREF ExpectedColor(DWORD cell, DWORD row, DWORD column, DWORD wanted) {
    const bool cellSaysNothing = (cell & 0xC0) == 0;
    const bool rowOut =
        (cell & 0x80) != 0 || (cellSaysNothing && (row & 0x40) == 0 && (column & 0x80) != 0);
    const bool columnOut = (cell & 0x40) != 0 || (cellSaysNothing && (row & 0x40) != 0);
    if ((cell & wanted) != 0)
        return 1;
    if ((row & wanted) != 0 && !rowOut)
        return 2;
    return (column & wanted) != 0 && !columnOut ? 3 : 4;
}

TEST(ListStyle, ColorsOfEveryCombination) {
    for (int i = 0; i < 17 * 17 * 17; ++i) {
        const int bits[] = {i % 17 - 1, i / 17 % 17 - 1, i / 289 - 1};
        ListStyle styles[3];
        ListStyle* levels[3];
        for (int level = 0; level < 3; ++level) {
            styles[level].SetFlags(FlagsOf(bits[level]));
            styles[level].textColor = styles[level].backColor = static_cast<COLORREF>(level + 1);
            levels[level] = bits[level] < 0 ? nullptr : &styles[level];
        }
        const auto colors = tint::ResolveColors({levels[0], levels[1], levels[2]}, {4, 4});
        const auto expect = [&](DWORD wanted) {
            return ExpectedColor(FlagsOf(bits[0]), FlagsOf(bits[1]), FlagsOf(bits[2]), wanted);
        };
        ASSERT_EQ(colors.text, expect(0x10)) << bits[0] << ' ' << bits[1] << ' ' << bits[2];
        ASSERT_EQ(colors.back, expect(0x20)) << bits[0] << ' ' << bits[1] << ' ' << bits[2];
    }
}

LOGFONT Base() {
    LOGFONT base = {};
    base.lfHeight = -11;
    base.lfWeight = FW_NORMAL;
    std::strcpy(base.lfFaceName, "Tahoma");
    return base;
}

/// What one level says about fonts, and about blocking.
struct Level {
    DWORD flags = 0;
    LONG height = 0; ///< not 0: a font object of that height, of the face "Courier"
    bool absent = false;
};

const Level kNone = {0, 0, true};

struct FontCase {
    const char* name;
    Level cell, row, column;
    DWORD bits; ///< of the merged font; 0 with height 0: no font at all
    LONG height = -11;
    const char* face = "Tahoma";
};

void Fill(ListStyle& style, const Level& level) {
    style.SetFlags(level.flags);
    if (level.height != 0) {
        LOGFONT font = Base();
        font.lfHeight = level.height;
        std::strcpy(font.lfFaceName, "Courier");
        CFont object;
        object.CreateFontIndirect(&font);
        EXPECT_TRUE(style.SetFont(object)); // gone right afterwards: the description counts
    }
}

void ExpectFont(const tint::ListStyleLevels& levels, DWORD bits, LONG height, const char* face) {
    LOGFONT font;
    ASSERT_EQ(tint::ResolveFont(levels, Base(), font), height != 0);
    if (height == 0)
        return;
    const DWORD found = (font.lfWeight == FW_BOLD ? 1U : 0U) | (font.lfItalic != 0 ? 2U : 0U) |
                        (font.lfUnderline != 0 ? 4U : 0U) | (font.lfStrikeOut != 0 ? 8U : 0U);
    EXPECT_EQ(found, bits);
    EXPECT_EQ(font.lfHeight, height);
    EXPECT_STREQ(font.lfFaceName, face);
}

TEST(ListStyle, FontsMerge) {
    const FontCase cases[] = {
        {"no style", {}, {}, {}, 0, 0},
        {"all bits", {15}, {}, {}, 15},
        {"three levels", {kItalic}, {kBold}, {kUnderline}, 7},
        {"cell cannot switch bold off", {kItalic}, {kBold}, kNone, kBold | kItalic},
        {"object over object", {0, -20}, {0, -30}, {0, -40}, 0, -20, "Courier"},
        {"bits over object", {kBold}, {0, -30}, {}, kBold, -30, "Courier"},
        {"object before own bits", {kBold, -20}, {}, {}, 0, -20, "Courier"},
        {"height back to the base's", {0, -11}, {0, -30}, {}, 0, -30, "Courier"},
        {"row blocked by the cell", {128 | kItalic}, {kBold}, {kUnderline}, kItalic | kUnderline},
        {"column blocked by the row", {}, {64 | kBold}, {kUnderline}, kBold},
        {"row blocked by the column", {}, {kBold}, {128 | kUnderline}, kUnderline},
        {"no cell record", kNone, {kBold}, {kUnderline}, 0, 0},
    };
    for (const FontCase& test : cases) {
        SCOPED_TRACE(test.name);
        ListStyle styles[3];
        const Level* const given[] = {&test.cell, &test.row, &test.column};
        ListStyle* levels[3];
        for (int i = 0; i < 3; ++i) {
            Fill(styles[i], *given[i]);
            levels[i] = given[i]->absent ? nullptr : &styles[i];
        }
        ExpectFont({levels[0], levels[1], levels[2]}, test.bits, test.height, test.face);
    }
}

TEST(ListStyle, SelectedFontFallsBackLevelByLevel) {
    ListStyle cell;
    ListStyle row;
    cell.SetFlags(kItalic);
    row.SetFlags(kBold);
    const tint::ListStyleLevels levels = {&cell, &row, nullptr};
    ExpectFont(levels.ForSelectedFont(), kBold | kItalic, -11, "Tahoma");
    EXPECT_EQ(levels.ForSelectedColors().cell, nullptr);

    cell.Selected().SetFlags(ListStyle::kBlocksRows | ListStyle::kHasTextColor); // no font bit
    ExpectFont(levels.ForSelectedFont(), kBold | kItalic, -11, "Tahoma");
    EXPECT_FALSE(tint::UseOf(levels.ForSelectedColors()).row);

    cell.Selected().SetFlags(ListStyle::kBlocksRows | kUnderline);
    ExpectFont(levels.ForSelectedFont(), kUnderline, -11, "Tahoma");
    cell.Selected().SetFlags(0);
    Fill(cell.Selected(), {0, -20});
    ExpectFont(levels.ForSelectedFont(), kBold, -20, "Courier");
    EXPECT_TRUE(cell.Selected().SetFont(nullptr));
    ExpectFont(levels.ForSelectedFont(), kBold | kItalic, -11, "Tahoma");
    EXPECT_FALSE(cell.SetFont(static_cast<HFONT>(::GetStockObject(NULL_PEN)))) << "not a font";
}

TEST(ListFonts, AreSharedAndGoWithTheirLastUser) {
    tint::ListFonts fonts;
    auto first = fonts.Get(Base());
    EXPECT_EQ(fonts.Get(Base()), first);
    const HFONT handle = first->handle();
    first.reset();
    EXPECT_EQ(::GetObjectType(handle), 0U);
    LOGFONT font = Base();
    for (font.lfHeight = -1000; font.lfHeight < 0; ++font.lfHeight) // far more than are in use
        EXPECT_TRUE(fonts.Get(font)->IsMadeFrom(font));
}

TEST(ListItemRecords, OnlyLiveKeysNameARecord) {
    tint::ListItemRecords records;
    const LPARAM first = records.Add(1);
    const LPARAM second = records.Add(2);
    records.Remove(first);
    records.Remove(first);
    EXPECT_EQ(records.Count(), 1U);
    const LPARAM third = records.Add(3); // in the slot of the first
    for (const LPARAM key : {first, LPARAM{0}, LPARAM{-1}, second + 1, third + (1LL << 32)})
        EXPECT_EQ(records.Find(key), nullptr) << key;
    EXPECT_EQ(records.Find(second)->value + records.Find(third)->value, 5);
    records.Clear();
    EXPECT_EQ(records.Find(records.Add(4))->value, 4);
    EXPECT_EQ(records.Find(second), nullptr);
}

} // namespace
