// SPDX-License-Identifier: MIT
#include "draw/Hls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <ostream>
#include <string>

namespace {

// Worked out by hand with every step rounded to single precision.
struct HlsCase {
    const char* name;
    COLORREF color;
    DWORD hls;
    COLORREF back; ///< the round trip: truncation loses up to a step or two a channel
};

class HlsTable : public testing::TestWithParam<HlsCase> {};

TEST_P(HlsTable, ConvertsBothWays) {
    EXPECT_EQ(RGBToHLS(GetParam().color), GetParam().hls);
    EXPECT_EQ(RGBToHLS(GetParam().color | 0x5A000000), GetParam().hls) << "the top byte";
    EXPECT_EQ(HLSToRGB(GetParam().hls), GetParam().back);
}

INSTANTIATE_TEST_SUITE_P(
    Colors, HlsTable,
    testing::Values(HlsCase{"Black", 0x000000, 0x000000, 0x000000},
                    HlsCase{"White", 0xFFFFFF, 0x00FF00, 0xFFFFFF},
                    HlsCase{"Grey", 0x808080, 0x008000, 0x808080},
                    HlsCase{"RedIsExactly360Degrees", 0x0000FF, 0xFF7FFF, 0x0000FE},
                    HlsCase{"Green", 0x00FF00, 0xFF7F55, 0x00FE00},
                    HlsCase{"Blue", 0xFF0000, 0xFF7FAA, 0xFE0000},
                    HlsCase{"YellowTakesTheGreenFormula", 0x00FFFF, 0xFF7F2A, 0x00FBFE},
                    HlsCase{"CyanTakesTheBlueFormula", 0xFFFF00, 0xFF7F7F, 0xFBFE00},
                    HlsCase{"MagentaTakesTheBlueFormula", 0xFF00FF, 0xFF7FD4, 0xFE00FB},
                    HlsCase{"ClassicHighlight", 0x6A240A, 0xD33A9E, 0x69250A},
                    HlsCase{"ModernHighlight", 0xD77800, 0xFF6B92, 0xD67800},
                    HlsCase{"HueAbove360IsReduced", 0x2054B8, 0xB36C0E, 0x2052B7},
                    HlsCase{"ClassicFace", 0xC8D0D4, 0x1FCE1C, 0xC8CFD3},
                    HlsCase{"NearBlack", 0x010203, 0x7F0215, 0x010102},
                    HlsCase{"NearWhite", 0xFEFDFC, 0x7FFD94, 0xFDFDFC}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Hls, WithoutSaturationTheLuminanceIsTheGrey) {
    for (DWORD luminance = 0; luminance < 256; ++luminance)
        for (const DWORD hue : {0u, 77u, 255u})
            ASSERT_EQ(HLSToRGB(hue | luminance << 8), luminance * 0x010101u);
}

// The bound is what two truncations to a byte cost in a channel; the hue costs most.
TEST(Hls, RoundTripStaysClose) {
    const auto distance = [](COLORREF left, COLORREF right) {
        return std::max({std::abs(GetRValue(left) - GetRValue(right)),
                         std::abs(GetGValue(left) - GetGValue(right)),
                         std::abs(GetBValue(left) - GetBValue(right))});
    };
    for (int red = 0; red < 256; red += 5)
        for (int green = 0; green < 256; green += 5)
            for (int blue = 0; blue < 256; blue += 5) {
                const COLORREF color = RGB(red, green, blue);
                ASSERT_LE(distance(HLSToRGB(RGBToHLS(color)), color), 7) << std::hex << color;
            }
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
