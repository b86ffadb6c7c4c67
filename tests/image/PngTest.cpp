// SPDX-License-Identifier: MIT
//
// The PNG reader, on files built chunk by chunk.
#include "tests/image/ImageTesting.h"
#include "tests/image/PngBuilder.h"

#include "image/ImagePNG.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace pngtest;
using namespace tint;
using imagetest::LimitsGuard;
using imagetest::Picture;

namespace {

using Chunks = std::vector<std::pair<std::string, Bytes>>;

/// Runs the decoder over `data`, which it cannot read past: the block is exactly as long.
bool DecodePng(const Bytes& data, CxImagePNG& image) {
    const Bytes exact(data.begin(), data.end());
    CxMemFile stream(const_cast<uint8_t*>(exact.data()), static_cast<uint32_t>(exact.size()));
    return image.DecodePng(&stream);
}

Png Make(ColorType type, uint8_t bits, uint32_t width, uint32_t height, const Bytes& rows,
         const Chunks& chunks = {}) {
    Png png;
    png.colorType = type;
    png.bitDepth = bits;
    png.width = width;
    png.height = height;
    png.rows = rows;
    png.chunks = chunks;
    return png;
}

const Bytes kColors = {0, 0, 0, 255, 0, 0, 0, 255, 0, 0, 0, 255}; // black, red, green, blue

struct PictureCase {
    const char* name;
    Png png;
    uint32_t bitCount;
    const char* picture; ///< as imagetest::Picture
};

void PrintTo(const PictureCase& c, std::ostream* out) {
    *out << c.name;
}

class PngPictures : public testing::TestWithParam<PictureCase> {};

TEST_P(PngPictures, ComeOutRight) {
    for (const bool interlaced : {false, true}) {
        Png png = GetParam().png;
        png.interlaced = interlaced;
        CxImagePNG image;
        ASSERT_TRUE(DecodePng(PngFile(png), image)) << image.LastErrorText();
        EXPECT_EQ(Picture(image), GetParam().picture) << (interlaced ? "interlaced" : "in rows");
        EXPECT_EQ(image.BitCount(), GetParam().bitCount);
        EXPECT_EQ(image.Type(), uint32_t{kFormatPng});
    }
}

INSTANTIATE_TEST_SUITE_P(
    Grey, PngPictures,
    testing::Values(
        PictureCase{"Depth1", Make(kGrey, 1, 9, 2, {0x80, 0x80, 0x55, 0}), 1,
                    "FFFFFF 000000 000000 000000 000000 000000 000000 000000 FFFFFF / "
                    "000000 FFFFFF 000000 FFFFFF 000000 FFFFFF 000000 FFFFFF 000000"},
        PictureCase{"Depth2", Make(kGrey, 2, 5, 2, {0x1B, 0x40, 0xE4, 0x80}), 4,
                    "000000 555555 AAAAAA FFFFFF 555555 / FFFFFF AAAAAA 555555 000000 AAAAAA"},
        PictureCase{"Depth4", Make(kGrey, 4, 3, 1, {0x0F, 0x80}), 4, "000000 FFFFFF 888888"},
        PictureCase{"Depth8", Make(kGrey, 8, 3, 1, {0, 1, 255}), 8, "000000 010101 FFFFFF"},
        PictureCase{"Depth16", Make(kGrey, 16, 2, 1, {0x12, 0xFF, 0xFF, 0x00}), 24,
                    "121212 FFFFFF"},
        PictureCase{"Alpha8", Make(kGreyAlpha, 8, 3, 1, {0, 0, 0, 128, 7, 255}), 24,
                    "C0C0C0 606060 070707"},
        PictureCase{"Alpha8Background",
                    Make(kGreyAlpha, 8, 3, 1, {0, 0, 255, 128, 7, 255}, {{"bKGD", {0, 0}}}), 24,
                    "000000 808080 070707"},
        PictureCase{"Alpha16Dropped", Make(kGreyAlpha, 16, 2, 1, {0x12, 0, 0, 0, 0x34, 0, 0, 9}),
                    24, "121212 343434"},
        PictureCase{"Depth1Transparent", Make(kGrey, 1, 2, 1, {0x40}, {{"tRNS", {0, 0}}}), 1,
                    "C0C0C0 FFFFFF"},
        PictureCase{"Depth2TransparentBackground",
                    Make(kGrey, 2, 4, 1, {0x1B}, {{"tRNS", {0, 2}}, {"bKGD", {0, 1}}}), 4,
                    "000000 555555 555555 FFFFFF"},
        PictureCase{"Depth4Transparent", Make(kGrey, 4, 2, 1, {0x0F}, {{"tRNS", {0, 15}}}), 4,
                    "000000 C0C0C0"},
        PictureCase{"Depth8TransparentHighByteIgnored",
                    Make(kGrey, 8, 2, 1, {9, 10}, {{"tRNS", {1, 9}}}), 8, "C0C0C0 0A0A0A"},
        PictureCase{
            "Depth16Transparent",
            Make(kGrey, 16, 3, 1, {0x12, 0x34, 0x12, 0x35, 0xFF, 0xFF}, {{"tRNS", {0x12, 0x34}}}),
            24, "C0C0C0 121212 FFFFFF"}),
    [](const auto& test) { return test.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Color, PngPictures,
    testing::Values(
        PictureCase{"Rgb8", Make(kRgb, 8, 2, 2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}), 24,
                    "010203 040506 / 070809 0A0B0C"},
        PictureCase{"Rgb16", Make(kRgb, 16, 1, 1, {1, 255, 2, 255, 3, 255}), 24, "010203"},
        PictureCase{"Rgb8Transparent",
                    Make(kRgb, 8, 2, 1, {1, 2, 3, 1, 2, 4}, {{"tRNS", {0, 1, 0, 2, 0, 3}}}), 24,
                    "C0C0C0 010204"},
        PictureCase{"Rgb8TransparentBackground",
                    Make(kRgb, 8, 2, 1, {1, 2, 3, 1, 2, 4},
                         {{"tRNS", {0, 1, 0, 2, 0, 3}}, {"bKGD", {0, 7, 0, 8, 0, 9}}}),
                    24, "070809 010204"},
        PictureCase{"Rgb16TransparentByTheLowByte",
                    Make(kRgb, 16, 2, 1, {1, 0, 2, 0, 3, 4, 1, 0, 2, 0, 3, 5},
                         {{"tRNS", {1, 0, 2, 0, 3, 4}}}),
                    24, "C0C0C0 010203"},
        PictureCase{"Alpha8Dropped", Make(kRgbAlpha, 8, 2, 1, {1, 2, 3, 0, 4, 5, 6, 128}), 24,
                    "010203 040506"},
        PictureCase{"Alpha16",
                    Make(kRgbAlpha, 16, 2, 1, {1, 0, 2, 0, 3, 0, 0, 0, 4, 0, 5, 0, 6, 0, 255, 255}),
                    24, "C0C0C0 040506"},
        PictureCase{
            "Alpha16Background",
            Make(kRgbAlpha, 16, 1, 1, {1, 0, 2, 0, 3, 0, 0, 0}, {{"bKGD", {7, 1, 8, 1, 9, 1}}}), 24,
            "070809"},
        PictureCase{"Palette1", Make(kPalette, 1, 3, 1, {0x40}, {{"PLTE", {7, 8, 9, 255, 0, 1}}}),
                    1, "070809 FF0001 070809"},
        PictureCase{"Palette2", Make(kPalette, 2, 5, 1, {0x1B, 0xC0}, {{"PLTE", kColors}}), 4,
                    "000000 FF0000 00FF00 0000FF 0000FF"},
        PictureCase{"Palette4", Make(kPalette, 4, 3, 1, {0x12, 0x30}, {{"PLTE", kColors}}), 4,
                    "FF0000 00FF00 0000FF"},
        PictureCase{"Palette8", Make(kPalette, 8, 2, 1, {3, 1}, {{"PLTE", kColors}}), 8,
                    "0000FF FF0000"},
        PictureCase{"PaletteIndexBeyondItIsBlack",
                    Make(kPalette, 8, 2, 1, {200, 1}, {{"PLTE", kColors}}), 8, "000000 FF0000"},
        PictureCase{"PaletteAlphaKeepsTheColors",
                    Make(kPalette, 8, 2, 1, {1, 2}, {{"PLTE", kColors}, {"tRNS", {0, 0, 9}}}), 8,
                    "FF0000 00FF00"}),
    [](const auto& test) { return test.param.name; });

/// A picture in which each pixel is told apart, wide enough for every pass of the interlacing.
TEST(PngInterlacing, GivesTheSamePictureAtEverySize) {
    for (uint32_t side = 1; side <= 17; ++side) {
        for (const uint8_t bits : {uint8_t{1}, uint8_t{2}, uint8_t{4}, uint8_t{8}, uint8_t{16}}) {
            Png png = Make(kGrey, bits, side, 18 - side, {});
            png.rows.resize((side * bits + 7) / 8 * png.height);
            uint32_t state = side;
            for (uint8_t& byte : png.rows)
                byte = static_cast<uint8_t>((state = state * 1664525 + 1013904223) >> 24);
            CxImagePNG plain, interlaced;
            ASSERT_TRUE(DecodePng(PngFile(png), plain));
            png.interlaced = true;
            ASSERT_TRUE(DecodePng(PngFile(png), interlaced));
            EXPECT_EQ(Picture(interlaced), Picture(plain)) << side << " wide, " << int{bits};
        }
    }
}

TEST(PngTransparency, IsKeptInThePalette) {
    const struct {
        Bytes alpha;
        int32_t transparentIndex;
        Bytes reserved; ///< of the first entries and the last one
    } cases[] = {
        {{0}, 0, {0, 0, 0, 0}},
        {{7}, -1, {7, 255, 255, 255}},
        {{0, 9}, -1, {0, 9, 255, 255}},
        {{255, 0, 128, 3}, -1, {255, 0, 128, 255}},
    };
    for (const auto& c : cases) {
        CxImagePNG image;
        image.SetTransparentIndex(5); // of a picture before
        ASSERT_TRUE(DecodePng(
            PngFile(Make(kPalette, 8, 1, 1, {0}, {{"PLTE", kColors}, {"tRNS", c.alpha}})), image));
        EXPECT_EQ(image.Info().transparentIndex, c.transparentIndex);
        const RGBQUAD* palette = image.Palette();
        const Bytes reserved = {palette[0].rgbReserved, palette[1].rgbReserved,
                                palette[2].rgbReserved, palette[255].rgbReserved};
        EXPECT_EQ(reserved, c.reserved);
    }
}

TEST(PngBackground, IsKeptWhereAlphaIsDropped) {
    const struct {
        Png png;
        uint32_t color; ///< 0xRRGGBB
    } cases[] = {
        {Make(kRgbAlpha, 8, 1, 1, {1, 2, 3, 4}, {{"bKGD", {0, 7, 0, 8, 0, 9}}}), 0x070809},
        {Make(kGreyAlpha, 16, 1, 1, {1, 2, 3, 4}, {{"bKGD", {0x12, 0x34}}}), 0x121212},
        {Make(kRgbAlpha, 8, 1, 1, {1, 2, 3, 4}), 0},
        {Make(kGreyAlpha, 8, 1, 1, {1, 2}, {{"bKGD", {0, 9}}}), 0}, // has gone into the picture
    };
    for (const auto& c : cases) {
        CxImagePNG image;
        image.SetBackgroundColor({1, 2, 3, 0}); // of a picture before
        ASSERT_TRUE(DecodePng(PngFile(c.png), image));
        const RGBQUAD color = image.Info().backgroundColor;
        EXPECT_EQ(static_cast<uint32_t>(color.rgbRed << 16 | color.rgbGreen << 8 | color.rgbBlue),
                  c.color);
        EXPECT_EQ(color.rgbReserved, 0);
    }
}

TEST(PngResolution, DependsOnTheUnit) {
    const struct {
        Bytes physical;
        uint32_t xDpi, yDpi;
    } cases[] = {
        {{0, 0, 0x0E, 0xC4, 0, 0, 0x0B, 0x13, 1}, 96, 72}, // 3780 and 2835 per metre
        {{0, 0, 0, 1, 0, 0, 0, 2, 0}, 1, 2},
        {{0, 0, 0, 0, 0, 0, 0, 19, 1}, 96, 96}, // below 1 dpi
        {{0xFF, 0xFF, 0xFF, 0xFF, 0x7F, 0xFF, 0xFF, 0xFF, 1}, 109092169, 54546085},
        {{0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 9, 0}, INT32_MAX, 9},
    };
    for (const auto& c : cases) {
        CxImagePNG image;
        ASSERT_TRUE(
            DecodePng(PngFile(Make(kRgb, 8, 1, 1, {1, 2, 3}, {{"pHYs", c.physical}})), image));
        EXPECT_EQ(image.Info().xDpi, c.xDpi);
        EXPECT_EQ(image.Info().yDpi, c.yDpi);
    }
}

TEST(PngDamage, EveryTruncationIsAReadError) {
    for (const bool interlaced : {false, true}) {
        Png png = Make(kPalette, 2, 5, 3, {0x1B, 0, 0x1B, 0, 0x1B, 0},
                       {{"PLTE", kColors}, {"tRNS", {0}}});
        png.interlaced = interlaced;
        const Bytes file = PngFile(png);
        for (size_t size = 0; size < file.size(); ++size) {
            IsImage image;
            ASSERT_NE(image.CreateImage(1, 1, 24), nullptr);
            const Bytes cut(file.begin(), file.begin() + static_cast<ptrdiff_t>(size));
            CxMemFile stream(const_cast<uint8_t*>(cut.data()), static_cast<uint32_t>(size));
            EXPECT_FALSE(image.DecodeByType(kFormatPng, &stream)) << size;
            EXPECT_EQ(image.Width(), 1u) << "a failure leaves the image alone";
            EXPECT_STREQ(image.LastErrorText(), "Read Error") << size;
        }
    }
}

TEST(PngDamage, IsAFailureWithAText) {
    const Bytes good = PngFile(Make(kRgb, 8, 1, 1, {1, 2, 3}));
    Bytes badCrc = good;
    badCrc[good.size() - 20] ^= 1; // within IDAT
    Bytes badSignature = good;
    badSignature[1] = 'Q';
    const struct {
        const char* name;
        Bytes file;
    } cases[] = {
        {"a flipped bit in the pixels", badCrc},
        {"another signature", badSignature},
        {"no palette", PngFile(Make(kPalette, 8, 1, 1, {1}))},
        {"no pixels", PngFile(Make(kRgb, 8, 1, 1, {}))},
        {"too few pixels", PngFile(Make(kRgb, 8, 0x1000, 1, Bytes(0x3000)))},
        {"width 0", PngFile(Make(kRgb, 8, 0, 1, {}))},
        {"width beyond 31 bits", PngFile(Make(kGrey, 1, 0x80000001, 1, {}))},
        {"a depth there is not", PngFile(Make(kRgb, 4, 1, 1, {1, 2}))},
    };
    for (auto c : cases) {
        if (std::string(c.name) == "too few pixels")
            c.file[20 + 2] = 0x20; // twice as high as the pixels reach
        CxImagePNG image;
        EXPECT_FALSE(DecodePng(c.file, image)) << c.name;
        EXPECT_STRNE(image.LastErrorText(), "") << c.name;
    }
    CxImagePNG image;
    EXPECT_FALSE(image.DecodePng(nullptr));
}

/// What the picture does not need is read past, sound or not, however long it is.
TEST(PngChunks, OthersAreIgnored) {
    const Chunks others = {{"tEXt", Bytes(100000, 'x')},
                           {"zTXt", {'a', 0, 0, 1, 2, 3}},
                           {"iCCP", {'a', 0, 0, 1, 2, 3}},
                           {"eXIf", {1}},
                           {"vpAg", Bytes(10)},
                           {"fdAT", Bytes(9000000)}};
    CxImagePNG image;
    ASSERT_TRUE(DecodePng(PngFile(Make(kRgb, 8, 1, 1, {1, 2, 3}, others)), image))
        << image.LastErrorText();
    EXPECT_EQ(Picture(image), "010203");
}

/// libpng would clear the memory of rows before it sees that there are none.
TEST(PngDamage, ARowBeyondTheDataIsAReadError) {
    const struct {
        uint32_t width;
        const char* error;
    } cases[] = {
        {1000, "Not enough image data"},
        {178'000'000, "Read Error"},
        {179'000'000, "image row exceeds 32 bits"},
    };
    for (const auto& c : cases) {
        Png png = Make(kRgbAlpha, 16, 1, 1, Bytes(8));
        Bytes file = PngFile(png);
        Bytes header = {'I', 'H', 'D', 'R'};
        AppendBe32(header, c.width);
        header.insert(header.end(), file.begin() + 20, file.begin() + 29);
        AppendBe32(header, static_cast<uint32_t>(crc32(0, header.data(), 17)));
        std::copy(header.begin(), header.end(), file.begin() + 12);
        CxImagePNG image;
        EXPECT_FALSE(DecodePng(file, image));
        EXPECT_STREQ(image.LastErrorText(), c.error);
    }
}

TEST(PngLimits, AreNamedByTheRefusal) {
    const Bytes file = PngFile(Make(kGrey, 8, 3, 2, {1, 2, 3, 4, 5, 6}));
    const LimitsGuard guard;
    const DecodeLimits defaults = GetDecodeLimits();
    const uint64_t block = 40 + 256 * 4 + 4 * 2;
    for (const uint64_t over : {0u, 1u}) {
        DecodeLimits pixels = defaults;
        pixels.maxPixels = 6 - over;
        DecodeLimits bytes = defaults;
        bytes.maxBlockBytes = block - over;
        for (const bool byPixels : {true, false}) {
            SetDecodeLimits(byPixels ? pixels : bytes);
            CxImagePNG image;
            EXPECT_EQ(DecodePng(file, image), over == 0);
            EXPECT_STREQ(image.LastErrorText(), over == 0 ? ""
                                                : byPixels
                                                    ? "image exceeds the limit maxPixels"
                                                    : "image exceeds the limit maxBlockBytes");
        }
    }
    SetDecodeLimits(defaults);
    CxImagePNG image;
    EXPECT_FALSE(DecodePng(PngFile(Make(kGrey, 1, 65500, 65500, {}, {{"IDAT", {0}}})), image))
        << "by the default";
    EXPECT_STREQ(image.LastErrorText(), "image exceeds the limit maxPixels");
}

} // namespace
