// SPDX-License-Identifier: MIT
//
// The PNG reader, on files built chunk by chunk.
#include "image/ImagePNG.h"
#include "tests/image/ImageTesting.h"
#include "tests/image/PngBuilder.h"

#include <gtest/gtest.h>

using namespace pngtest;
using namespace tint;
using imagetest::Cut;
using imagetest::Picture;

namespace {

bool DecodePng(const Bytes& data, IsImage& image) {
    return imagetest::Decode(data, image, kFormatPng);
}

const Bytes kColors = {0, 0, 0, 255, 0, 0, 0, 255, 0, 0, 0, 255}; // black, red, green, blue

TEST(PngPictures, ComeOutRight) {
    const struct {
        const char* name;
        Png png;
        uint32_t bitCount;
        const char* picture; ///< as imagetest::Picture
    } cases[] = {
        {"Depth1", Make(kGrey, 1, 9, 2, {0x80, 0x80, 0x55, 0}), 1,
         "FFFFFF 000000 000000 000000 000000 000000 000000 000000 FFFFFF / "
         "000000 FFFFFF 000000 FFFFFF 000000 FFFFFF 000000 FFFFFF 000000"},
        {"Depth2", Make(kGrey, 2, 5, 2, {0x1B, 0x40, 0xE4, 0x80}), 4,
         "000000 555555 AAAAAA FFFFFF 555555 / FFFFFF AAAAAA 555555 000000 AAAAAA"},
        {"Depth4", Make(kGrey, 4, 3, 1, {0x0F, 0x80}), 4, "000000 FFFFFF 888888"},
        {"Depth16", Make(kGrey, 16, 2, 1, {0x12, 0xFF, 0xFF, 0x00}), 24, "121212 FFFFFF"},
        {"Alpha8", Make(kGreyAlpha, 8, 3, 1, {0, 0, 0, 128, 7, 255}), 24, "C0C0C0 606060 070707"},
        {"Alpha8Background",
         Make(kGreyAlpha, 8, 3, 1, {0, 0, 255, 128, 7, 255}, {{"bKGD", {0, 0}}}), 24,
         "000000 808080 070707"},
        {"Alpha16Dropped", Make(kGreyAlpha, 16, 2, 1, {0x12, 0, 0, 0, 0x34, 0, 0, 9}), 24,
         "121212 343434"},
        {"Depth1Transparent", Make(kGrey, 1, 2, 1, {0x40}, {{"tRNS", {0, 0}}}), 1, "C0C0C0 FFFFFF"},
        {"Depth2TransparentBackground",
         Make(kGrey, 2, 4, 1, {0x1B}, {{"tRNS", {0, 2}}, {"bKGD", {0, 1}}}), 4,
         "000000 555555 555555 FFFFFF"},
        {"Depth4Transparent", Make(kGrey, 4, 2, 1, {0x0F}, {{"tRNS", {0, 15}}}), 4,
         "000000 C0C0C0"},
        {"Depth8TransparentHighByteIgnored", Make(kGrey, 8, 2, 1, {9, 10}, {{"tRNS", {1, 9}}}), 8,
         "C0C0C0 0A0A0A"},
        {"Depth16Transparent",
         Make(kGrey, 16, 3, 1, {0x12, 0x34, 0x12, 0x35, 0xFF, 0xFF}, {{"tRNS", {0x12, 0x34}}}), 24,
         "C0C0C0 121212 FFFFFF"},
        {"Rgb8", Make(kRgb, 8, 2, 2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}), 24,
         "010203 040506 / 070809 0A0B0C"},
        {"Rgb16", Make(kRgb, 16, 1, 1, {1, 255, 2, 255, 3, 255}), 24, "010203"},
        {"Rgb8Transparent", Make(kRgb, 8, 2, 1, {1, 2, 3, 1, 2, 4}, {{"tRNS", {0, 1, 0, 2, 0, 3}}}),
         24, "C0C0C0 010204"},
        {"Rgb16TransparentByTheLowByte",
         Make(kRgb, 16, 2, 1, {1, 0, 2, 0, 3, 4, 1, 0, 2, 0, 3, 5}, {{"tRNS", {1, 0, 2, 0, 3, 4}}}),
         24, "C0C0C0 010203"},
        {"Alpha8Dropped", Make(kRgbAlpha, 8, 2, 1, {1, 2, 3, 0, 4, 5, 6, 128}), 24,
         "010203 040506"},
        {"Alpha16", Make(kRgbAlpha, 16, 2, 1, {1, 0, 2, 0, 3, 0, 0, 0, 4, 0, 5, 0, 6, 0, 255, 255}),
         24, "C0C0C0 040506"},
        {"Alpha16Background",
         Make(kRgbAlpha, 16, 1, 1, {1, 0, 2, 0, 3, 0, 0, 0}, {{"bKGD", {7, 1, 8, 1, 9, 1}}}), 24,
         "070809"},
        {"Palette1", Make(kPalette, 1, 3, 1, {0x40}, {{"PLTE", {7, 8, 9, 255, 0, 1}}}), 1,
         "070809 FF0001 070809"},
        {"Palette2", Make(kPalette, 2, 5, 1, {0x1B, 0xC0}, {{"PLTE", kColors}}), 4,
         "000000 FF0000 00FF00 0000FF 0000FF"},
        {"Palette8", Make(kPalette, 8, 2, 1, {3, 1}, {{"PLTE", kColors}}), 8, "0000FF FF0000"},
        {"PaletteAlphaKeepsTheColors",
         Make(kPalette, 8, 2, 1, {1, 2}, {{"PLTE", kColors}, {"tRNS", {0, 0, 9}}}), 8,
         "FF0000 00FF00"},
    };
    for (const auto& c : cases) {
        for (const bool interlaced : {false, true}) {
            SCOPED_TRACE(testing::Message() << c.name << (interlaced ? ", interlaced" : ""));
            Png png = c.png;
            png.interlaced = interlaced;
            IsImage image;
            ASSERT_TRUE(DecodePng(PngFile(png), image)) << image.LastErrorText();
            EXPECT_EQ(Picture(image), c.picture);
            EXPECT_EQ(image.BitCount(), c.bitCount);
            EXPECT_EQ(image.Type(), uint32_t{kFormatPng});
        }
    }
}

