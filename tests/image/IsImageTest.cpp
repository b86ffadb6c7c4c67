// SPDX-License-Identifier: MIT
//
// The container: layout, ownership, pixels, palette and settings.
#include "image/DibLayout.h"
#include "tests/image/ImageTesting.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace tint;
using imagetest::LimitsGuard;
using imagetest::Picture;

namespace {

/// An image with a side buffer and a chosen error text.
class OpenImage : public IsImage {
public:
    using IsImage::SetErrorText;
    using IsImage::sideBuffer;
};

RGBQUAD Rgb(uint32_t color) {
    return {static_cast<uint8_t>(color), static_cast<uint8_t>(color >> 8),
            static_cast<uint8_t>(color >> 16), 0};
}

uint32_t Hex(RGBQUAD color) {
    return static_cast<uint32_t>(color.rgbRed) << 16 | color.rgbGreen << 8 | color.rgbBlue;
}

void ExpectEmpty(const IsImage& image) {
    EXPECT_TRUE(image.IsEmpty() && !image.Dib() && !image.RowPointer(0) && !image.Palette());
    EXPECT_EQ(image.Info().bits, nullptr);
    EXPECT_EQ(image.Width() + image.Height() + image.BlockSize(), 0u);
}

TEST(Layout, IsThatOfAZeroedDib) {
    const struct {
        uint32_t width, height, bitCount, stored, entries, stride;
    } cases[] = {{1, 1, 0, 1, 2, 4},    {32, 2, 1, 1, 2, 4},  {33, 2, 1, 1, 2, 8},
                 {9, 3, 2, 4, 16, 8},   {8, 3, 4, 4, 16, 4},  {3, 3, 5, 8, 256, 4},
                 {5, 3, 8, 8, 256, 8},  {4, 1, 9, 24, 0, 12}, {5, 2, 16, 24, 0, 16},
                 {5, 2, 24, 24, 0, 16}, {1, 1, 32, 24, 0, 4}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.width << " wide, " << c.bitCount << " bits");
        IsImage image;
        const uint8_t* block = image.CreateImage(c.width, c.height, c.bitCount, kFormatPng);
        ASSERT_NE(block, nullptr);
        EXPECT_EQ(image.BitCount(), c.stored);
        EXPECT_EQ(image.PaletteEntries(), c.entries);
        EXPECT_EQ(image.EffectiveWidth(), c.stride);
        EXPECT_EQ(image.BlockSize(), 40 + c.entries * 4 + c.stride * c.height);
        EXPECT_EQ(image.Type(), uint32_t{kFormatPng});
        EXPECT_EQ(memcmp(block, &image.Header(), 40), 0) << "the block starts with the header";
        EXPECT_EQ(image.Palette() != nullptr, c.entries > 0);
        EXPECT_EQ(image.RowPointer(0), block + 40 + c.entries * 4);
        EXPECT_EQ(image.RowPointer(0), image.Info().bits);
        EXPECT_EQ(image.RowPointer(c.height - 1), image.RowPointer(0) + c.stride * (c.height - 1));
        EXPECT_EQ(image.RowPointer(c.height), nullptr);
        EXPECT_EQ(std::count(block + 40, block + image.BlockSize(), 0), image.BlockSize() - 40);
    }
}

