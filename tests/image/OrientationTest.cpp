// SPDX-License-Identifier: MIT
//
// Turning pictures by their orientation.
#include "image/ImageJPG.h"
#include "tests/image/ExifBuilder.h"
#include "tests/image/ImageTesting.h"
#include "tests/image/JpegBuilder.h"

#include <gtest/gtest.h>

using imagetest::Indices;

namespace {

/// A picture "123 / 456" of the depth given, with an orientation.
class Oriented : public IsImage {
public:
    Oriented(uint32_t bits, uint8_t orientation) {
        CreateImage(3, 2, bits, tint::kFormatJpeg);
        for (uint8_t i = 0; i < 6; ++i) {
            const RGBQUAD color = {i, static_cast<uint8_t>(i + 1), static_cast<uint8_t>(i + 1), 0};
            SetPaletteColor(i, color);
            SetPixelIndex(i % 3, 1 - i / 3, bits == 1 ? i & 1 : i + 1);
            if (bits == 24)
                SetPixelColor(i % 3, 1 - i / 3, color);
        }
        SetHorizontalDpi(100);
        SetVerticalDpi(200);
        info.orientation = orientation;
    }
};

/// The red channel as digits, top row first.
std::string Reds(const IsImage& image) {
    std::string text;
    for (uint32_t y = image.Height(); y-- > 0;) {
        for (uint32_t x = 0; x < image.Width(); ++x)
            text += static_cast<char>('0' + image.GetPixelColor(x, y).rgbRed);
        text += y > 0 ? "/" : "";
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
            if (bits <= 8) {
                EXPECT_EQ(image.GetPaletteColor(1).rgbRed, bits == 1 ? 2 : 2);
            }
        }
    }
}

TEST(Orientation, LargePicturesAreTurnedTileByTile) {
    jpegtest::Picture picture;
    picture.width = 70;
    picture.height = 45;
    const exiftest::ExifBuilder b(false);
    jpegtest::Bytes file = jpegtest::WithSections(
        jpegtest::JpegFile(picture), {jpegtest::Section(0xE1, b.Block({b.Short(0x112, 8)}))});
    CxMemFile stream(file.data(), static_cast<uint32_t>(file.size()));
    IsImage stored;
    ASSERT_TRUE(stored.DecodeByType(tint::kFormatJpeg, &stream));
    IsImage turned = stored;
    ASSERT_TRUE(turned.ApplyOrientation());
    ASSERT_EQ(turned.Width(), 45u);
    for (uint32_t y = 0; y < 45; ++y) {
        for (uint32_t x = 0; x < 70; ++x) {
            // A quarter turn to the left; rows count from below.
            const RGBQUAD from = stored.GetPixelColor(x, y);
            const RGBQUAD to = turned.GetPixelColor(44 - y, x);
            ASSERT_TRUE(from.rgbRed == to.rgbRed && from.rgbBlue == to.rgbBlue) << x << ", " << y;
        }
    }
}

TEST(Orientation, RefusalsLeaveThePictureAlone) {
    EXPECT_FALSE(IsImage().ApplyOrientation());
    Oriented image(24, 6);
    IsImage ghost;
    ghost.Ghost(&image);
    EXPECT_FALSE(ghost.ApplyOrientation());
    EXPECT_STRNE(ghost.LastErrorText(), "");
    Oriented unknown(24, 9);
    EXPECT_FALSE(unknown.ApplyOrientation());
    EXPECT_EQ(Reds(unknown), "123/456");
}

} // namespace