TEST(PngTransparency, IsKeptInThePalette) {
    const struct {
        Bytes alpha;
        int32_t transparentIndex;
        Bytes reserved; ///< of the first entries and the last one
    } cases[] = {{{0}, 0, {0, 0, 0, 0}},
                 {{7}, -1, {7, 255, 255, 255}},
                 {{0, 9}, -1, {0, 9, 255, 255}},
                 {{255, 0, 128, 3}, -1, {255, 0, 128, 255}}};
    for (const auto& c : cases) {
        const Chunks chunks = {{"PLTE", kColors}, {"tRNS", c.alpha}};
        IsImage image;
        ASSERT_TRUE(DecodePng(PngFile(Make(kPalette, 8, 1, 1, {0}, chunks)), image));
        EXPECT_EQ(image.Info().transparentIndex, c.transparentIndex);
        const RGBQUAD* p = image.Palette();
        EXPECT_EQ(c.reserved, (Bytes{p[0].rgbReserved, p[1].rgbReserved, p[2].rgbReserved,
                                     p[255].rgbReserved}));
    }
}

TEST(PngHeader, GivesBackgroundAndResolution) {
    const auto physical = [](const Bytes& data) {
        return Make(kRgb, 8, 1, 1, {1, 2, 3}, {{"pHYs", data}});
    };
    const struct {
        Png png;
        uint32_t color; ///< 0xRRGGBB
        uint32_t xDpi, yDpi;
    } cases[] = {
        // A background is kept where alpha is dropped.
        {Make(kRgbAlpha, 8, 1, 1, {1, 2, 3, 4}, {{"bKGD", {0, 7, 0, 8, 0, 9}}}), 0x070809, 96, 96},
        {Make(kGreyAlpha, 16, 1, 1, {1, 2, 3, 4}, {{"bKGD", {0x12, 0x34}}}), 0x121212, 96, 96},
        {Make(kRgbAlpha, 8, 1, 1, {1, 2, 3, 4}), 0, 96, 96},
        {Make(kGreyAlpha, 8, 1, 1, {1, 2}, {{"bKGD", {0, 9}}}), 0, 96, 96}, // is in the picture
        {physical({0, 0, 0x0E, 0xC4, 0, 0, 0x0B, 0x13, 1}), 0, 96, 72},     // 3780, 2835 per metre
        {physical({0, 0, 0, 1, 0, 0, 0, 2, 0}), 0, 1, 2},
        {physical({0, 0, 0, 0, 0, 0, 0, 19, 1}), 0, 96, 96}, // below 1 dpi
        {physical({255, 255, 255, 255, 0x7F, 255, 255, 255, 1}), 0, 109092169, 54546085},
        {physical({255, 255, 255, 255, 0, 0, 0, 9, 0}), 0, INT32_MAX, 9},
    };
    for (const auto& c : cases) {
        IsImage image;
        ASSERT_TRUE(DecodePng(PngFile(c.png), image));
        const RGBQUAD color = image.Info().backgroundColor;
        EXPECT_EQ(static_cast<uint32_t>(color.rgbRed << 16 | color.rgbGreen << 8 | color.rgbBlue),
                  c.color);
        EXPECT_EQ(image.Info().xDpi, c.xDpi);
        EXPECT_EQ(image.Info().yDpi, c.yDpi);
    }
}

