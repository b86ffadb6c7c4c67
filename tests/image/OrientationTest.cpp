// SPDX-License-Identifier: MIT
//
// Turning pictures by their orientation.
#include "tests/image/ImageTesting.h"

#include <gtest/gtest.h>

using imagetest::Indices;

namespace {

/// A picture "123 / 456", or a larger one, of the depth given, with an orientation.
class Oriented : public IsImage {
public:
    Oriented(uint32_t bits, uint8_t orientation, uint32_t width = 3, uint32_t height = 2) {
        CreateImage(width, height, bits, tint::kFormatJpeg);
        for (uint32_t i = 0; i < width * height; ++i) {
            const uint8_t value = static_cast<uint8_t>(i + 1);
            const RGBQUAD color = {static_cast<uint8_t>(i / 251), value, value, 0};
            SetPaletteColor(i, color);
            SetPixelIndex(i % width, height - 1 - i / width, bits == 1 ? i & 1 : value);
            if (bits == 24)
                SetPixelColor(i % width, height - 1 - i / width, color);
        }
        SetHorizontalDpi(100);
        SetVerticalDpi(200);
        info.orientation = orientation;
    }
};

/// The red channel as digits, top row first.
std::string Reds(const IsImage& image) {
    std::string text;
    for (uint32_t y = image.Height(); y-- > 0; text += y > 0 ? "/" : "") {
        for (uint32_t x = 0; x < image.Width(); ++x)
            text += static_cast<char>('0' + image.GetPixelColor(x, y).rgbRed);
    }
    return text;
}

TEST(Orientation, EachOfTheEightIsApplied) {
    const char* turned[] = {"123/456",  "123/456",  "321/654",  "654/321", "456/123",
                            "14/25/36", "41/52/63", "63/52/41", "36/25/14"};
    const char* bilevel[] = {"010/101",  "010/101",  "010/101",  "101/010", "101/010",
                             "01/10/01", "10/01/10", "10/01/10", "01/10/01"};
    for (uint8_t i = 0; i <= 8; ++i) {
        for (const uint32_t bits : {1u, 4u, 8u, 24u}) {
            Oriented image(bits, i);
            ASSERT_TRUE(image.ApplyOrientation());
            EXPECT_EQ(bits == 24 ? Reds(image) : Indices(image), bits == 1 ? bilevel[i] : turned[i])
                << int{i} << ", " << bits << " bits";
            EXPECT_EQ(image.Info().orientation, i == 0 ? 0 : 1);
            EXPECT_EQ(image.Info().xDpi, i >= 5 ? 200u : 100u);
            EXPECT_EQ(image.Header().biYPelsPerMeter, i >= 5 ? 3937 : 7874);
            EXPECT_EQ(image.Info().bits, image.RowPointer(0));
            EXPECT_EQ(image.Type(), uint32_t{tint::kFormatJpeg});
            EXPECT_EQ(image.GetPaletteColor(1).rgbRed, bits == 24 ? 0 : 2);
        }
    }
}

TEST(Orientation, LargePicturesAreTurnedTileByTile) {
    Oriented turned(24, 8, 70, 45);
    const IsImage stored = turned;
    ASSERT_TRUE(turned.ApplyOrientation());
    ASSERT_EQ(turned.Width(), 45u);
    for (uint32_t i = 0; i < 70 * 45; ++i) {
        // A quarter turn to the left; rows count from below.
        const RGBQUAD from = stored.GetPixelColor(i % 70, i / 70);
        const RGBQUAD to = turned.GetPixelColor(44 - i / 70, i % 70);
        ASSERT_TRUE(from.rgbRed == to.rgbRed && from.rgbBlue == to.rgbBlue) << i;
    }
}

TEST(Orientation, RefusalsLeaveThePictureAlone) {
    EXPECT_FALSE(IsImage().ApplyOrientation());
    Oriented unknown(24, 9);
    EXPECT_FALSE(unknown.ApplyOrientation());
    EXPECT_EQ(Reds(unknown), "123/456");
    Oriented large(24, 5);
    const imagetest::LimitsGuard guard({5});
    EXPECT_FALSE(large.ApplyOrientation());
    EXPECT_STREQ(large.LastErrorText(), "image exceeds the limit maxPixels");
    EXPECT_EQ(Reds(large), "123/456");
}

} // namespace