/// Sizes in pairs: the last that is accepted and the first that is refused.
TEST(Layout, RefusesSizesThatDoNotFit) {
    const LimitsGuard guard;
    const DecodeLimits open = {UINT64_MAX, UINT64_MAX}, usual, narrow = {100, 40 + 32 * 4};
    const struct {
        DecodeLimits limits;
        uint32_t width, height, bitCount;
        const char* refusal;
    } cases[] = {
        {open, 0, 1, 24, "image width or height is 0"},
        {open, 1, 0, 24, "image width or height is 0"},
        // A row of 2^32 bits, where a 32-bit product would start again at 0.
        {open, 178956969, 1, 24, ""},
        {open, 178956970, 1, 24, "image row exceeds 32 bits"},
        {open, 1, 0x7FFFFFFF, 1, "image exceeds 2 GiB"},
        {open, 1, 0x80000000, 1, "image width or height exceeds 31 bits"},
        {open, 0xFFFFFFFF, 1, 1, "image width or height exceeds 31 bits"},
        // Header and rows of 4 bytes: 2^31 - 4 and 2^31 bytes.
        {open, 1, 536870901, 24, ""},
        {open, 1, 536870902, 24, "image exceeds 2 GiB"},
        // 65536 rows of 65536 bytes: exactly 2^32, nothing in 32 bits.
        {open, 65536, 65536, 8, "image exceeds 2 GiB"},
        {usual, 20000, 20000, 24, ""}, // 400 megapixels
        {usual, 65500, 65500, 1, "image exceeds the limit maxPixels"},
        {narrow, 10, 4, 24, ""},
        {narrow, 11, 4, 24, "image exceeds the limit maxBlockBytes"},
        {narrow, 10, 10, 1, ""},
        {narrow, 101, 1, 1, "image exceeds the limit maxPixels"},
    };
    for (const auto& c : cases) {
        SetDecodeLimits(c.limits);
        DibLayout layout;
        const char* const refusal = LayOutDib(c.width, c.height, c.bitCount, layout);
        EXPECT_STREQ(refusal ? refusal : "", c.refusal) << c.width << " x " << c.height;
    }
    IsImage image;
    EXPECT_NE(image.CreateImage(10, 4, 24), nullptr);
    EXPECT_EQ(image.CreateImage(101, 1, 1), nullptr);
    EXPECT_STREQ(image.LastErrorText(), "image exceeds the limit maxPixels");
    ExpectEmpty(image);
}

TEST(Settings, StartWithDefaults) {
    OpenImage image;
    ExpectEmpty(image);
    EXPECT_EQ(IsImage(kFormatJpeg).Type(), uint32_t{kFormatJpeg});
    EXPECT_EQ(image.Info().jpegQuality, 90);
    EXPECT_EQ(image.Info().transparentIndex, -1);
    EXPECT_EQ(image.Info().enabled, 1);
    EXPECT_EQ(image.Info().xDpi + image.Info().yDpi, 192u);
    EXPECT_STREQ(image.LastErrorText(), "");
    image.SetErrorText(std::string(256, 'b').c_str());
    EXPECT_EQ(image.LastErrorText(), std::string(255, 'b'));
}

TEST(Settings, KeepResolutionsInBothUnits) {
    const int32_t cases[][3] = {{0, 96, 3780}, // dpi, dpi stored, pixels per metre
                                {-5, 96, 3780},
                                {72, 72, 2835},
                                {54545454, 54545454, 2147458819},
                                {INT32_MAX, INT32_MAX, INT32_MAX}};
    IsImage image;
    image.CreateImage(1, 1, 1);
    for (const auto& [dpi, stored, pixelsPerMeter] : cases) {
        image.SetHorizontalDpi(dpi);
        image.SetVerticalDpi(dpi);
        EXPECT_EQ(image.Info().xDpi, static_cast<uint32_t>(stored));
        EXPECT_EQ(image.Info().yDpi, static_cast<uint32_t>(stored));
        EXPECT_EQ(image.Header().biXPelsPerMeter, pixelsPerMeter);
        EXPECT_EQ(image.Header().biYPelsPerMeter, pixelsPerMeter);
        EXPECT_EQ(memcmp(image.Dib(), &image.Header(), 40), 0);
    }
}

TEST(Settings, FormatValuesHaveASlotForTheImagesOwnType) {
    IsImage image(kFormatPng);
    image.SetFormatValue(0, 33);
    image.SetFormatValue(kFormatJpeg, 22);
    image.SetFormatValue(4, 44);
    const uint32_t values[] = {33, 0, 22, 33, 0};
    for (uint32_t format = 0; format < 5; ++format)
        EXPECT_EQ(image.FormatValue(format), values[format]) << format;
    EXPECT_EQ(IsImage(77u).FormatValue(0), 0u);
}