TEST(PngDamage, IsAFailureWithAText) {
    const Bytes good = PngFile(Make(kRgb, 8, 1, 1, {1, 2, 3}));
    const auto flipped = [&good](size_t at) {
        return imagetest::With(good, [at](Bytes& bad) { bad[at] ^= 1; });
    };
    // A header that claims more than the pixels reach, its checksum put right.
    const auto claiming = [](uint32_t width, uint32_t height) {
        const Bytes file = PngFile(Make(kRgbAlpha, 16, 1, 1, Bytes(8)));
        const Bytes honest = PngFile(Make(kRgbAlpha, 16, width, height, {}));
        Bytes out = Cut(honest, 33);
        out.insert(out.end(), file.begin() + 33, file.end());
        return out;
    };
    const struct {
        const char* name;
        Bytes file;
        const char* error; ///< null: libpng's wording is left open
    } cases[] = {
        {"a flipped bit in the pixels", flipped(good.size() - 20), nullptr},
        {"another signature", flipped(1), nullptr},
        {"cut in the pixels", Cut(good, good.size() - 20), "Read Error"},
        {"no palette", PngFile(Make(kPalette, 8, 1, 1, {1})), nullptr},
        {"no pixels", PngFile(Make(kRgb, 8, 1, 1, {})), nullptr},
        {"too few rows", claiming(1, 2), "Not enough image data"},
        {"a row of more than there is", claiming(1000, 1), "Not enough image data"},
        // libpng would clear the memory of rows before it sees that there are none.
        {"a row beyond the data", claiming(178'000'000, 1), "Read Error"},
        {"a row beyond 32 bits", claiming(179'000'000, 1), "image row exceeds 32 bits"},
        {"too many pixels", PngFile(Make(kGrey, 1, 65500, 65500, {}, {{"IDAT", {0}}})),
         "image exceeds the limit maxPixels"},
        {"width beyond 31 bits", PngFile(Make(kGrey, 1, 0x80000001, 1, {})), nullptr},
        {"a depth there is not", PngFile(Make(kRgb, 4, 1, 1, {1, 2})), nullptr},
    };
    for (const auto& c : cases) {
        IsImage image;
        EXPECT_FALSE(DecodePng(c.file, image)) << c.name;
        if (c.error) {
            EXPECT_STREQ(image.LastErrorText(), c.error) << c.name;
        }
        EXPECT_STRNE(image.LastErrorText(), "") << c.name;
    }
    EXPECT_FALSE(CxImagePNG().DecodePng(nullptr));
}

/// What the picture does not need is read past, sound or not, however long it is.
TEST(PngChunks, OthersAreIgnored) {
    const Bytes broken = {'a', 0, 0, 1, 2, 3};
    IsImage image;
    ASSERT_TRUE(DecodePng(PngFile(Make(kRgb, 8, 1, 1, {1, 2, 3},
                                       {{"tEXt", Bytes(100000, 'x')},
                                        {"zTXt", broken},
                                        {"iCCP", broken},
                                        {"eXIf", {1}},
                                        {"fdAT", Bytes(9000000)}})),
                          image))
        << image.LastErrorText();
    EXPECT_EQ(Picture(image), "010203");
}

} // namespace
