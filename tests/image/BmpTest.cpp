// SPDX-License-Identifier: MIT
//
// The BMP reader, on files built byte by byte.
#include "tests/image/BmpBuilder.h"
#include "tests/image/ImageTesting.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace bmptest;
using namespace tint;
using imagetest::DecodeBmp;
using imagetest::Indices;
using imagetest::Picture;

namespace {

/// Two rows of `bytes` for the depth given, with a palette of black, red, green, blue.
Bitmap Indexed(uint16_t bits, int32_t width, int32_t height, const Bytes& pixels) {
    Bitmap bitmap;
    bitmap.bitCount = bits;
    bitmap.width = width;
    bitmap.height = height;
    bitmap.palette = PaletteOf({0x000000, 0xFF0000, 0x00FF00, 0x0000FF});
    bitmap.colorsUsed = 4;
    if (bits == 1) {
        bitmap.palette.resize(8);
        bitmap.colorsUsed = 2;
    }
    bitmap.pixels = pixels;
    return bitmap;
}

Bitmap Direct(uint16_t bits, int32_t width, int32_t height, const Bytes& pixels,
              uint32_t compression = 0, const Bytes& masks = {}) {
    Bitmap bitmap;
    bitmap.bitCount = bits;
    bitmap.width = width;
    bitmap.height = height;
    bitmap.compression = compression;
    bitmap.masks = masks;
    bitmap.pixels = pixels;
    return bitmap;
}

Bitmap With(Bitmap bitmap, void (*change)(Bitmap&)) {
    change(bitmap);
    return bitmap;
}

void CoreHeader(Bitmap& bitmap) {
    bitmap.headerSize = 12;
    const uint32_t entries = bitmap.bitCount <= 8 ? 1u << bitmap.bitCount : 0;
    bitmap.palette = PaletteOf({0x000000, 0xFF0000, 0x00FF00, 0x0000FF}, 3);
    bitmap.palette.resize(entries * 3);
}

void TopDown(Bitmap& bitmap) {
    bitmap.height = -bitmap.height;
}

const Bytes kRows24 = {1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0};
const Bytes kRows16 = {0x00, 0x7C, 0xE0, 0x03, 0x1F, 0x00, 0, 0}; // 5-5-5 red, green, blue
const Bytes kRows32 = {1, 2, 3, 99, 4, 5, 6, 99};

struct PictureCase {
    const char* name;
    Bitmap bitmap;
    const char* picture; ///< as imagetest::Picture
};

void PrintTo(const PictureCase& c, std::ostream* out) {
    *out << c.name;
}

class BmpPictures : public testing::TestWithParam<PictureCase> {};

TEST_P(BmpPictures, ComeOutRight) {
    Bitmap bitmap = GetParam().bitmap;
    bitmap.gap = 0;
    CxImageBMP plain;
    ASSERT_TRUE(DecodeBmp(BmpFile(bitmap), plain));
    EXPECT_EQ(Picture(plain), GetParam().picture);
    EXPECT_EQ(plain.Type(), uint32_t{kFormatBmp});

    bitmap.gap = 11;
    CxImageBMP afterGap;
    ASSERT_TRUE(DecodeBmp(BmpFile(bitmap), afterGap)) << "pixels away from the palette";
    EXPECT_EQ(Picture(afterGap), GetParam().picture);

    if (bitmap.bitCount != 32) { // the masks a bare 32-bit DIB could have are not passed over
        CxImageBMP bare;
        ASSERT_TRUE(DecodeBmp(PackedDib(bitmap), bare)) << "without the file header";
        EXPECT_EQ(Picture(bare), GetParam().picture);
    }
}

const char kTwoByTwo24[] = "090807 0C0B0A / 030201 060504";

INSTANTIATE_TEST_SUITE_P(
    Files, BmpPictures,
    testing::Values(
        PictureCase{"Depth1", Indexed(1, 3, 2, {0xA0, 0, 0, 0, 0x40, 0, 0, 0}),
                    "000000 FF0000 000000 / FF0000 000000 FF0000"},
        PictureCase{"Depth1Core", With(Indexed(1, 9, 1, {0x80, 0x80, 0, 0}), CoreHeader),
                    "FF0000 000000 000000 000000 000000 000000 000000 000000 FF0000"},
        PictureCase{"Depth4", Indexed(4, 3, 2, {0x12, 0x30, 0, 0, 0x32, 0x10, 0, 0}),
                    "0000FF 00FF00 FF0000 / FF0000 00FF00 0000FF"},
        PictureCase{"Depth4TopDown",
                    With(Indexed(4, 3, 2, {0x12, 0x30, 0, 0, 0x32, 0x10, 0, 0}), TopDown),
                    "FF0000 00FF00 0000FF / 0000FF 00FF00 FF0000"},
        PictureCase{"Depth4Core", With(Indexed(4, 2, 1, {0x13, 0, 0, 0}), CoreHeader),
                    "FF0000 0000FF"},
        PictureCase{"Depth8", Indexed(8, 5, 1, {1, 2, 3, 0, 1, 0, 0, 0}),
                    "FF0000 00FF00 0000FF 000000 FF0000"},
        PictureCase{"Depth8Core", With(Indexed(8, 2, 1, {3, 2, 0, 0}), CoreHeader),
                    "0000FF 00FF00"},
        PictureCase{"Depth24", Direct(24, 2, 2, kRows24), kTwoByTwo24},
        PictureCase{"Depth24TopDown", With(Direct(24, 2, 2, kRows24), TopDown),
                    "030201 060504 / 090807 0C0B0A"},
        PictureCase{"Depth24Core", With(Direct(24, 2, 2, kRows24), CoreHeader), kTwoByTwo24},
        PictureCase{"Depth24Os2",
                    With(Direct(24, 2, 2, kRows24), [](Bitmap& b) { b.headerSize = 64; }),
                    kTwoByTwo24},
        PictureCase{"Depth24V4",
                    With(Direct(24, 2, 2, kRows24),
                         [](Bitmap& b) {
                             b.headerSize = 108;
                             b.imageSize = 16;
                         }),
                    kTwoByTwo24},
        // Samples are shifted, not scaled: full 5 bits give F8, full 6 bits FC.
        PictureCase{"Depth16", Direct(16, 3, 1, kRows16), "F80000 00F800 0000F8"},
        PictureCase{"Depth16TwoRows", Direct(16, 1, 2, {0x00, 0x7C, 0, 0, 0x1F, 0x00, 0, 0}),
                    "0000F8 / F80000"},
        PictureCase{"Depth16TopDown",
                    With(Direct(16, 1, 2, {0x00, 0x7C, 0, 0, 0x1F, 0x00, 0, 0}), TopDown),
                    "F80000 / 0000F8"},
        PictureCase{"Depth16Fields565",
                    Direct(16, 3, 1, {0x00, 0xF8, 0xE0, 0x07, 0x1F, 0x00, 0, 0}, 3,
                           MasksOf(0xF800, 0x07E0, 0x001F)),
                    "F80000 00FC00 0000F8"},
        // The blue shift comes from the red mask's width: 2-3-1 bits put the one bit of blue at 40.
        PictureCase{
            "Depth16Fields231",
            Direct(16, 3, 1, {0x30, 0, 0x0E, 0, 0x01, 0, 0, 0}, 3, MasksOf(0x30, 0x0E, 0x01)),
            "C00000 007000 000040"},
        // Masks whose shifts leave the pixel's bits behind give nothing, and no undefined shift.
        PictureCase{"Depth16FieldsAllOnes",
                    Direct(16, 1, 1, {0xFF, 0xFF, 0, 0}, 3, MasksOf(0xFFFF, 0xFFFF, 0xFFFF)),
                    "0000FF"},
        PictureCase{"Depth16FieldsEmpty", Direct(16, 1, 1, {0xFF, 0xFF, 0, 0}, 3, MasksOf(0, 0, 0)),
                    "000000"},
        PictureCase{"Depth32", Direct(32, 2, 1, kRows32), "030201 060504"},
        PictureCase{"Depth32TopDown", With(Direct(32, 1, 2, kRows32), TopDown), "030201 / 060504"},
        PictureCase{"Depth32FieldsIgnored",
                    Direct(32, 2, 1, kRows32, 3, MasksOf(0xFF, 0xFF00, 0xFF0000)), "030201 060504"},
        // A depth no one reads: a picture of zeros.
        PictureCase{"Depth2", Indexed(2, 2, 1, {0xE4, 0, 0, 0}), "000000 000000"}),
    [](const auto& test) { return test.param.name; });

struct HeaderCase {
    const char* name;
    void (*change)(Bitmap&);
    bool accepted;
};

void PrintTo(const HeaderCase& c, std::ostream* out) {
    *out << c.name;
}

class BmpHeaders : public testing::TestWithParam<HeaderCase> {};

TEST_P(BmpHeaders, AreAcceptedOrRefused) {
    Bitmap bitmap = Direct(24, 2, 2, kRows24);
    bitmap.imageSize = 16;
    GetParam().change(bitmap);
    CxImageBMP image;
    EXPECT_EQ(DecodeBmp(BmpFile(bitmap), image), GetParam().accepted);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, BmpHeaders,
    testing::Values(HeaderCase{"Size0", [](Bitmap& b) { b.headerSize = 0; }, false},
                    HeaderCase{"Size16", [](Bitmap& b) { b.headerSize = 16; }, false},
                    HeaderCase{"Size20", [](Bitmap& b) { b.headerSize = 20; }, false},
                    HeaderCase{"Size39", [](Bitmap& b) { b.headerSize = 39; }, false},
                    HeaderCase{"Size40", [](Bitmap& b) { b.headerSize = 40; }, true},
                    HeaderCase{"Size41", [](Bitmap& b) { b.headerSize = 41; }, true},
                    HeaderCase{"Size108", [](Bitmap& b) { b.headerSize = 108; }, true},
                    HeaderCase{"Size124", [](Bitmap& b) { b.headerSize = 124; }, true},
                    HeaderCase{"SizeBeyondReach", [](Bitmap& b) { b.headerSize = 0x7FFFFFFF; },
                               false},
                    HeaderCase{"SizeNegative", [](Bitmap& b) { b.headerSize = 0x80000000; }, false},
                    HeaderCase{"LongWithoutImageSize",
                               [](Bitmap& b) {
                                   b.headerSize = 108;
                                   b.imageSize = 0;
                               },
                               false},
                    HeaderCase{"LongWithColors",
                               [](Bitmap& b) {
                                   b.headerSize = 108;
                                   b.colorsUsed = 1;
                               },
                               false},
                    HeaderCase{"LongWithFields",
                               [](Bitmap& b) {
                                   b.headerSize = 108;
                                   b.compression = 3;
                               },
                               false},
                    HeaderCase{"LongTopDown",
                               [](Bitmap& b) {
                                   b.headerSize = 108;
                                   b.height = -2;
                               },
                               false},
                    HeaderCase{"LongWhoseSizeOnlyWraps",
                               [](Bitmap& b) {
                                   b.headerSize = 108;
                                   b.width = 4;
                                   b.bitCount = 8;
                                   b.height = 0x40000004; // x 4 bytes = 2^32 + 16
                               },
                               false},
                    HeaderCase{"Fields24", [](Bitmap& b) { b.compression = 3; }, false},
                    HeaderCase{"Runs24", [](Bitmap& b) { b.compression = 1; }, false},
                    HeaderCase{"Runs16Ignored",
                               [](Bitmap& b) {
                                   b.bitCount = 16;
                                   b.compression = 1;
                               },
                               true},
                    HeaderCase{"Runs32",
                               [](Bitmap& b) {
                                   b.bitCount = 32;
                                   b.compression = 1;
                               },
                               false},
                    HeaderCase{"Fields8",
                               [](Bitmap& b) {
                                   b.bitCount = 8;
                                   b.compression = 3;
                               },
                               false},
                    HeaderCase{"WidthZero", [](Bitmap& b) { b.width = 0; }, false},
                    HeaderCase{"WidthNegative", [](Bitmap& b) { b.width = -2; }, false},
                    HeaderCase{"WidthMinimal", [](Bitmap& b) { b.width = INT32_MIN; }, false},
                    HeaderCase{"HeightZero", [](Bitmap& b) { b.height = 0; }, false},
                    HeaderCase{"HeightMinimal", [](Bitmap& b) { b.height = INT32_MIN; }, false},
                    HeaderCase{"SidesWrapTo0",
                               [](Bitmap& b) {
                                   b.width = 65536;
                                   b.height = 65536;
                                   b.bitCount = 8;
                               },
                               false},
                    HeaderCase{"RowWraps", [](Bitmap& b) { b.width = 178956971; }, false}),
    [](const auto& test) { return test.param.name; });

TEST(BmpHeader, IsCompleted) {
    const struct {
        Bitmap bitmap;
        uint32_t imageSize, colorsUsed, position;
    } cases[] = {
        {Indexed(4, 9, 3, {}), 24, 4, 40},
        {With(Indexed(4, 9, 3, {}), [](Bitmap& b) { b.colorsUsed = 0; }), 24, 16, 40},
        {With(Indexed(8, 9, 3, {}), CoreHeader), 36, 256, 12},
        {Direct(24, 2, 2, kRows24), 16, 0, 40},
        {With(Direct(24, 2, 2, kRows24), [](Bitmap& b) { b.headerSize = 64; }), 16, 0, 64},
    };
    for (const auto& c : cases) {
        Bytes data = PackedDib(c.bitmap);
        data.resize(data.size() + 40);
        CxMemFile stream(data.data(), static_cast<uint32_t>(data.size()));
        BITMAPINFOHEADER header;
        ASSERT_TRUE(CxImageBMP::ReadDibInfoHeader(&stream, header));
        EXPECT_EQ(header.biSizeImage, c.imageSize);
        EXPECT_EQ(header.biClrUsed, c.colorsUsed);
        EXPECT_EQ(stream.Tell(), static_cast<int32_t>(c.position));
    }
    BITMAPINFOHEADER header;
    EXPECT_FALSE(CxImageBMP::ReadDibInfoHeader(nullptr, header));
}

TEST(BmpResolution, IsRoundedAndZeroStaysZero) {
    const struct {
        int32_t pixelsPerMeter;
        uint32_t dpi;
    } cases[] = {{0, 0}, {2835, 72}, {3780, 96}, {11811, 300}, {-2835, 0}, {INT32_MIN, 0}};
    for (const auto& c : cases) {
        Bitmap bitmap = Direct(24, 2, 2, kRows24);
        bitmap.xPixelsPerMeter = c.pixelsPerMeter;
        bitmap.yPixelsPerMeter = 3937;
        CxImageBMP image;
        ASSERT_TRUE(DecodeBmp(BmpFile(bitmap), image));
        EXPECT_EQ(image.Info().xDpi, c.dpi);
        EXPECT_EQ(image.Info().yDpi, 100u);
        EXPECT_EQ(image.Header().biXPelsPerMeter, c.pixelsPerMeter);
    }
}

TEST(BmpPalette, EntriesBeyondTheContainersArePassedOver) {
    Bitmap bitmap = Indexed(4, 2, 1, {0x1F, 0, 0, 0});
    bitmap.colorsUsed = 20;
    bitmap.palette.resize(20 * 4, 0x77);
    for (const Bytes& data : {BmpFile(bitmap), PackedDib(bitmap)}) {
        CxImageBMP image;
        ASSERT_TRUE(DecodeBmp(data, image));
        EXPECT_EQ(Picture(image), "FF0000 777777");
        EXPECT_EQ(image.PaletteEntries(), 16u);
        EXPECT_EQ(image.Palette()[15].rgbReserved, 0);
    }
    for (const uint32_t claimed : {0x40000001u, 0xFFFFFFFFu}) {
        bitmap.colorsUsed = claimed;
        CxImageBMP image;
        ASSERT_TRUE(DecodeBmp(BmpFile(bitmap), image)) << "the pixels are found by their offset";
        EXPECT_EQ(Indices(image), "1F");
        CxImageBMP bare;
        ASSERT_TRUE(DecodeBmp(PackedDib(bitmap), bare)) << "the pixels lie beyond the data";
        EXPECT_EQ(Indices(bare), "00");
    }
}

TEST(BmpOffset, BeyondTheDataGivesZerosAndBeyondReachFails) {
    for (const uint32_t offset : {1000u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        Bytes data = BmpFile(Direct(24, 2, 2, kRows24));
        for (int i = 0; i < 4; ++i)
            data[10 + static_cast<size_t>(i)] = static_cast<uint8_t>(offset >> 8 * i);
        CxImageBMP image;
        EXPECT_EQ(DecodeBmp(data, image), offset <= 0x7FFFFFFFu) << offset;
        EXPECT_EQ(Picture(image), "000000 000000 / 000000 000000");
    }
}

/// Cut anywhere, a file gives a picture whose missing pixels are zero, or fails before its pixels.
TEST(BmpTruncation, EveryLengthIsSurvived) {
    const std::vector<Bitmap> bitmaps = {
        Direct(24, 2, 2, kRows24),
        With(Direct(24, 2, 2, kRows24), TopDown),
        Direct(16, 3, 1, kRows16, 3, MasksOf(0x7C00, 0x3E0, 0x1F)),
        Direct(32, 2, 1, kRows32),
        With(Indexed(4, 3, 2, {0x12, 0x30, 0, 0, 0x32, 0x10, 0, 0}), CoreHeader),
        With(Indexed(8, 4, 2, {4, 1, 0, 0, 0, 3, 1, 2, 3, 0, 0, 2, 0, 0, 1, 3, 0, 1}),
             [](Bitmap& b) { b.compression = 1; }),
        With(Indexed(4, 4, 2, {4, 0x12, 0, 0, 0, 3, 0x12, 0x30, 0, 1}),
             [](Bitmap& b) { b.compression = 2; }),
    };
    for (const Bitmap& bitmap : bitmaps) {
        const Bytes whole = BmpFile(bitmap);
        CxImageBMP complete;
        ASSERT_TRUE(DecodeBmp(whole, complete));
        const std::string picture = Picture(complete);
        const size_t headers = bitmap.headerSize == 12 ? 26 : 54;
        for (size_t length = 0; length <= whole.size(); ++length) {
            SCOPED_TRACE(testing::Message() << "depth " << bitmap.bitCount << ", " << length
                                            << " of " << whole.size() << " bytes");
            CxImageBMP image;
            const Bytes part(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(length));
            ASSERT_EQ(DecodeBmp(part, image), length >= headers);
            if (length < headers)
                continue;
            const std::string cut = Picture(image);
            ASSERT_EQ(cut.size(), picture.size());
            if (length < whole.size() - bitmap.pixels.size())
                continue; // colours or masks are missing too
            // Whatever is there is that of the whole picture or zero.
            for (size_t i = 0; i < cut.size(); ++i)
                ASSERT_TRUE(cut[i] == picture[i] || cut[i] == '0') << cut;
        }
    }
    CxImageBMP image;
    EXPECT_FALSE(image.DecodeBmp(nullptr));
}

TEST(BmpFailure, SetsNoTextExceptForARefusedSize) {
    CxImageBMP image;
    EXPECT_FALSE(DecodeBmp({'B', 'M'}, image));
    EXPECT_STREQ(image.LastErrorText(), "");
    EXPECT_FALSE(DecodeBmp(BmpFile(Direct(24, 0, 2, kRows24)), image));
    EXPECT_STREQ(image.LastErrorText(), "image width or height is 0");
}

struct RunCase {
    const char* name;
    int bits; ///< 4 or 8
    int32_t width, height;
    Bytes data;
    const char* indices; ///< top row first
};

void PrintTo(const RunCase& c, std::ostream* out) {
    *out << c.name;
}

class BmpRuns : public testing::TestWithParam<RunCase> {};

TEST_P(BmpRuns, PaintThePixels) {
    const RunCase& c = GetParam();
    Bitmap bitmap = Indexed(static_cast<uint16_t>(c.bits), c.width, c.height, c.data);
    bitmap.compression = c.bits == 8 ? 1 : 2;
    CxImageBMP image;
    ASSERT_TRUE(DecodeBmp(BmpFile(bitmap), image));
    EXPECT_EQ(Indices(image), c.indices);

    // Turned over, the same data paint the same rows from the top.
    bitmap.height = -bitmap.height;
    CxImageBMP topDown;
    ASSERT_TRUE(DecodeBmp(BmpFile(bitmap), topDown));
    ASSERT_TRUE(topDown.FlipRows());
    EXPECT_EQ(Indices(topDown), c.indices);
}

INSTANTIATE_TEST_SUITE_P(
    Rle8, BmpRuns,
    testing::Values(
        RunCase{"Runs", 8, 4, 2, {4, 1, 0, 0, 2, 2, 2, 3, 0, 1}, "2233/1111"},
        RunCase{"Absolute",
                8,
                4,
                2,
                {0, 3, 1, 2, 3, 9, 1, 4, 0, 0, 0, 4, 5, 6, 7, 8, 0, 1},
                "5678/1234"},
        RunCase{"Delta", 8, 4, 3, {1, 1, 0, 2, 1, 2, 2, 2, 0, 1}, "0022/0000/1000"},
        RunCase{"EndOfBitmapStops", 8, 4, 1, {1, 1, 0, 1, 1, 2}, "1000"},
        RunCase{"NoEndOfBitmap", 8, 4, 1, {4, 1}, "1111"},
        RunCase{"RunToTheEdgeGoesOn", 8, 4, 2, {4, 1, 0, 0, 4, 2}, "2222/1111"},
        RunCase{"RunPastTheEdgeEndsTheDecode", 8, 4, 2, {5, 1, 0, 0, 4, 2}, "0000/1111"},
        RunCase{"RunIntoThePaddingGoesOn", 8, 3, 2, {4, 1, 0, 0, 3, 2}, "222/111"},
        RunCase{
            "DeltaPastTheEdgeEndsAtTheRun", 8, 4, 2, {0, 2, 4, 0, 1, 1, 0, 0, 1, 2}, "0000/0000"},
        RunCase{"AbsolutePastTheEdgeGoesOnInTheNextRow",
                8,
                4,
                2,
                {3, 9, 0, 3, 1, 2, 3, 0, 0, 1},
                "2300/9991"},
        RunCase{"AbsolutePastTheLastRowIsCut", 8, 4, 1, {3, 9, 0, 3, 1, 2, 3, 0, 0, 1}, "9991"},
        RunCase{"RowsPastTheTopAreIgnored", 8, 4, 1, {0, 0, 4, 1, 0, 2, 0, 255, 4, 2}, "0000"},
        RunCase{"AbsoluteCutByTheEnd", 8, 4, 1, {0, 4, 1, 2}, "1200"},
        RunCase{"PairCutByTheEnd", 8, 4, 1, {1, 1, 3}, "1000"}),
    [](const auto& test) { return test.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Rle4, BmpRuns,
    testing::Values(
        RunCase{"Runs", 4, 8, 2, {8, 0x12, 0, 0, 4, 0x33, 0, 1}, "33330000/12121212"},
        RunCase{"OddRun", 4, 4, 1, {3, 0x12, 0, 1}, "1210"},
        RunCase{"Absolute", 4, 8, 1, {0, 5, 0x12, 0x34, 0x50, 9, 3, 0x66, 0, 1}, "12345666"},
        // Two data bytes and no padding, then again a run that starts on an even pixel.
        RunCase{"AbsoluteOf4", 4, 8, 1, {0, 4, 0x12, 0x34, 0, 4, 0x56, 0x78}, "12345678"},
        RunCase{"AbsoluteOf3", 4, 8, 1, {0, 3, 0x12, 0x30, 1, 0x44}, "12340000"},
        // From an odd pixel on the half of the target chooses the half of the data.
        RunCase{"RunFromAnOddPixel", 4, 6, 1, {1, 0x99, 4, 0x12, 0, 1}, "921210"},
        RunCase{"AbsoluteFromAnOddPixel",
                4,
                6,
                1,
                {1, 0x99, 0, 3, 0x12, 0x34, 1, 0x55, 0, 1},
                "923450"},
        RunCase{"DeltaDropsTheOddPixel", 4, 8, 2, {0, 2, 3, 1, 2, 0x12, 0, 1}, "00120000/00000000"},
        RunCase{"RunPastTheEdgeGoesOnInTheNextRow", 4, 8, 2, {12, 0x12}, "12120000/12121212"},
        RunCase{"RunPastTheLastRowIsCut", 4, 8, 1, {255, 0x12, 255, 0x34}, "12121212"},
        RunCase{"RowsPastTheTopAreIgnored", 4, 8, 1, {0, 2, 0, 255, 4, 0x12}, "00000000"},
        RunCase{"AbsoluteCutByTheEnd", 4, 8, 1, {0, 6, 0x12, 0x34}, "12340000"}),
    [](const auto& test) { return test.param.name; });

TEST(ConvertBitfields, WidensTheImagesOwnRowsInPlace) {
    for (const uint32_t width : {1u, 2u, 3u, 7u}) {
        IsImage image;
        image.CreateImage(width, 3, 24);
        const size_t stride = (width + 1) / 2 * 4;
        uint8_t* pixels = image.RowPointer(0);
        for (uint32_t y = 0; y < 3; ++y) {
            for (uint32_t x = 0; x < width; ++x) {
                pixels[y * stride + x * 2] = static_cast<uint8_t>(x << 5 | y);
                pixels[y * stride + x * 2 + 1] = 0x44; // 5-5-5: red 17
            }
        }
        CxImageBMP::ConvertBitfields(image, pixels, 0x7C00, 0x03E0, 0x001F, 16);
        for (uint32_t y = 0; y < 3; ++y) {
            for (uint32_t x = 0; x < width; ++x) {
                const RGBQUAD color = image.GetPixelColor(x, y);
                EXPECT_EQ(color.rgbRed, 17 * 8);
                EXPECT_EQ(color.rgbGreen, x << 3);
                EXPECT_EQ(color.rgbBlue, y << 3);
            }
        }
    }
}

TEST(ConvertBitfields, TakesThreeBytesOfFourAndIgnoresOtherDepths) {
    IsImage image;
    image.CreateImage(2, 1, 24);
    CxImageBMP::ConvertBitfields(image, kRows32.data(), 0, 0, 0, 32);
    EXPECT_EQ(Picture(image), "030201 060504");
    CxImageBMP::ConvertBitfields(image, kRows16.data(), 0x7C00, 0x03E0, 0x001F, 24);
    CxImageBMP::ConvertBitfields(image, nullptr, 0x7C00, 0x03E0, 0x001F, 16);
    EXPECT_EQ(Picture(image), "030201 060504");
    IsImage indexed;
    indexed.CreateImage(2, 1, 8);
    CxImageBMP::ConvertBitfields(indexed, kRows32.data(), 0, 0, 0, 32);
    EXPECT_EQ(Indices(indexed), "00");
}

} // namespace