TEST(Ownership, AGhostSharesAndOwnsNothing) {
    OpenImage source, ghost;
    source.CreateImage(2, 1, 24);
    source.sideBuffer = static_cast<uint8_t*>(calloc(1, 4));
    ghost.CreateImage(5, 5, 8); // its own content goes, or the leak checker speaks up
    ghost.Ghost(nullptr);
    EXPECT_EQ(ghost.Width(), 5u);
    ghost.Ghost(&source);
    EXPECT_EQ(ghost.Dib(), source.Dib());
    EXPECT_EQ(ghost.sideBuffer, source.sideBuffer);
    EXPECT_EQ(ghost.Info().ghostOf, &source);
    EXPECT_TRUE(ghost.SetPixelColor(1, 0, Rgb(0x102030)));
    CxMemFile stream;
    EXPECT_FALSE(ghost.DestroyImage() || ghost.CreateImage(1, 1, 1) || ghost.Transfer(source) ||
                 ghost.Copy(IsImage()) || ghost.DecodeByType(kFormatBmp, &stream));
    EXPECT_FALSE(ghost.ApplyOrientation());
    EXPECT_STREQ(ghost.LastErrorText(), "image is a view of another");
    EXPECT_FALSE(source.Transfer(ghost)) << "the source cannot take over a view of itself";
    source.Ghost(&ghost);
    source.Ghost(&source);
    EXPECT_EQ(Picture(ghost), "000000 102030");
    EXPECT_EQ(Picture(source), "000000 102030");

    // The same where only side buffers are shared, or nothing at all.
    OpenImage empty, view;
    view.Ghost(&empty);
    EXPECT_FALSE(empty.Transfer(view));
    empty.Ghost(&view);
    EXPECT_EQ(empty.Info().ghostOf, nullptr) << "or it could never get a picture again";
    empty.sideBuffer = static_cast<uint8_t*>(calloc(1, 4));
    view.Ghost(&empty);
    EXPECT_FALSE(empty.Transfer(view));
    empty.Ghost(&view);
    view.CopyInfo(source);
    EXPECT_EQ(view.Info().ghostOf, &empty);
    EXPECT_EQ(empty.Info().ghostOf, nullptr);
}

TEST(Ownership, TransferMovesEverything) {
    OpenImage source, target;
    source.CreateImage(2, 1, 4, kFormatBmp);
    source.SetJpegQuality(50);
    source.sideBuffer = static_cast<uint8_t*>(calloc(1, 4));
    const uint8_t* block = source.Dib();
    target.CreateImage(9, 9, 24);
    target.SetErrorText("kept");
    EXPECT_TRUE(target.Transfer(source));
    EXPECT_TRUE(target.Transfer(target));
    EXPECT_EQ(target.Dib(), block);
    EXPECT_NE(target.sideBuffer, nullptr);
    EXPECT_EQ(target.Info().jpegQuality, 50);
    EXPECT_EQ(target.Width(), 2u);
    EXPECT_STREQ(target.LastErrorText(), "kept");
    ExpectEmpty(source);
    EXPECT_EQ(source.sideBuffer, nullptr);
    EXPECT_EQ(source.Info().jpegQuality, 0);
}

