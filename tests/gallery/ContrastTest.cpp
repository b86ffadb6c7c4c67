// SPDX-License-Identifier: MIT
// How well the toolkit's texts can be read under each scheme. docs/colours.md holds the table that
// this prints.
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <map>
#include <string>

#include "automation/SystemColors.h"
#include "gallery/ColorPairs.h"
#include "tests/support/ImportPatch.h"

namespace {

constexpr double kFloor = 4.5;         // what the guidelines ask for
constexpr double kDisabledFloor = 2.0; // they ask for nothing: it is to be seen at all

using Ratios = std::map<std::string, std::map<std::string, double>>; ///< by scheme and pair

/// Where the fixed colours and percentages of the look give less.
const Ratios kKnown = {
    {"default",
     {{"Button, pressed", 1.82},
      {"Glyph, pressed", 1.82},
      {"List, selected", 4.50},
      {"Menu, disabled", 1.74},
      {"Link, hot", 3.51}}},
    {"high-contrast-dark",
     {{"Button, pressed", 2.00},
      {"Glyph, pressed", 2.00},
      {"Link", 2.23},
      {"Link, visited", 1.91}}},
    {"warm",
     {{"Button, pressed", 1.84},
      {"Glyph, pressed", 1.84},
      {"Menu, disabled", 1.81},
      {"Link, hot", 3.11}}},
    {"high-contrast-black",
     {{"Button, pressed", 1.31},
      {"Glyph, pressed", 1.31},
      {"Link", 2.23},
      {"Link, visited", 1.91}}},
    {"high-contrast-white",
     {{"Button, pressed", 3.50}, {"Glyph, pressed", 3.50}, {"Link, hot", 4.00}}},
    {"slate",
     {{"Button, pressed", 1.47},
      {"Glyph, pressed", 1.47},
      {"Menu bar, hot", 1.09},
      {"Menu", 1.23},
      {"Menu, selected", 1.42},
      {"Link", 1.37},
      {"Link, visited", 1.17},
      {"Link, hot", 3.22}}},
};

/// What Windows 10 has, so that every desktop measures the same.
const std::vector<automation::SystemColor> kWindows = {
    {COLOR_WINDOW, RGB(255, 255, 255)},    {COLOR_WINDOWTEXT, RGB(0, 0, 0)},
    {COLOR_BTNFACE, RGB(240, 240, 240)},   {COLOR_BTNTEXT, RGB(0, 0, 0)},
    {COLOR_BTNSHADOW, RGB(160, 160, 160)}, {COLOR_GRAYTEXT, RGB(109, 109, 109)},
    {COLOR_HIGHLIGHT, RGB(0, 120, 215)},   {COLOR_HIGHLIGHTTEXT, RGB(255, 255, 255)},
    {COLOR_MENU, RGB(240, 240, 240)},      {COLOR_MENUTEXT, RGB(0, 0, 0)},
};

decltype(&::SystemParametersInfoA) g_realParameters = nullptr;
bool g_highContrast = false;

BOOL WINAPI PretendHighContrast(UINT action, UINT size, PVOID value, UINT flags) {
    if (action != SPI_GETHIGHCONTRAST || !g_highContrast)
        return g_realParameters(action, size, value, flags);
    static_cast<HIGHCONTRASTA*>(value)->dwFlags = HCF_HIGHCONTRASTON;
    return TRUE;
}

TEST(Contrast, IsTheGuidelines) {
    EXPECT_NEAR(ContrastRatio(RGB(0, 0, 0), RGB(255, 255, 255)), 21, 1e-9);
    EXPECT_NEAR(ContrastRatio(RGB(255, 255, 255), RGB(0, 0, 0)), 21, 1e-9);
    EXPECT_NEAR(ContrastRatio(RGB(9, 9, 9), RGB(9, 9, 9)), 1, 1e-9);
    // 4.54 and 4.48: the two greys on either side of the floor.
    EXPECT_GT(ContrastRatio(RGB(118, 118, 118), RGB(255, 255, 255)), kFloor);
    EXPECT_LT(ContrastRatio(RGB(119, 119, 119), RGB(255, 255, 255)), kFloor);
    EXPECT_NEAR(ContrastRatio(RGB(255, 0, 0), RGB(255, 255, 255)), 4.0, 0.005);
}

TEST(Contrast, IsEnoughButForTheKnownPairs) {
    ImportPatch patch;
    g_realParameters = patch.Redirect("user32.dll", "SystemParametersInfoA", &PretendHighContrast);
    std::map<std::string, std::string> rows;
    std::string heading = "| |";
    Ratios known = kKnown;
    for (const automation::ColorScheme& scheme : automation::ColorSchemes()) {
        const std::string name = scheme.name;
        heading += " " + name + " |";
        const automation::SystemColorGuard colors(scheme.colors.empty() ? kWindows : scheme.colors);
        g_highContrast = name.rfind("high-contrast", 0) == 0; // as the system has it then
        for (const ColorPair& pair : ColorPairs()) {
            const double ratio = ContrastRatio(pair.text, pair.background);
            const double floor = pair.disabled ? kDisabledFloor : kFloor;
            char text[32] = "";
            std::snprintf(text, sizeof text, ratio < floor ? " **%.1f** |" : " %.1f |", ratio);
            rows[pair.name] += text;

            auto& knownPairs = known[name];
            const auto entry = knownPairs.find(pair.name);
            if (entry == knownPairs.end()) {
                EXPECT_GE(ratio, floor) << name << ", " << pair.name;
                continue;
            }
            EXPECT_NEAR(ratio, entry->second, 0.05) << name << ", " << pair.name;
            knownPairs.erase(entry);
        }
        for (const auto& [pair, ratio] : known[name])
            ADD_FAILURE() << name << " has no " << pair;
    }
    std::printf("%s\n", heading.c_str());
    for (const ColorPair& pair : ColorPairs())
        std::printf("| %s |%s\n", pair.name, rows[pair.name].c_str());
}

} // namespace
