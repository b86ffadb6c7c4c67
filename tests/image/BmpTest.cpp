// SPDX-License-Identifier: MIT
//
// The readers of BMP files and of packed DIBs, the clipboard's form, on bitmaps built byte by byte.
#include "image/ImageBMP.h"
#include "tests/image/BmpBuilder.h"
#include "tests/image/ImageTesting.h"

#include <gtest/gtest.h>

using namespace bmptest;
using namespace tint;
using imagetest::Cut;
using imagetest::Indices;
using imagetest::Picture;

namespace {

/// A picture from the decoder itself, over a block of exactly the data's length.
struct Decoded : CxImageBMP {
    bool ok;
    explicit Decoded(const Bytes& data) {
        const Bytes exact(data.begin(), data.end());
        CxMemFile stream(const_cast<uint8_t*>(exact.data()), static_cast<uint32_t>(exact.size()));
        ok = DecodeBmp(&stream);
    }
};

/// The same of a packed DIB, into an image that another picture has used.
struct Packed : IsImage {
    bool ok;
    explicit Packed(const Bytes& data) {
        CreateImage(9, 9, 24, kFormatBmp);
        SetTransparentIndex(0);
        SetBackgroundColor({1, 2, 3, 0});
        SetHorizontalDpi(50);
        const Bytes exact(data.begin(), data.end());
        ok = CreateFromPackedDib(exact.data(), exact.size());
    }
};

void TopDown(Bitmap& bitmap) {
    bitmap.height = -bitmap.height;
}

void TwoColorsUsed(Bitmap& bitmap) {
    bitmap.colorsUsed = 2;
    bitmap.palette = PaletteOf({0x777777, 0x888888});
}

const Bytes kRows4 = {0x12, 0x30, 0, 0, 0x32, 0x10, 0, 0};
const Bytes kRows24 = {1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0};
const Bytes kRows16 = {0x00, 0x7C, 0xE0, 0x03, 0x1F, 0x00, 0, 0}; // 5-5-5 red, green, blue
const Bytes kRows32 = {1, 2, 3, 99, 4, 5, 6, 99};
const char kTwoByTwo24[] = "090807 0C0B0A / 030201 060504";
const std::vector<uint32_t> kReversed = {0xFF, 0xFF00, 0xFF0000};

void ReversedFieldsInTheHeader(Bitmap& bitmap) {
    bitmap.compression = 3;
    bitmap.headerSize = 108;
    bitmap.headerTail = PaletteOf(kReversed);
}

TEST(BmpPictures, ComeOutRight) {
    const char kRefused[] = "";
    const struct {
        const char* name;
        Bitmap bitmap;
        const char* picture; ///< as imagetest::Picture; "" where it is refused
        const char* packed;  ///< what the clipboard's form gives, null for the same
    } cases[] = {
        {"1", Make(1, 3, 2, {0xA0, 0, 0, 0, 0x40, 0, 0, 0}),
         "000000 FF0000 000000 / FF0000 000000 FF0000", nullptr},
        {"1 core", WithHeader(Make(1, 2, 1, {0x80, 0, 0, 0}), 12), "FF0000 000000", nullptr},
        {"4", Make(4, 3, 2, kRows4), "0000FF 00FF00 FF0000 / FF0000 00FF00 0000FF", nullptr},
        {"8", Make(8, 5, 1, {1, 2, 3, 0, 1, 0, 0, 0}), "FF0000 00FF00 0000FF 000000 FF0000",
         nullptr},
        {"24", Make(24, 2, 2, kRows24), kTwoByTwo24, nullptr},
        {"24 with a palette", With(Make(24, 2, 2, kRows24), TwoColorsUsed), kTwoByTwo24, nullptr},
        {"24 top down", With(Make(24, 2, 2, kRows24), TopDown), "030201 060504 / 090807 0C0B0A",
         nullptr},
        {"24 core", WithHeader(Make(24, 2, 2, kRows24), 12), kTwoByTwo24, nullptr},
        {"24 OS/2", WithHeader(Make(24, 2, 2, kRows24), 64), kTwoByTwo24, nullptr},
        {"24 V4", WithHeader(Make(24, 2, 2, kRows24), 108), kTwoByTwo24, nullptr},
        // Samples are shifted, not scaled: full 5 bits give F8, full 6 bits FC.
        {"16", Make(16, 3, 1, kRows16), "F80000 00F800 0000F8", nullptr},
        {"16 top down", With(Make(16, 1, 2, {0, 0x7C, 0, 0, 0x1F, 0, 0, 0}), TopDown),
         "F80000 / 0000F8", nullptr},
        {"16, 5-6-5", Make(16, 3, 1, {0, 0xF8, 0xE0, 7, 0x1F, 0, 0, 0}, 3, {0xF800, 0x7E0, 0x1F}),
         "F80000 00FC00 0000F8", nullptr},
        // In files the blue shift comes from the red mask's width: 2-3-1 bits put blue at 40.
        {"16, 2-3-1", Make(16, 3, 1, {0x30, 0, 0x0E, 0, 0x01, 0, 0, 0}, 3, {0x30, 0x0E, 0x01}),
         "C00000 007000 000040", "C00000 00E000 000080"},
        // Masks whose shifts leave the pixel's bits behind give nothing, and no undefined shift.
        {"16, all ones", Make(16, 1, 1, {255, 255, 0, 0}, 3, {0xFFFF, 0xFFFF, 0xFFFF}), "0000FF",
         "FFFFFF"},
        {"16, empty masks", Make(16, 1, 1, {255, 255, 0, 0}, 3, {0, 0, 0}), "000000", nullptr},
        {"32", Make(32, 2, 1, kRows32), "030201 060504", nullptr},
        // Files are read by byte position.
        {"32 fields", Make(32, 2, 1, kRows32, 3, kReversed), "030201 060504", "010203 040506"},
        {"32 fields and a palette",
         With(Make(32, 2, 1, kRows32, 3, {0xFF, 0xFF00, 0xFF0000}), TwoColorsUsed), "030201 060504",
         "010203 040506"},
        {"32 fields in the header", With(Make(32, 2, 1, kRows32), ReversedFieldsInTheHeader),
         kRefused, "010203 040506"},
        {"10-10-10", Make(32, 1, 1, {0xFF, 3, 8, 0}, 3, {0x3FF00000, 0xFFC00, 0x3FF}), "0803FF",
         "0080FF"},
        {"fields of nothing", Make(32, 1, 1, {1, 2, 3, 0xAB}, 3, {0, 0, 0xFFFFFFFF}), "030201",
         "0000AB"},
        // A depth no one reads: a picture of zeros in files.
        {"2", Make(2, 2, 1, {0xE4, 0, 0, 0}), "000000 000000", kRefused},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Bitmap bitmap = c.bitmap;
        EXPECT_EQ(Picture(Decoded(PackedDib(bitmap))), c.picture) << "without the file header";
        const Packed packed(PackedDib(bitmap));
        EXPECT_EQ(Picture(packed), c.packed ? c.packed : c.picture);
        EXPECT_EQ(packed.ok, *packed.LastErrorText() == '\0');
        if (packed.ok) { // nothing is left of the picture before
            EXPECT_EQ(packed.Info().transparentIndex, -1);
            EXPECT_EQ(packed.Info().backgroundColor.rgbRed, 0);
            EXPECT_EQ(packed.Info().xDpi, 96u);
        }
        for (const uint32_t gap : {0u, 11u}) {
            bitmap.gap = gap;
            const Decoded image(BmpFile(bitmap));
            EXPECT_EQ(image.ok, *c.picture != '\0');
            EXPECT_EQ(Picture(image), c.picture) << gap << " bytes behind the palette";
        }
        // All rows are read whatever size the header states for them.
        bitmap.imageSize = bitmap.headerSize <= 64 ? 0xFFFFFFFF : bitmap.imageSize;
        const Bytes file = BmpFile(bitmap);
        EXPECT_EQ(Picture(Decoded(file)), c.picture);
        // Pixels that are missing are zero; a header that is cut is none.
        if (c.picture != kRefused) {
            const Decoded noPixels(Cut(file, file.size() - bitmap.pixels.size()));
            EXPECT_EQ(Picture(noPixels).find_first_not_of("0 /"), std::string::npos);
            EXPECT_TRUE(noPixels.ok);
        }
        EXPECT_FALSE(Decoded(Cut(file, 14 + std::min(bitmap.headerSize, 40u) - 1)).ok);
        EXPECT_FALSE(Packed(Cut(PackedDib(bitmap), bitmap.headerSize - 1)).ok);
    }
}

TEST(BmpHeaders, AreAcceptedOrRefused) {
    const struct {
        uint32_t headerSize;
        uint16_t bits;
        int32_t width, height;
        uint32_t compression, imageSize, colorsUsed;
        bool accepted;
    } cases[] = {
        {20, 24, 2, 2, 0, 16, 0, false},
        {39, 24, 2, 2, 0, 16, 0, false},
        {41, 24, 2, 2, 0, 16, 0, true},
        {0x80000000, 24, 2, 2, 0, 16, 0, false},
        // Long headers have to be simple.
        {108, 24, 2, 2, 0, 0, 0, false},
        {108, 24, 2, 2, 0, 16, 1, false},
        {108, 24, 2, 2, 3, 16, 0, false},
        {108, 24, 2, -2, 0, 16, 0, false},
        {108, 8, 4, 0x40000004, 0, 16, 0, false}, // x 4 bytes = 2^32 + 16
        {40, 24, 2, 2, 3, 16, 0, false},
        {40, 16, 2, 2, 1, 16, 0, true}, // read as if not compressed
        {40, 32, 2, 2, 1, 16, 0, false},
        {40, 8, 2, 2, 3, 16, 0, false},
        {40, 24, 0, 2, 0, 16, 0, false},
        {40, 24, -2, 2, 0, 16, 0, false},
        {40, 24, 2, INT32_MIN, 0, 16, 0, false},
        {40, 24, 178956971, 2, 0, 16, 0, false}, // a row of 2^32 bits
    };
    for (const auto& c : cases) {
        Bitmap bitmap = {c.bits, c.width, c.height, kRows24, c.compression, {}};
        bitmap.headerSize = c.headerSize;
        bitmap.imageSize = c.imageSize;
        bitmap.colorsUsed = c.colorsUsed;
        EXPECT_EQ(Decoded(BmpFile(bitmap)).ok, c.accepted)
            << c.headerSize << ", " << c.bits << " bits, " << c.width << " x " << c.height;
    }
}

TEST(BmpHeaders, AreCompleted) {
    const struct {
        Bitmap bitmap;
        uint32_t imageSize, colorsUsed;
    } cases[] = {{Make(4, 9, 3, {}), 24, 4},
                 {WithHeader(Make(8, 9, 3, {}), 12), 36, 256},
                 {WithHeader(Make(24, 2, 2, {}), 64), 16, 0}};
    for (const auto& c : cases) {
        Bytes data = PackedDib(c.bitmap);
        data.resize(data.size() + 40);
        CxMemFile stream(data.data(), static_cast<uint32_t>(data.size()));
        BITMAPINFOHEADER header;
        ASSERT_TRUE(CxImageBMP::ReadDibInfoHeader(&stream, header));
        EXPECT_EQ(header.biSizeImage, c.imageSize);
        EXPECT_EQ(header.biClrUsed, c.colorsUsed);
        EXPECT_EQ(stream.Tell(), static_cast<int32_t>(c.bitmap.headerSize));
        EXPECT_FALSE(CxImageBMP::ReadDibInfoHeader(nullptr, header));
    }
}

TEST(BmpHeaders, GiveTheResolution) {
    const struct {
        int32_t pixelsPerMeter;
        uint32_t dpi, packedDpi;
    } cases[] = {{0, 0, 96}, {2835, 72, 72}, {11811, 300, 300}, {-2835, 0, 96}, {INT32_MIN, 0, 96}};
    for (const auto& c : cases) {
        Bitmap bitmap = Make(24, 2, 2, kRows24);
        bitmap.xPixelsPerMeter = c.pixelsPerMeter;
        bitmap.yPixelsPerMeter = 3937;
        const Decoded image(BmpFile(bitmap));
        EXPECT_EQ(image.Info().xDpi, c.dpi);
        EXPECT_EQ(image.Info().yDpi, 100u);
        EXPECT_EQ(image.Header().biXPelsPerMeter, c.pixelsPerMeter);
        const Packed packed(PackedDib(bitmap));
        EXPECT_EQ(packed.Info().xDpi, c.packedDpi);
        EXPECT_EQ(packed.Info().yDpi, 100u);
    }
}

TEST(BmpPalette, EntriesBeyondTheContainersArePassedOver) {
    Bitmap bitmap = Make(4, 2, 1, {0x1F, 0, 0, 0});
    bitmap.colorsUsed = 20;
    bitmap.palette.resize(20 * 4, 0x77);
    const Decoded image(BmpFile(bitmap));
    EXPECT_EQ(Picture(image), "FF0000 777777");
    EXPECT_EQ(image.Palette()[15].rgbReserved, 0);
    EXPECT_EQ(Picture(Packed(PackedDib(bitmap))), "FF0000 777777");
    for (const uint32_t claimed : {0x40000001u, 0xFFFFFFFFu}) {
        bitmap.colorsUsed = claimed;
        EXPECT_EQ(Indices(Decoded(BmpFile(bitmap))), "1F") << "found by their offset";
        EXPECT_EQ(Indices(Decoded(PackedDib(bitmap))), "00") << "they lie beyond the data";
        EXPECT_EQ(Indices(Packed(PackedDib(bitmap))), "00") << "they lie beyond the data";
    }
}

TEST(BmpOffset, BeyondTheDataGivesZerosAndBeyondReachFails) {
    for (const uint32_t offset : {1000u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        Bytes data = BmpFile(Make(24, 2, 2, kRows24));
        std::copy_n(Number(offset, 4).begin(), 4, data.begin() + 10);
        const Decoded image(data);
        EXPECT_EQ(image.ok, offset <= 0x7FFFFFFFu) << offset;
        EXPECT_EQ(Picture(image), "000000 000000 / 000000 000000");
    }
}

TEST(BmpFailure, SetsNoTextExceptForARefusedSize) {
    EXPECT_STREQ(Decoded({'B', 'M'}).LastErrorText(), "");
    EXPECT_STREQ(Decoded(BmpFile(Make(24, 0, 2, kRows24))).LastErrorText(),
                 "image width or height is 0");
    EXPECT_FALSE(CxImageBMP().DecodeBmp(nullptr));
    struct : CxMemFile {
        using CxMemFile::CxMemFile;
        int32_t Tell() override { return -1; }
    } untold;
    const Bytes file = BmpFile(Make(24, 2, 2, kRows24));
    untold.Open();
    untold.Write(file.data(), 1, file.size());
    untold.Seek(0, 0);
    EXPECT_FALSE(CxImageBMP().DecodeBmp(&untold)) << "a position that cannot be told";
}

TEST(BmpRuns, PaintThePixels) {
    const struct {
        const char* name;
        uint16_t bits;
        int32_t width, height;
        Bytes data;
        const char* indices;          ///< top row first
        const char* packed = nullptr; ///< those of a packed DIB, whose runs are exact to the pixel
    } cases[] = {
        {"runs", 8, 4, 2, {4, 1, 0, 0, 2, 2, 2, 3, 0, 1}, "2233/1111"},
        {"absolute", 8, 4, 2, {0, 3, 1, 2, 3, 9, 1, 4, 0, 0, 0, 4, 5, 6, 7, 8, 0, 1}, "5678/1234"},
        {"delta", 8, 4, 3, {1, 1, 0, 2, 1, 2, 2, 2, 0, 1}, "0022/0000/1000"},
        {"end of bitmap stops", 8, 4, 1, {1, 1, 0, 1, 1, 2}, "1000"},
        {"a run to the edge goes on", 8, 4, 2, {4, 1, 0, 0, 4, 2}, "2222/1111"},
        {"a run past the edge ends the decode", 8, 4, 2, {5, 1, 0, 0, 4, 2}, "0000/1111"},
        {"a run into the padding goes on", 8, 3, 2, {4, 1, 0, 0, 3, 2}, "222/111"},
        {"a run past the edge", 8, 4, 2, {0, 2, 4, 0, 1, 1, 0, 0, 1, 2}, "0000/0000"},
        {"absolute past the edge", 8, 4, 2, {3, 9, 0, 3, 1, 2, 3, 0, 0, 1}, "2300/9991"},
        {"absolute past the last row", 8, 4, 1, {3, 9, 0, 3, 1, 2, 3, 0, 0, 1}, "9991"},
        {"runs", 4, 8, 2, {8, 0x12, 0, 0, 4, 0x33, 0, 1}, "33330000/12121212"},
        {"an odd run", 4, 4, 1, {3, 0x12, 0, 1}, "1210"},
        {"absolute", 4, 8, 1, {0, 5, 0x12, 0x34, 0x50, 9, 3, 0x66, 0, 1}, "12345666"},
        // Two data bytes and no padding, then again a run that starts on an even pixel.
        {"absolute of 4", 4, 8, 1, {0, 4, 0x12, 0x34, 0, 4, 0x56, 0x78}, "12345678"},
        {"absolute of 3", 4, 8, 1, {0, 3, 0x12, 0x30, 1, 0x44}, "12340000"},
        // From an odd pixel on the half of the target chooses the half of a file's data.
        {"from an odd pixel", 4, 6, 1, {1, 0x99, 4, 0x12, 0, 1}, "921210", "912120"},
        {"absolute from there", 4, 6, 1, {1, 0x99, 0, 3, 0x12, 0x34, 1, 0x55}, "923450", "912350"},
        {"an even one", 4, 8, 1, {1, 0x90, 0, 4, 0x12, 0x34, 2, 0x56}, "92340000", "91234560"},
        {"an odd delta", 4, 8, 2, {0, 2, 3, 1, 2, 0x12}, "00120000/00000000", "00012000/00000000"},
        {"a run past the edge", 4, 8, 2, {12, 0x12}, "12120000/12121212"},
        {"a run past the last row", 4, 8, 1, {255, 0x12, 255, 0x34}, "12121212"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.bits << " bits: " << c.name);
        Bitmap bitmap = Make(c.bits, c.width, c.height, c.data, c.bits == 8 ? 1 : 2);
        EXPECT_EQ(Indices(Decoded(BmpFile(bitmap))), c.indices);
        EXPECT_EQ(Indices(Packed(PackedDib(bitmap))), c.packed ? c.packed : c.indices);
        // Turned over, the same data paint the same rows from the top.
        Decoded topDown(BmpFile(With(bitmap, TopDown)));
        EXPECT_TRUE(topDown.FlipRows());
        EXPECT_EQ(Indices(topDown), c.indices);
    }
}

TEST(PackedDibs, RefusalsSayWhyAndLeaveNothing) {
    const char kCompression[] = "compression type not supported";
    const char kHeader[] = "DIB header is damaged or not supported";
    const struct {
        uint16_t bits;
        uint32_t compression, headerSize;
        int32_t width, height;
        const char* text;
    } cases[] = {
        {24, 4, 40, 1, 1, kCompression},
        {0, 5, 40, 1, 1, kCompression},
        {24, 1, 40, 1, 1, kCompression},
        {8, 2, 40, 1, 1, kCompression},
        {4, 1, 40, 1, 1, kCompression},
        {24, 3, 40, 1, 1, kCompression},
        {24, 6, 40, 1, 1, "unknown compression"},
        {24, 0xFFFFFFFF, 40, 1, 1, "unknown compression"},
        {8, 0, 40, 0, 1, "image width or height is 0"},
        {8, 0, 40, -1, 1, "image width or height exceeds 31 bits"},
        {8, 0, 40, 1, INT32_MIN, "image width or height exceeds 31 bits"},
        {24, 0, 13, 1, 1, kHeader},
        {24, 0, 39, 1, 1, kHeader},
        {24, 0, 1000, 1, 1, kHeader},
        {24, 0, 0xFFFFFFFF, 1, 1, kHeader},
    };
    for (const auto& c : cases) {
        Bitmap bitmap = Make(c.bits, c.width, c.height, Bytes(16), c.compression);
        bitmap.headerSize = c.headerSize;
        const Packed image(PackedDib(bitmap));
        EXPECT_FALSE(image.ok);
        EXPECT_STREQ(image.LastErrorText(), c.text) << c.bits << "/" << c.compression;
        EXPECT_TRUE(image.IsEmpty());
    }
    EXPECT_FALSE(Packed({}).ok);
    const Bytes sound = PackedDib(Make(24, 1, 1, {1, 2, 3, 0}));
    IsImage source, ghost;
    ghost.Ghost(&source);
    EXPECT_FALSE(ghost.CreateFromPackedDib(sound.data(), sound.size()));
}

TEST(ConvertBitfields, WidensTheImagesOwnRowsInPlace) {
    constexpr uint32_t kWidth = 7;
    IsImage widened;
    widened.CreateImage(kWidth, 3, 24);
    uint8_t* pixels = widened.RowPointer(0);
    for (uint32_t i = 0; i < kWidth * 3; ++i) {
        uint8_t* pixel = pixels + i / kWidth * ((kWidth + 1) / 2 * 4) + i % kWidth * 2;
        pixel[0] = static_cast<uint8_t>(i % kWidth << 5 | i / kWidth);
        pixel[1] = 0x44; // 5-5-5: red 17
    }
    CxImageBMP::ConvertBitfields(widened, pixels, 0x7C00, 0x03E0, 0x001F, 16);
    for (uint32_t i = 0; i < kWidth * 3; ++i) {
        const RGBQUAD color = widened.GetPixelColor(i % kWidth, i / kWidth);
        EXPECT_EQ(color.rgbRed, 17 * 8);
        EXPECT_EQ(color.rgbGreen, i % kWidth << 3);
        EXPECT_EQ(color.rgbBlue, i / kWidth << 3);
    }
    IsImage image, indexed;
    image.CreateImage(2, 1, 24);
    CxImageBMP::ConvertBitfields(image, kRows32.data(), 0, 0, 0, 32);
    CxImageBMP::ConvertBitfields(image, kRows16.data(), 0x7C00, 0x03E0, 0x001F, 24);
    CxImageBMP::ConvertBitfields(image, nullptr, 0x7C00, 0x03E0, 0x001F, 16);
    EXPECT_EQ(Picture(image), "030201 060504") << "other depths are ignored";
    indexed.CreateImage(2, 1, 8);
    CxImageBMP::ConvertBitfields(indexed, kRows32.data(), 0, 0, 0, 32);
    EXPECT_EQ(Indices(indexed), "00");
}

} // namespace
