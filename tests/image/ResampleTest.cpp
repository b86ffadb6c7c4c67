// SPDX-License-Identifier: MIT
//
// Resampling, against sums over the whole window made pixel by pixel in double precision.
#include "image/Resample.h"
#include "image/ResampleOps.h"
#include "tests/image/ImageTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

using namespace tint;
using imagetest::LimitsGuard;
using imagetest::Picture;

namespace {

/// An image of hard edges and noise, the same in every run.
IsImage MakeImage(uint32_t width, uint32_t height, uint32_t bitCount = 24) {
    IsImage image;
    image.CreateImage(width, height, bitCount, kFormatBmp);
    image.SetBackgroundColor({10, 200, 30, 0});
    uint32_t seed = width * 31 + height;
    const auto next = [&seed] { return (seed = seed * 1664525 + 1013904223) >> 24; };
    const auto color = [&next]() -> RGBQUAD {
        const bool noise = next() % 2;
        const uint8_t edge = next() % 2 ? 255 : 0;
        const auto channel = [&] { return noise ? static_cast<uint8_t>(next()) : edge; };
        return {channel(), channel(), channel(), 0};
    };
    for (uint32_t i = 0; i < image.PaletteEntries(); ++i)
        image.SetPaletteColor(i, color());
    for (uint32_t i = 0; i < width * height; ++i) {
        if (image.PaletteEntries() > 0)
            image.SetPixelIndex(i % width, i / width,
                                static_cast<uint8_t>(next() % image.PaletteEntries()));
        else
            image.SetPixelColor(i % width, i / width, color());
    }
    return image;
}

// The reference.

struct Tap {
    int64_t at;
    double weight;
};

std::vector<Tap> Taps(uint32_t source, uint32_t target, uint32_t at, const Kernel& kernel,
                      bool averages) {
    std::vector<Tap> taps;
    if (averages && source >= target) {
        const double scale = static_cast<double>(source) / target;
        for (uint32_t pixel = 0; pixel < source; ++pixel) {
            const double covered =
                std::min(pixel + 1.0, (at + 1) * scale) - std::max<double>(pixel, at * scale);
            if (covered > 0)
                taps.push_back({pixel, covered / scale});
        }
        return taps;
    }
    const float scale = static_cast<float>(source) / static_cast<float>(target);
    const double point = (at + 0.5) * static_cast<double>(scale) - 0.5;
    const int half = static_cast<int>(kernel.taps / 2);
    double sum = 0;
    for (int k = 1 - half; k <= half; ++k) {
        const auto pixel = static_cast<int64_t>(std::floor(point)) + k;
        taps.push_back({pixel, kernel.weight(static_cast<double>(pixel) - point)});
        sum += taps.back().weight;
    }
    for (Tap& tap : taps)
        tap.weight /= kernel.normalized ? sum : 1;
    return taps;
}

/// Blue, green and red of a pixel, which may lie outside.
std::array<double, 3> ColorAt(const IsImage& image, int64_t x, int64_t y, int32_t overflow) {
    const int64_t width = image.Width();
    const int64_t height = image.Height();
    const bool inside = x >= 0 && x < width && y >= 0 && y < height;
    if (overflow == kOverflowWrap) {
        x = (x % width + width) % width;
        y = (y % height + height) % height;
    }
    RGBQUAD color =
        image.GetPixelColor(static_cast<uint32_t>(std::clamp<int64_t>(x, 0, width - 1)),
                            static_cast<uint32_t>(std::clamp<int64_t>(y, 0, height - 1)));
    if (!inside && overflow == kOverflowBackground)
        color = image.Info().backgroundColor;
    return {1.0 * color.rgbBlue, 1.0 * color.rgbGreen, 1.0 * color.rgbRed};
}

/// The largest distance of a channel from its direct sum, clamped and cut or rounded as it is due.
double LargestError(const IsImage& source, const IsImage& target, const ResampleMethod& method) {
    const bool averages =
        method.averaging && (source.Width() > target.Width() || source.Height() > target.Height());
    const bool cut = method.interpolation == kLanczos && !averages;
    const Kernel& kernel = KernelOf(method.interpolation);
    double largest = 0;
    for (uint32_t i = 0; i < target.Width() * target.Height(); ++i) {
        const uint32_t x = i % target.Width(), y = i / target.Width();
        std::array<double, 3> sum = {};
        const auto columns = Taps(source.Width(), target.Width(), x, kernel, averages);
        for (const Tap& row : Taps(source.Height(), target.Height(), y, kernel, averages)) {
            for (const Tap& column : columns) {
                const auto color = ColorAt(source, column.at, row.at, method.overflow);
                for (size_t c = 0; c < 3; ++c)
                    sum[c] += column.weight * row.weight * color[c];
            }
        }
        const auto got = ColorAt(target, x, y, kOverflowRepeat);
        for (size_t c = 0; c < 3; ++c) {
            const double due = std::floor(std::clamp(sum[c], 0.0, 255.0) + (cut ? 0 : 0.5));
            largest = std::max(largest, std::fabs(due - got[c]));
        }
    }
    return largest;
}

TEST(Resample, EveryVariantAgreesWithTheDirectSum) {
    const uint32_t sizes[][4] = {
        {21, 17, 84, 68}, {3, 2, 11, 9},    {1, 1, 7, 5},     {40, 3, 300, 5}, {2, 40, 5, 131},
        {53, 47, 17, 13}, {30, 20, 29, 19}, {23, 19, 1, 1},   {5, 90, 4, 2},   {9000, 2, 300, 1},
        {37, 5, 12, 14},  {9, 31, 40, 8},   {15, 12, 15, 29}, {15, 12, 15, 7}, {13, 11, 37, 24}};
    const ResampleOps* const variants[] = {&PlainResampleOps(), Sse2ResampleOps(),
                                           Avx2ResampleOps()};
    for (const auto& [width, height, newWidth, newHeight] : sizes) {
        const IsImage source = MakeImage(width, height);
        const bool allMethods = width == 13;
        for (int32_t method = kNearest; method <= kCatmullRom; ++method) {
            if (!allMethods && method != kLanczos && method != kBilinear && method != kMitchell)
                continue;
            for (const int32_t overflow : {kOverflowRepeat, kOverflowWrap, kOverflowBackground}) {
                for (int i = 0; i < 6; ++i) {
                    const ResampleOps* const ops = variants[i / 2];
                    const ResampleMethod how = {method, overflow, i % 2 == 0};
                    IsImage target;
                    target.CreateImage(newWidth, newHeight, 24);
                    if (!ops)
                        continue; // not on this processor
                    ASSERT_EQ(ResamplePixels(source, target, how, *ops), nullptr);
                    EXPECT_LE(LargestError(source, target, how), 1)
                        << ops->name << ", method " << method << ", overflow " << overflow
                        << ", averaging " << how.averaging << ", " << width << " to " << newWidth;
                }
            }
        }
    }
}

TEST(Resample, MoreRowsThanWeightsAreKeptFor) {
    IsImage source = MakeImage(1, 9), target;
    ASSERT_TRUE(source.Resample(1, 66000, kBilinear, kOverflowWrap, &target));
    EXPECT_LE(LargestError(source, target, {kBilinear, kOverflowWrap, true}), 1);
}

TEST(Resample, BeyondTheEdgesLiesWhatTheOverflowMethodSays) {
    IsImage image, target;
    image.CreateImage(2, 1, 24);
    image.SetPixelColor(0, 0, {0, 0, 100, 0});
    image.SetPixelColor(1, 0, {0, 0, 200, 0});
    image.SetBackgroundColor({64, 32, 0, 0});
    // At four times the width the first point lies 3/8 left of the first pixel's centre.
    const struct {
        int32_t overflow, transparent;
        const char* first;
    } cases[] = {{kOverflowWhite, 0, "9E6060"},
                 {kOverflowBackground, 0, "3F0C18"},
                 {kOverflowTransparent, 0, "3F0C18"},
                 {kOverflowWrap, 0, "8A0000"},
                 {kOverflowTransparent, -1, "9E6060"},
                 {kOverflowRepeat, 0, "640000"},
                 {0, 0, "640000"},
                 {6, 0, "640000"},
                 {-1, 0, "640000"}};
    for (const auto& c : cases) {
        image.SetTransparentIndex(c.transparent);
        ASSERT_TRUE(image.Resample(8, 1, kBilinear, c.overflow, &target));
        EXPECT_EQ(Picture(target).substr(0, 6), c.first) << c.overflow;
    }
}

TEST(Resample, IndexedPicturesAreFilteredByTheirColors) {
    for (const uint32_t bits : {1u, 4u, 8u}) {
        IsImage indexed = MakeImage(60, 50, bits), colors;
        colors.CreateImage(60, 50, 24);
        for (uint32_t i = 0; i < 60 * 50; ++i)
            colors.SetPixelColor(i % 60, i / 60, indexed.GetPixelColor(i % 60, i / 60));
        for (const int32_t width : {171, 23}) {
            IsImage fromIndexed, fromColors;
            ASSERT_TRUE(indexed.Resample(width, 40, kLanczos, kOverflowWrap, &fromIndexed));
            ASSERT_TRUE(colors.Resample(width, 40, kLanczos, kOverflowWrap, &fromColors));
            EXPECT_EQ(fromIndexed.BitCount(), bits);
            for (uint32_t i = 0; i < fromColors.Width() * 40; ++i) {
                const uint32_t x = i / 40, y = i % 40;
                ASSERT_EQ(fromIndexed.GetPixelIndex(x, y),
                          indexed.GetNearestIndex(fromColors.GetPixelColor(x, y)));
            }
        }
    }
}

TEST(Resample, KeepsSettingsAndAnswersTheSameSizeWithACopy) {
    IsImage image = MakeImage(6, 5, 4), target;
    image.SetTransparentIndex(3);
    image.SetHorizontalDpi(300);
    ASSERT_TRUE(image.Resample(6, 5, kLanczos, kOverflowRepeat, &target));
    EXPECT_EQ(memcmp(target.Dib(), image.Dib(), image.BlockSize()), 0);
    EXPECT_TRUE(image.Resample(6, 5, kLanczos, kOverflowRepeat));
    ASSERT_TRUE(image.Resample(12, 9, kLanczos, kOverflowRepeat));
    EXPECT_EQ(image.Width(), 12u);
    EXPECT_EQ(image.Height(), 9u);
    EXPECT_EQ(image.Type(), uint32_t{kFormatBmp});
    EXPECT_EQ(image.Info().transparentIndex, 3);
    EXPECT_EQ(image.Header().biXPelsPerMeter, 11811);
    EXPECT_EQ(memcmp(image.Dib(), &image.Header(), 40), 0);
    EXPECT_EQ(memcmp(image.Palette(), target.Palette(), 64), 0);
    EXPECT_STREQ(image.LastErrorText(), "");
}

TEST(Resample, RefusesAndStaysAsItWas) {
    const LimitsGuard guard({UINT64_MAX});
    IsImage image = MakeImage(4, 3), view;
    const std::string before = Picture(image);
    view.Ghost(&image);
    const struct {
        int32_t width, height;
        const char* text;
    } cases[] = {
        {0, 5, "new width or height is below 1"},
        {5, INT32_MIN, "new width or height is below 1"},
        {INT32_MAX, 1, "image row exceeds 32 bits"},
        {65536, 65536, "image exceeds 2 GiB"}, // 3 * 2^32 bytes: 0 in 32 bits
        {1, INT32_MAX, "image exceeds 2 GiB"},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(image.Resample(c.width, c.height, kLanczos, kOverflowRepeat));
        EXPECT_STREQ(image.LastErrorText(), c.text);
    }
    // A view receives nothing: neither another size nor the copy of the same.
    for (const int32_t width : {5, 4}) {
        EXPECT_FALSE(image.Resample(width, 3, kLanczos, kOverflowRepeat, &view));
        EXPECT_STREQ(image.LastErrorText(), "image is a view of another") << width;
    }
    EXPECT_FALSE(view.Resample(5, 5, kLanczos, kOverflowRepeat));
    EXPECT_EQ(view.Dib(), image.Dib());
    EXPECT_EQ(Picture(image), before);
    IsImage empty;
    EXPECT_TRUE(view.Resample(5, 5, kLanczos, kOverflowRepeat, &empty)) << "but reads one";
    EXPECT_FALSE(IsImage().Resample(5, 5, kLanczos, kOverflowRepeat, &empty));
}

/// Rows of many pixels that become a few would take more working memory than pictures may.
TEST(Resample, WorkingMemoryIsLimitedToo) {
    const struct {
        uint32_t bits, width, height;
        int32_t newWidth;
        uint64_t limit;
        bool accepted;
    } cases[] = {{24, 100000, 1, 100, 300040, true},
                 {24, 100000, 1, 1, 300040, false},
                 {24, 100000, 2, 1, 2400000, true},
                 // Sixteen rows of bytes beside the floats.
                 {8, 100000, 40, 1, 6700000, false},
                 {8, 100000, 40, 1, 6900000, true},
                 // The weights of a row that comes from as many.
                 {24, 1, 100000, 1, 400000, false},
                 {24, 1, 100000, 1, 405000, true}};
    for (const auto& c : cases) {
        IsImage image, target;
        ASSERT_NE(image.CreateImage(c.width, c.height, c.bits), nullptr);
        const LimitsGuard guard({UINT64_MAX, c.limit});
        EXPECT_EQ(image.Resample(c.newWidth, 1, kLanczos, kOverflowRepeat, &target), c.accepted);
        EXPECT_STREQ(image.LastErrorText(),
                     c.accepted ? "" : "resampling exceeds the limit maxBlockBytes");
    }
}

} // namespace