TEST(Ownership, CopiesAreIndependent) {
    IsImage source, ghost, assigned, settings;
    source.CreateImage(2, 1, 1, kFormatPng);
    source.SetPaletteColor(1, Rgb(0x112233));
    source.SetPixelIndex(1, 0, 1);
    source.SetHorizontalDpi(300);
    source.SetTransparentIndex(1);
    IsImage copy(source);
    ghost.Ghost(&source);
    assigned.CreateImage(3, 3, 24);
    assigned = ghost;
    source.SetPixelIndex(0, 0, 1);
    EXPECT_TRUE(copy.Copy(copy));
    for (const IsImage* image : {&copy, &assigned}) {
        EXPECT_EQ(Picture(*image), "000000 112233");
        EXPECT_EQ(image->Info().ghostOf, nullptr);
        EXPECT_EQ(image->Info().bits, image->RowPointer(0));
        EXPECT_EQ(image->Info().xDpi, 300u);
        EXPECT_EQ(image->Info().transparentIndex, 1);
    }
    copy = IsImage();
    ExpectEmpty(copy);

    settings.CopyInfo(ghost);
    EXPECT_EQ(settings.Info().transparentIndex, 1);
    ExpectEmpty(settings);
    EXPECT_EQ(settings.Info().ghostOf, nullptr);
    EXPECT_NE(settings.CreateImage(1, 1, 1), nullptr);
    source.SetTransparentIndex(0);
    settings.CopyInfo(source);
    EXPECT_EQ(settings.Info().transparentIndex, 1) << "taken only while empty";
}

TEST(Pixels, OfEveryDepthComeBackAndLeaveTheirNeighboursAlone) {
    for (const uint32_t bits : {1u, 4u, 8u}) {
        SCOPED_TRACE(bits);
        IsImage image;
        image.CreateImage(11, 2, bits);
        const uint32_t last = (1u << bits) - 1;
        for (uint32_t x = 0; x < 11; ++x)
            EXPECT_TRUE(image.SetPixelIndex(x, 1, static_cast<uint8_t>(last)));
        for (uint32_t x = 0; x < 11; x += 2)
            EXPECT_TRUE(image.SetPixelIndex(x, 1, static_cast<uint8_t>(x & last)));
        for (uint32_t x = 0; x < 11; ++x) {
            EXPECT_EQ(image.GetPixelIndex(x, 1), x % 2 ? last : x & last) << x;
            EXPECT_EQ(image.GetPixelIndex(x, 0), 0) << x;
        }
        EXPECT_FALSE(image.SetPixelIndex(11, 0, 0));
        EXPECT_FALSE(image.SetPixelIndex(0, 2, 0));
        EXPECT_EQ(image.SetPixelIndex(0, 0, 255), bits == 8);
        EXPECT_EQ(image.GetPixelIndex(11, 0), 0);
    }
    IsImage image;
    image.CreateImage(2, 2, 24);
    EXPECT_TRUE(image.SetPixelColor(1, 0, Rgb(0x123456)));
    EXPECT_EQ(Picture(image), "000000 000000 / 000000 123456") << "row 0 is the lowest";
    EXPECT_FALSE(image.SetPixelColor(2, 0, Rgb(1)));
    EXPECT_FALSE(image.SetPixelIndex(0, 0, 0)) << "no palette";
    EXPECT_EQ(Hex(image.GetPixelColor(0, 2)) + Hex(IsImage().GetPixelColor(0, 0)), 0u);
}

TEST(Pixels, OfAPaletteAreTheNearestEntry) {
    IsImage image;
    image.CreateImage(1, 1, 4);
    for (uint32_t i = 0; i < 16; ++i)
        EXPECT_TRUE(image.SetPaletteColor(i, {0, 0, static_cast<uint8_t>(i * 16), 7}));
    EXPECT_FALSE(image.SetPaletteColor(16, Rgb(0)));
    EXPECT_EQ(image.Palette()[15].rgbReserved, 0);
    EXPECT_EQ(Hex(image.GetPaletteColor(3)), 0x300000u);
    EXPECT_EQ(Hex(image.GetPaletteColor(16)), 0u);
    EXPECT_EQ(image.GetNearestIndex(Rgb(0x310002)), 3);
    EXPECT_EQ(image.GetNearestIndex(Rgb(0x280000)), 2) << "the first of equals";
    EXPECT_TRUE(image.SetPixelColor(0, 0, Rgb(0xF80001)));
    EXPECT_EQ(image.GetPixelIndex(0, 0), 15);
    EXPECT_EQ(IsImage().GetNearestIndex(Rgb(0)), 0);
    EXPECT_FALSE(IsImage().SetPaletteColor(0, Rgb(0)));
}

} // namespace
