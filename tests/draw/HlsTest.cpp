// SPDX-License-Identifier: MIT
#include "draw/Hls.h"

#include <gtest/gtest.h>

namespace {

// Worked out by hand with every step rounded to single precision.  The round trip loses up to a step or
// two a channel.
TEST(Hls, ConvertsBothWays) {
    const struct {
        const char* name;
        COLORREF color;
        DWORD hls;
        COLORREF back;
    } cases[] = {
        {"Black", 0x000000, 0x000000, 0x000000},
        {"White", 0xFFFFFF, 0x00FF00, 0xFFFFFF},
        {"Grey", 0x808080, 0x008000, 0x808080},
        {"RedIsExactly360Degrees", 0x0000FF, 0xFF7FFF, 0x0000FE},
        {"Green", 0x00FF00, 0xFF7F55, 0x00FE00},
        {"Blue", 0xFF0000, 0xFF7FAA, 0xFE0000},
        {"YellowTakesTheGreenFormula", 0x00FFFF, 0xFF7F2A, 0x00FBFE},
        {"CyanTakesTheBlueFormula", 0xFFFF00, 0xFF7F7F, 0xFBFE00},
        {"MagentaTakesTheBlueFormula", 0xFF00FF, 0xFF7FD4, 0xFE00FB},
        {"ClassicHighlight", 0x6A240A, 0xD33A9E, 0x69250A},
        {"ModernHighlight", 0xD77800, 0xFF6B92, 0xD67800},
        {"HueAbove360IsReduced", 0x2054B8, 0xB36C0E, 0x2052B7},
        {"ClassicFace", 0xC8D0D4, 0x1FCE1C, 0xC8CFD3},
        {"NearBlack", 0x010203, 0x7F0215, 0x010102},
        {"NearWhite", 0xFEFDFC, 0x7FFD94, 0xFDFDFC},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(RGBToHLS(c.color), c.hls) << c.name;
        EXPECT_EQ(RGBToHLS(c.color | 0x5A000000), c.hls) << c.name << ": the top byte";
        EXPECT_EQ(HLSToRGB(c.hls), c.back) << c.name;
    }
}

TEST(Hls, WithoutSaturationTheLuminanceIsTheGrey) {
    for (DWORD luminance = 0; luminance < 256; ++luminance)
        for (const DWORD hue : {0u, 77u, 255u})
            ASSERT_EQ(HLSToRGB(hue | luminance << 8), luminance * 0x010101u);
}

TEST(AdjustColorLS, MovesTowardsTheEnds) {
    const struct {
        COLORREF color;
        int luminance;
        int saturation;
        COLORREF adjusted;
    } cases[] = {
        // The faces of the skin, from two common highlights and two button faces.
        {0x6A240A, 50, -50, 0xC48A73},
        {0x6A240A, 80, -66, 0xE2D2CB},
        {0xD77800, 50, -50, 0xD9B990},
        {0xD77800, 80, -66, 0xEBE2D6},
        {0xC8D0D4, 15, 0, 0xCFD6DA},
        {0xF0F0F0, 15, 0, 0xF2F2F2},
        // Darker; nothing at all; all the way; one percent.
        {0xC8D0D4, -15, 0, 0xA5B2B8},
        {0x6A240A, 0, 0, 0x69250A},
        {0x6A240A, 100, 100, 0xFFFFFF},
        {0x6A240A, -100, -100, 0x000000},
        {0x6A240A, 1, -1, 0x6B260A},
        {0x000000, 80, -66, 0xCCCCCC},
        // Beyond 100 percent the byte wraps.
        {0x6A240A, 250, 0, 0x451806},
    };
    for (const auto& c : cases)
        EXPECT_EQ(AdjustColorLS(c.color, c.luminance, c.saturation), c.adjusted)
            << std::hex << c.color << std::dec << ' ' << c.luminance << ' ' << c.saturation;
}

} // namespace
