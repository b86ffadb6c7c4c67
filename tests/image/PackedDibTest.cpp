// SPDX-License-Identifier: MIT
//
// Packed DIBs, the clipboard's form of bitmaps.
#include "tests/image/BmpBuilder.h"
#include "tests/image/ImageTesting.h"

#include <gtest/gtest.h>

using namespace bmptest;
using imagetest::Indices;
using imagetest::Picture;

namespace {

/// Loads from a block of exactly the data's length.
bool Load(const Bytes& data, IsImage& image) {
    const Bytes exact(data.begin(), data.end());
    return image.CreateFromPackedDib(exact.data(), exact.size());
}

const Bytes kRow32 = {1, 2, 3, 0, 0xF1, 0xF2, 0xF3, 0};

TEST(PackedDibs, ComeOutRightAndSurviveEveryTruncation) {
    const std::vector<uint32_t> reversed = {0xFF, 0xFF00, 0xFF0000};
    const struct {
        const char* name;
        Bitmap bitmap;
        const char* picture;
    } cases[] = {
        {"1", Make(1, 2, 2, {0x40, 0, 0, 0, 0x80, 0, 0, 0}), "FF0000 000000 / 000000 FF0000"},
        {"4 top down", Make(4, 2, -2, {0x01, 0, 0, 0, 0x10, 0, 0, 0}),
         "000000 FF0000 / FF0000 000000"},
        {"8", Make(8, 2, 1, {1, 0, 0, 0}), "FF0000 000000"},
        {"16", Make(16, 2, 1, {0x00, 0x7C, 0x1F, 0x00}), "F80000 0000F8"},
        {"24 with a palette",
         With(Make(24, 1, 1, {1, 2, 3, 0}),
              [](Bitmap& b) {
                  b.palette = PaletteOf({0x777777, 0x888888});
                  b.colorsUsed = 2;
              }),
         "030201"},
        {"32", Make(32, 2, 1, kRow32), "030201 F3F2F1"},
        {"32 top down", Make(32, 1, -2, kRow32), "030201 / F3F2F1"},
        {"1 core", WithHeader(Make(1, 2, 1, {0x40, 0, 0, 0}), 12), "000000 FF0000"},
        {"24 core", WithHeader(Make(24, 1, 1, {1, 2, 3, 0}), 12), "030201"},
        {"5-6-5", Make(16, 2, 1, {0xE0, 0xFF, 0x1F, 0x00}, 3, {0xF800, 0x07E0, 0x001F}),
         "F8FC00 0000F8"},
        {"4-4-4", Make(16, 2, 1, {0x34, 0x12, 0xFF, 0x0F}, 3, {0x0F00, 0x00F0, 0x000F}),
         "203040 F0F0F0"},
        {"2-3-1", Make(16, 2, 1, {0x31, 0, 0x0E, 0}, 3, {0x30, 0x0E, 0x01}), "C00080 00E000"},
        {"reversed", Make(32, 2, 1, kRow32, 3, reversed), "010203 F1F2F3"},
        {"10-10-10", Make(32, 1, 1, {0xFF, 3, 8, 0}, 3, {0x3FF00000, 0xFFC00, 0x3FF}), "0080FF"},
        {"fields of nothing", Make(32, 1, 1, {1, 2, 3, 0xAB}, 3, {0, 0, 0xFFFFFFFF}), "0000AB"},
        {"fields in the header",
         With(Make(32, 2, 1, kRow32, 3),
              [&](Bitmap& b) {
                  b.headerSize = 108;
                  b.headerTail = PaletteOf(reversed);
              }),
         "010203 F1F2F3"},
        {"RLE8", Make(8, 2, 2, {2, 1, 0, 0, 0, 2, 1, 0, 1, 1, 0, 1}, 1),
         "000000 FF0000 / FF0000 FF0000"},
        {"RLE4", Make(4, 4, 1, {4, 0x10, 0, 1}, 2), "FF0000 000000 FF0000 000000"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const Bytes whole = PackedDib(c.bitmap);
        IsImage image;
        image.CreateImage(9, 9, 24, tint::kFormatBmp);
        image.SetTransparentIndex(0);
        image.SetBackgroundColor({1, 2, 3, 0});
        image.SetHorizontalDpi(50);
        ASSERT_TRUE(Load(whole, image)) << image.LastErrorText();
        EXPECT_EQ(Picture(image), c.picture);
        EXPECT_EQ(image.Type(), 0u);
        EXPECT_STREQ(image.LastErrorText(), "");
        // Nothing is left of the picture before.
        EXPECT_EQ(image.Info().transparentIndex, -1);
        EXPECT_EQ(image.Info().backgroundColor.rgbRed, 0);
        EXPECT_EQ(image.Info().xDpi, 96u);
        for (size_t length = 0; length < whole.size(); ++length) {
            EXPECT_EQ(Load(imagetest::Cut(whole, length), image), length >= c.bitmap.headerSize);
            EXPECT_EQ(image.IsEmpty(), length < c.bitmap.headerSize) << length;
        }
    }
}

/// Here runs and deltas are exact to the pixel, unlike those of BMP files.
TEST(PackedDibRle4, ReadsRunsFromOddPixelsInOrder) {
    const std::pair<Bytes, const char*> cases[] = {
        {{1, 0x90, 4, 0x12, 0, 1}, "91212000"},
        {{1, 0x90, 0, 4, 0x12, 0x34, 2, 0x56, 0, 1}, "91234560"},
        {{1, 0x90, 0, 3, 0x12, 0x30, 1, 0x55, 0, 1}, "91235000"},
        {{0, 2, 3, 0, 2, 0x12, 0, 1}, "00012000"},
    };
    for (const auto& [data, indices] : cases) {
        IsImage image;
        ASSERT_TRUE(Load(PackedDib(Make(4, 8, 1, data, 2)), image));
        EXPECT_EQ(Indices(image), indices);
    }
}

TEST(PackedDibRefusals, SayWhyAndLeaveNothing) {
    const char kCompression[] = "compression type not supported";
    const struct {
        uint16_t bits;
        uint32_t compression;
        int32_t width, height;
        const char* text;
    } cases[] = {
        {24, 4, 1, 1, kCompression},
        {0, 5, 1, 1, kCompression},
        {24, 1, 1, 1, kCompression},
        {8, 2, 1, 1, kCompression},
        {4, 1, 1, 1, kCompression},
        {24, 3, 1, 1, kCompression},
        {2, 0, 1, 1, kCompression},
        {24, 6, 1, 1, "unknown compression"},
        {24, 0xFFFFFFFF, 1, 1, "unknown compression"},
        {8, 0, 0, 1, "image width or height is 0"},
        {8, 0, -1, 1, "image width or height exceeds 31 bits"},
        {8, 0, 1, INT32_MIN, "image width or height exceeds 31 bits"},
        {8, 0, 65536, 65536, "image exceeds 2 GiB"},
    };
    for (const auto& c : cases) {
        IsImage image;
        image.CreateImage(2, 2, 8);
        EXPECT_FALSE(
            Load(PackedDib(Make(c.bits, c.width, c.height, Bytes(16), c.compression)), image));
        EXPECT_STREQ(image.LastErrorText(), c.text) << c.bits << "/" << c.compression;
        EXPECT_TRUE(image.IsEmpty());
    }
    const Bytes sound = PackedDib(Make(24, 1, 1, {1, 2, 3, 0}));
    IsImage source, image, ghost;
    for (const uint32_t headerSize : {0u, 11u, 13u, 39u, 200u, 0xFFFFFFFFu}) {
        Bytes data = sound;
        std::copy_n(Number(headerSize, 4).begin(), 4, data.begin());
        EXPECT_FALSE(Load(data, image)) << headerSize;
        EXPECT_STREQ(image.LastErrorText(), "DIB header is damaged or not supported");
    }
    EXPECT_FALSE(image.CreateFromPackedDib(nullptr, 0));
    source.CreateImage(1, 1, 1);
    ghost.Ghost(&source);
    EXPECT_FALSE(Load(sound, ghost));
    EXPECT_EQ(ghost.Info().ghostOf, &source);
}

TEST(PackedDibHeader, GivesResolutionAndPalette) {
    const std::pair<int32_t, uint32_t> cases[] = {{0, 96}, {11811, 300}, {2835, 72}, {-1, 96}};
    IsImage image;
    for (const auto& [pixelsPerMeter, dpi] : cases) {
        Bitmap bitmap = Make(24, 1, 1, {1, 2, 3, 0});
        bitmap.yPixelsPerMeter = pixelsPerMeter;
        ASSERT_TRUE(Load(PackedDib(bitmap), image));
        EXPECT_EQ(image.Info().yDpi, dpi);
        EXPECT_EQ(image.Info().xDpi, 96u);
    }
    // Entries beyond the container's are passed over.
    Bitmap bitmap = Make(1, 2, 1, {0x40, 0, 0, 0});
    bitmap.palette = PaletteOf({0x111111, 0x222222, 0x333333});
    bitmap.colorsUsed = 3;
    ASSERT_TRUE(Load(PackedDib(bitmap), image));
    EXPECT_EQ(Picture(image), "111111 222222");
    bitmap.colorsUsed = 0xFFFFFFFF;
    ASSERT_TRUE(Load(PackedDib(bitmap), image)) << "the pixels lie beyond the data";
    EXPECT_EQ(Picture(image), "111111 111111");
}

} // namespace
