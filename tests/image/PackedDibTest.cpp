// SPDX-License-Identifier: MIT
//
// Packed DIBs, the clipboard's form of bitmaps.
#include "tests/image/BmpBuilder.h"
#include "tests/image/ImageTesting.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace bmptest;
using imagetest::Indices;
using imagetest::Picture;

namespace {

Bitmap Dib(uint16_t bits, int32_t width, int32_t height, uint32_t compression,
           const Bytes& pixels) {
    Bitmap bitmap;
    bitmap.bitCount = bits;
    bitmap.width = width;
    bitmap.height = height;
    bitmap.compression = compression;
    bitmap.pixels = pixels;
    if (bits <= 8) {
        bitmap.palette = PaletteOf({0x000000, 0xFF0000});
        bitmap.colorsUsed = 2;
    }
    return bitmap;
}

Bitmap Fields(uint16_t bits, int32_t width, const Bytes& masks, const Bytes& pixels) {
    Bitmap bitmap = Dib(bits, width, 1, 3, pixels);
    bitmap.masks = masks;
    return bitmap;
}

Bitmap With(Bitmap bitmap, void (*change)(Bitmap&)) {
    change(bitmap);
    return bitmap;
}

/// Loads from a block of exactly the data's length.
bool Load(const Bytes& data, IsImage& image) {
    const Bytes exact(data.begin(), data.end());
    return image.CreateFromPackedDib(exact.data(), exact.size());
}

struct DibCase {
    const char* name;
    Bitmap bitmap;
    const char* picture;
};

void PrintTo(const DibCase& c, std::ostream* out) {
    *out << c.name;
}

class PackedDibs : public testing::TestWithParam<DibCase> {};

TEST_P(PackedDibs, ComeOutRight) {
    IsImage image;
    image.CreateImage(9, 9, 24);
    ASSERT_TRUE(Load(PackedDib(GetParam().bitmap), image)) << image.LastErrorText();
    EXPECT_EQ(Picture(image), GetParam().picture);
    EXPECT_EQ(image.Type(), 0u);
    EXPECT_STREQ(image.LastErrorText(), "");
}

TEST_P(PackedDibs, SurviveEveryTruncation) {
    const Bytes whole = PackedDib(GetParam().bitmap);
    const size_t header = GetParam().bitmap.headerSize;
    for (size_t length = 0; length < whole.size(); ++length) {
        IsImage image;
        const Bytes part(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(length));
        EXPECT_EQ(Load(part, image), length >= header) << length;
        EXPECT_EQ(image.IsEmpty(), length < header) << length;
    }
}

const Bytes kRow32 = {1, 2, 3, 0, 0xF1, 0xF2, 0xF3, 0};

INSTANTIATE_TEST_SUITE_P(
    Forms, PackedDibs,
    testing::Values(
        DibCase{"Depth1", Dib(1, 2, 2, 0, {0x40, 0, 0, 0, 0x80, 0, 0, 0}),
                "FF0000 000000 / 000000 FF0000"},
        DibCase{"Depth4TopDown", Dib(4, 2, -2, 0, {0x01, 0, 0, 0, 0x10, 0, 0, 0}),
                "000000 FF0000 / FF0000 000000"},
        DibCase{"Depth8", Dib(8, 2, 1, 0, {1, 0, 0, 0}), "FF0000 000000"},
        DibCase{"Depth16", Dib(16, 2, 1, 0, {0x00, 0x7C, 0x1F, 0x00}), "F80000 0000F8"},
        DibCase{"Depth24", Dib(24, 1, 1, 0, {1, 2, 3, 0}), "030201"},
        DibCase{"Depth24WithPalette",
                With(Dib(24, 1, 1, 0, {1, 2, 3, 0}),
                     [](Bitmap& b) {
                         b.palette = PaletteOf({0x777777, 0x888888});
                         b.colorsUsed = 2;
                     }),
                "030201"},
        DibCase{"Depth32", Dib(32, 2, 1, 0, kRow32), "030201 F3F2F1"},
        DibCase{"Depth32TopDown", Dib(32, 1, -2, 0, kRow32), "030201 / F3F2F1"},
        DibCase{"Core1",
                With(Dib(1, 2, 1, 0, {0x40, 0, 0, 0}),
                     [](Bitmap& b) {
                         b.headerSize = 12;
                         b.palette = PaletteOf({0x000000, 0xFF0000}, 3);
                     }),
                "000000 FF0000"},
        DibCase{"Core24",
                With(Dib(24, 1, 1, 0, {1, 2, 3, 0}), [](Bitmap& b) { b.headerSize = 12; }),
                "030201"},
        DibCase{"Fields565",
                Fields(16, 2, MasksOf(0xF800, 0x07E0, 0x001F), {0xE0, 0xFF, 0x1F, 0x00}),
                "F8FC00 0000F8"},
        DibCase{"Fields444",
                Fields(16, 2, MasksOf(0x0F00, 0x00F0, 0x000F), {0x34, 0x12, 0xFF, 0x0F}),
                "203040 F0F0F0"},
        DibCase{"Fields231", Fields(16, 2, MasksOf(0x30, 0x0E, 0x01), {0x31, 0, 0x0E, 0}),
                "C00080 00E000"},
        DibCase{"Fields32", Fields(32, 2, MasksOf(0xFF0000, 0xFF00, 0xFF), kRow32),
                "030201 F3F2F1"},
        DibCase{"Fields32Reversed", Fields(32, 2, MasksOf(0xFF, 0xFF00, 0xFF0000), kRow32),
                "010203 F1F2F3"},
        DibCase{"Fields101010",
                Fields(32, 1, MasksOf(0x3FF00000, 0xFFC00, 0x3FF), {0xFF, 0x03, 0x08, 0x00}),
                "0080FF"},
        DibCase{"FieldsOfNothing", Fields(32, 1, MasksOf(0, 0, 0xFFFFFFFF), {1, 2, 3, 0xAB}),
                "0000AB"},
        DibCase{"FieldsInTheHeader",
                With(Dib(32, 2, 1, 3, kRow32),
                     [](Bitmap& b) {
                         b.headerSize = 108;
                         b.headerTail = MasksOf(0xFF, 0xFF00, 0xFF0000);
                     }),
                "010203 F1F2F3"},
        DibCase{"Rle8", Dib(8, 2, 2, 1, {2, 1, 0, 0, 0, 2, 1, 0, 1, 1, 0, 1}),
                "000000 FF0000 / FF0000 FF0000"},
        DibCase{"Rle4", Dib(4, 4, 1, 2, {4, 0x10, 0, 1}), "FF0000 000000 FF0000 000000"}),
    [](const auto& test) { return test.param.name; });

/// Here runs and deltas are exact to the pixel, unlike those of BMP files.
TEST(PackedDibRle4, ReadsRunsFromOddPixelsInOrder) {
    const struct {
        Bytes data;
        const char* indices;
    } cases[] = {
        {{1, 0x90, 4, 0x12, 0, 1}, "91212000"},
        {{1, 0x90, 0, 4, 0x12, 0x34, 2, 0x56, 0, 1}, "91234560"},
        {{1, 0x90, 0, 3, 0x12, 0x30, 1, 0x55, 0, 1}, "91235000"},
        {{0, 2, 3, 0, 2, 0x12, 0, 1}, "00012000"},
    };
    for (const auto& c : cases) {
        IsImage image;
        ASSERT_TRUE(Load(PackedDib(Dib(4, 8, 1, 2, c.data)), image));
        EXPECT_EQ(Indices(image), c.indices);
    }
}

TEST(PackedDibRefusals, SayWhyAndLeaveNothing) {
    const struct {
        uint16_t bits;
        uint32_t compression;
        const char* text;
    } cases[] = {
        {24, 4, "compression type not supported"}, {0, 5, "compression type not supported"},
        {24, 1, "compression type not supported"}, {8, 2, "compression type not supported"},
        {4, 1, "compression type not supported"},  {24, 3, "compression type not supported"},
        {2, 0, "compression type not supported"},  {24, 6, "unknown compression"},
        {24, 0xFFFFFFFF, "unknown compression"},
    };
    for (const auto& c : cases) {
        IsImage image;
        image.CreateImage(2, 2, 8);
        EXPECT_FALSE(Load(PackedDib(Dib(c.bits, 1, 1, c.compression, Bytes(16))), image));
        EXPECT_STREQ(image.LastErrorText(), c.text) << c.bits << "/" << c.compression;
        EXPECT_TRUE(image.IsEmpty());
    }
    const struct {
        int32_t width, height;
    } sizes[] = {{0, 1}, {1, 0}, {-1, 1}, {1, INT32_MIN}, {65536, 65536}};
    for (const auto& size : sizes) {
        IsImage image;
        EXPECT_FALSE(Load(PackedDib(Dib(8, size.width, size.height, 0, Bytes(16))), image));
        EXPECT_STRNE(image.LastErrorText(), "");
    }
    for (const uint32_t headerSize : {0u, 11u, 13u, 39u, 200u, 0xFFFFFFFFu}) {
        Bytes data = PackedDib(Dib(24, 1, 1, 0, {1, 2, 3, 0}));
        for (int i = 0; i < 4; ++i)
            data[static_cast<size_t>(i)] = static_cast<uint8_t>(headerSize >> 8 * i);
        IsImage image;
        EXPECT_FALSE(Load(data, image)) << headerSize;
        EXPECT_STRNE(image.LastErrorText(), "");
    }
    IsImage image;
    EXPECT_FALSE(image.CreateFromPackedDib(nullptr, 0));
    IsImage source, ghost;
    source.CreateImage(1, 1, 1);
    ghost.Ghost(&source);
    EXPECT_FALSE(Load(PackedDib(Dib(24, 1, 1, 0, {1, 2, 3, 0})), ghost));
    EXPECT_EQ(ghost.Info().ghostOf, &source);
}

TEST(PackedDibResolution, IsTheHeadersOr96) {
    const struct {
        int32_t pixelsPerMeter;
        uint32_t dpi;
    } cases[] = {{0, 96}, {11811, 300}, {2835, 72}, {-1, 96}};
    for (const auto& c : cases) {
        Bitmap bitmap = Dib(24, 1, 1, 0, {1, 2, 3, 0});
        bitmap.yPixelsPerMeter = c.pixelsPerMeter;
        IsImage image;
        ASSERT_TRUE(Load(PackedDib(bitmap), image));
        EXPECT_EQ(image.Info().yDpi, c.dpi);
        EXPECT_EQ(image.Info().xDpi, 96u);
    }
}

TEST(PackedDibPalette, EntriesBeyondTheContainersArePassedOver) {
    Bitmap bitmap = Dib(1, 2, 1, 0, {0x40, 0, 0, 0});
    bitmap.palette = PaletteOf({0x111111, 0x222222, 0x333333});
    bitmap.colorsUsed = 3;
    IsImage image;
    ASSERT_TRUE(Load(PackedDib(bitmap), image));
    EXPECT_EQ(Picture(image), "111111 222222");
    bitmap.colorsUsed = 0xFFFFFFFF;
    ASSERT_TRUE(Load(PackedDib(bitmap), image)) << "the pixels lie beyond the data";
    EXPECT_EQ(Picture(image), "111111 111111");
}

} // namespace
