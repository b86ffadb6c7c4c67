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
#include <cstdlib>
#include <cstring>

using namespace tint;
using imagetest::Indices;
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
    const auto color = [&next] {
        const uint32_t kind = next() % 4;
        const auto channel = [&] { return static_cast<uint8_t>(kind == 0 ? 255 : next()); };
        return kind == 1 ? RGBQUAD{} : RGBQUAD{channel(), channel(), channel(), 0};
    };
    for (uint32_t i = 0; i < image.PaletteEntries(); ++i)
        image.SetPaletteColor(i, color());
    for (uint32_t y = 0; y < height; ++y) {
        for (uint32_t x = 0; x < width; ++x) {
            if (image.PaletteEntries() > 0)
                image.SetPixelIndex(x, y, static_cast<uint8_t>(next() % image.PaletteEntries()));
            else
                image.SetPixelColor(x, y, color());
        }
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

RGBQUAD ColorAt(const IsImage& image, int64_t x, int64_t y, int32_t overflow) {
    const int64_t width = image.Width();
    const int64_t height = image.Height();
    const bool inside = x >= 0 && x < width && y >= 0 && y < height;
    if (!inside && overflow == kOverflowWhite)
        return {255, 255, 255, 0};
    if (!inside && overflow == kOverflowBackground)
        return image.Info().backgroundColor;
    if (overflow == kOverflowWrap) {
        x = (x % width + width) % width;
        y = (y % height + height) % height;
    }
    return image.GetPixelColor(static_cast<uint32_t>(std::clamp<int64_t>(x, 0, width - 1)),
                               static_cast<uint32_t>(std::clamp<int64_t>(y, 0, height - 1)));
}

/// The sums of a target pixel, neither clamped nor rounded: blue, green, red.
std::array<double, 3> DirectSum(const IsImage& source, const std::vector<Tap>& columns,
                                const std::vector<Tap>& rows, int32_t overflow) {
    std::array<double, 3> sum = {};
    for (const Tap& row : rows) {
        for (const Tap& column : columns) {
            const RGBQUAD color = ColorAt(source, column.at, row.at, overflow);
            sum[0] += column.weight * row.weight * color.rgbBlue;
            sum[1] += column.weight * row.weight * color.rgbGreen;
            sum[2] += column.weight * row.weight * color.rgbRed;
        }
    }
    return sum;
}

/// The largest distance of a channel from its direct sum, clamped and cut or rounded as it is due.
double LargestError(const IsImage& source, const IsImage& target, const ResampleMethod& method) {
    const bool averages =
        method.averaging && (source.Width() > target.Width() || source.Height() > target.Height());
    const bool cut = method.interpolation == kLanczos && !averages;
    const Kernel& kernel = KernelOf(method.interpolation);
    double largest = 0;
    for (uint32_t y = 0; y < target.Height(); ++y) {
        const auto rows = Taps(source.Height(), target.Height(), y, kernel, averages);
        for (uint32_t x = 0; x < target.Width(); ++x) {
            const auto columns = Taps(source.Width(), target.Width(), x, kernel, averages);
            const auto sum = DirectSum(source, columns, rows, method.overflow);
            const RGBQUAD color = target.GetPixelColor(x, y);
            const double got[] = {static_cast<double>(color.rgbBlue),
                                  static_cast<double>(color.rgbGreen),
                                  static_cast<double>(color.rgbRed)};
            for (int c = 0; c < 3; ++c) {
                const double due = std::floor(std::clamp(sum[c], 0.0, 255.0) + (cut ? 0 : 0.5));
                largest = std::max(largest, std::fabs(due - got[c]));
            }
        }
    }
    return largest;
}

std::vector<const ResampleOps*> AllOps() {
    std::vector<const ResampleOps*> all = {&PlainResampleOps()};
    for (const ResampleOps* ops : {Sse2ResampleOps(), Avx2ResampleOps()}) {
        if (ops)
            all.push_back(ops);
    }
    return all;
}

struct SizeCase {
    const char* name;
    uint32_t width, height, newWidth, newHeight;
};

void PrintTo(const SizeCase& c, std::ostream* out) {
    *out << c.name;
}

class Sizes : public testing::TestWithParam<SizeCase> {};

TEST_P(Sizes, EveryVariantAgreesWithTheDirectSum) {
    const SizeCase& c = GetParam();
    const IsImage source = MakeImage(c.width, c.height);
    for (const ResampleOps* ops : AllOps()) {
        for (const int32_t interpolation : {kLanczos, kBilinear, kMitchell}) {
            for (const int32_t overflow : {kOverflowRepeat, kOverflowWrap, kOverflowBackground}) {
                for (const bool averaging : {true, false}) {
                    const ResampleMethod method = {interpolation, overflow, averaging};
                    IsImage target;
                    target.CreateImage(c.newWidth, c.newHeight, 24);
                    ASSERT_EQ(ResamplePixels(source, target, method, *ops), nullptr);
                    EXPECT_LE(LargestError(source, target, method), 1)
                        << ops->name << ", interpolation " << interpolation << ", overflow "
                        << overflow << ", averaging " << averaging;
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, Sizes,
    testing::Values(SizeCase{"Quadruple", 21, 17, 84, 68}, SizeCase{"OddRatio", 19, 13, 50, 31},
                    SizeCase{"SmallerThanAWindow", 3, 2, 11, 9}, SizeCase{"OnePixel", 1, 1, 7, 5},
                    SizeCase{"SeveralStrips", 40, 3, 300, 5},
                    SizeCase{"TallAndWide", 2, 40, 5, 131}, SizeCase{"Quarter", 48, 36, 12, 9},
                    SizeCase{"OddShrink", 53, 47, 17, 13}, SizeCase{"BarelyShrunk", 30, 20, 29, 19},
                    SizeCase{"ToOnePixel", 23, 19, 1, 1}, SizeCase{"ManyRows", 5, 90, 4, 2},
                    SizeCase{"StripsOfASource", 9000, 2, 300, 1},
                    SizeCase{"NarrowAndTall", 37, 5, 12, 14}, SizeCase{"WideAndLow", 9, 31, 40, 8},
                    SizeCase{"OneAxis", 15, 12, 15, 29}, SizeCase{"OneAxisShrunk", 15, 12, 15, 7}),
    [](const auto& test) { return test.param.name; });

TEST(ResampleTest, EveryMethodAgreesWithTheDirectSum) {
    IsImage source = MakeImage(13, 11);
    for (int32_t interpolation = kNearest; interpolation <= kCatmullRom; ++interpolation) {
        SCOPED_TRACE(interpolation);
        IsImage target;
        ASSERT_TRUE(source.Resample(37, 24, interpolation, kOverflowRepeat, &target));
        EXPECT_LE(LargestError(source, target, {interpolation, kOverflowRepeat, true}), 1);
    }
}

TEST(ResampleTest, MoreRowsThanWeightsAreKeptFor) {
    IsImage source = MakeImage(1, 9);
    IsImage target;
    ASSERT_TRUE(source.Resample(1, 66000, kBilinear, kOverflowWrap, &target));
    EXPECT_LE(LargestError(source, target, {kBilinear, kOverflowWrap, true}), 1);
}

/// Rounding may differ by 1 and seldom does.
TEST(ResampleTest, VariantsAgree) {
    const IsImage source = MakeImage(211, 157);
    const uint32_t sizes[][2] = {{643, 471}, {64, 50}};
    for (const auto& [width, height] : sizes) {
        std::vector<IsImage> results;
        for (const ResampleOps* ops : AllOps()) {
            IsImage& target = results.emplace_back();
            target.CreateImage(width, height, 24);
            ResamplePixels(source, target, {kLanczos, kOverflowRepeat, true}, *ops);
        }
        for (const IsImage& result : results) {
            uint32_t different = 0;
            for (uint32_t i = 40; i < result.BlockSize(); ++i) {
                const int distance = std::abs(result.Dib()[i] - results[0].Dib()[i]);
                ASSERT_LE(distance, 1);
                different += static_cast<uint32_t>(distance);
            }
            EXPECT_LT(different, result.BlockSize() / 1000);
        }
    }
}

TEST(ResampleTest, APlainColorStays) {
    for (const uint8_t value : {0, 1, 128, 255}) {
        IsImage source;
        source.CreateImage(9, 7, 24);
        memset(source.RowPointer(0), value, source.Header().biSizeImage);
        for (int32_t interpolation = kNearest; interpolation <= kCatmullRom; ++interpolation) {
            const int stray = interpolation == kLanczos ? 4 : 0;
            const int32_t sizes[][2] = {{31, 22}, {4, 3}, {9, 20}};
            for (const auto& [width, height] : sizes) {
                IsImage target;
                ASSERT_TRUE(source.Resample(width, height, interpolation, 0, &target));
                for (int32_t i = 0; i < width * height; ++i)
                    ASSERT_NEAR(target
                                    .GetPixelColor(static_cast<uint32_t>(i % width),
                                                   static_cast<uint32_t>(i / width))
                                    .rgbGreen,
                                value, stray)
                        << interpolation;
            }
        }
    }
}

double MeanGreen(const IsImage& image) {
    double sum = 0;
    for (uint32_t y = 0; y < image.Height(); ++y) {
        for (uint32_t x = 0; x < image.Width(); ++x)
            sum += image.GetPixelColor(x, y).rgbGreen;
    }
    return sum / image.Width() / image.Height();
}

TEST(ResampleTest, AveragingKeepsTheMeanBrightness) {
    IsImage source = MakeImage(401, 299);
    const double mean = MeanGreen(source);
    const int32_t sizes[][2] = {{400, 298}, {200, 149}, {100, 75}, {67, 250}, {31, 299}, {13, 7}};
    for (const auto& [width, height] : sizes) {
        IsImage target;
        ASSERT_TRUE(source.Resample(width, height, kLanczos, kOverflowWhite, &target));
        // What rounding leaves of n pixels, at four sigma.
        EXPECT_NEAR(MeanGreen(target), mean, 4 * 0.29 / std::sqrt(width * height) + 0.001)
            << width << " x " << height;
    }
}

TEST(ResampleTest, BeyondTheEdgesLiesWhatTheOverflowMethodSays) {
    IsImage image;
    image.CreateImage(2, 1, 24);
    image.SetPixelColor(0, 0, {0, 0, 100, 0});
    image.SetPixelColor(1, 0, {0, 0, 200, 0});
    image.SetBackgroundColor({64, 32, 0, 0});
    image.SetTransparentIndex(0);
    // At four times the width the first point lies 3/8 left of the first pixel's centre.
    const struct {
        int32_t overflow;
        RGBQUAD first;
    } cases[] = {
        {kOverflowWhite, {96, 96, 158, 0}},
        {kOverflowBackground, {24, 12, 63, 0}},
        {kOverflowTransparent, {24, 12, 63, 0}},
        {kOverflowWrap, {0, 0, 138, 0}},
        {kOverflowRepeat, {0, 0, 100, 0}},
        {0, {0, 0, 100, 0}},
        {6, {0, 0, 100, 0}},
        {-1, {0, 0, 100, 0}},
    };
    for (const auto& c : cases) {
        IsImage target;
        ASSERT_TRUE(image.Resample(8, 1, kBilinear, c.overflow, &target));
        const RGBQUAD first = target.GetPixelColor(0, 0);
        EXPECT_EQ(memcmp(&first, &c.first, sizeof(first)), 0) << c.overflow << Picture(target);
    }
    image.SetTransparentIndex(-1);
    IsImage target;
    image.Resample(8, 1, kBilinear, kOverflowTransparent, &target);
    EXPECT_EQ(target.GetPixelColor(0, 0).rgbBlue, 96) << "white, as nothing is transparent";
}

TEST(ResampleTest, AnIndexedPictureTakesTheNearestEntries) {
    for (const uint32_t bitCount : {1u, 4u, 8u}) {
        SCOPED_TRACE(bitCount);
        IsImage image;
        image.CreateImage(2, 2, bitCount);
        image.SetPaletteColor(0, {0, 0, 0, 0});
        image.SetPaletteColor(1, {255, 255, 255, 0});
        for (uint32_t i = 2; i < image.PaletteEntries(); ++i)
            image.SetPaletteColor(i, {255, 255, 255, 0});
        image.SetPixelIndex(1, 1, 1);
        IsImage target;
        ASSERT_TRUE(image.Resample(6, 4, kBilinear, kOverflowRepeat, &target));
        EXPECT_EQ(target.BitCount(), bitCount);
        EXPECT_EQ(Indices(target), "000111/000111/000000/000000");
        ASSERT_TRUE(image.Resample(1, 2, kBilinear, kOverflowRepeat, &target));
        EXPECT_EQ(Indices(target), "1/0") << "127.5 rounds up";
        ASSERT_TRUE(target.Resample(2, 1, kNearest, kOverflowRepeat, nullptr, true));
        EXPECT_EQ(Indices(target), "11") << "in place";
    }
}

TEST(ResampleTest, IndexedPicturesAreFilteredByTheirColors) {
    IsImage indexed = MakeImage(60, 50, 8);
    IsImage colors;
    colors.CreateImage(60, 50, 24);
    for (uint32_t i = 0; i < 60 * 50; ++i)
        colors.SetPixelColor(i % 60, i / 60, indexed.GetPixelColor(i % 60, i / 60));
    const int32_t sizes[][2] = {{171, 133}, {23, 19}};
    for (const auto& [width, height] : sizes) {
        IsImage fromIndexed, fromColors;
        ASSERT_TRUE(indexed.Resample(width, height, kLanczos, kOverflowWrap, &fromIndexed));
        ASSERT_TRUE(colors.Resample(width, height, kLanczos, kOverflowWrap, &fromColors));
        for (uint32_t y = 0; y < fromColors.Height(); ++y) {
            for (uint32_t x = 0; x < fromColors.Width(); ++x)
                ASSERT_EQ(fromIndexed.GetPixelIndex(x, y),
                          indexed.GetNearestIndex(fromColors.GetPixelColor(x, y)));
        }
    }
}

TEST(ResampleTest, KeepsSettingsAndAnswersTheSameSizeWithACopy) {
    IsImage image = MakeImage(6, 5, 4);
    image.SetTransparentIndex(3);
    image.SetHorizontalDpi(300);
    IsImage target;
    ASSERT_TRUE(image.Resample(6, 5, kLanczos, kOverflowRepeat, &target));
    EXPECT_EQ(memcmp(target.Dib(), image.Dib(), image.BlockSize()), 0);
    EXPECT_TRUE(image.Resample(6, 5, kLanczos, kOverflowRepeat));
    ASSERT_TRUE(image.Resample(12, 9, kLanczos, kOverflowRepeat));
    EXPECT_EQ(image.Width(), 12u);
    EXPECT_EQ(image.Height(), 9u);
    EXPECT_EQ(image.Type(), uint32_t{kFormatBmp});
    EXPECT_EQ(image.Info().transparentIndex, 3);
    EXPECT_EQ(image.Info().xDpi, 300u);
    EXPECT_EQ(image.Header().biXPelsPerMeter, 11811);
    EXPECT_EQ(memcmp(image.Dib(), &image.Header(), 40), 0);
    EXPECT_EQ(memcmp(image.Palette(), target.Palette(), 64), 0);
    EXPECT_STREQ(image.LastErrorText(), "");
}

TEST(ResampleTest, RefusesAndStaysAsItWas) {
    const LimitsGuard guard;
    IsImage image = MakeImage(4, 3);
    const std::string before = Picture(image);
    const struct {
        int32_t width, height;
        const char* text;
    } cases[] = {
        {0, 5, "below 1"},         {5, 0, "below 1"},
        {-1, 5, "below 1"},        {5, INT32_MIN, "below 1"},
        {INT32_MAX, 1, "32 bits"}, {65536, 65536, "2 GiB"}, // 3 * 2^32 bytes: 0 in 32 bits
        {37838, 37838, "2 GiB"},                            // a little above 2^32 bytes
        {1, INT32_MAX, "2 GiB"},   {INT32_MAX, INT32_MAX, "32 bits"},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(image.Resample(c.width, c.height, kLanczos, kOverflowRepeat));
        EXPECT_NE(strstr(image.LastErrorText(), c.text), nullptr) << image.LastErrorText();
        EXPECT_EQ(Picture(image), before);
    }
    DecodeLimits limits;
    limits.maxPixels = 100;
    SetDecodeLimits(limits);
    EXPECT_FALSE(image.Resample(101, 1, kLanczos, kOverflowRepeat));
    EXPECT_NE(strstr(image.LastErrorText(), "maxPixels"), nullptr);
    EXPECT_TRUE(image.Resample(100, 1, kLanczos, kOverflowRepeat));
    EXPECT_STREQ(image.LastErrorText(), "");
    IsImage empty;
    EXPECT_FALSE(empty.Resample(5, 5, kLanczos, kOverflowRepeat));
    EXPECT_NE(strstr(empty.LastErrorText(), "empty"), nullptr);
}

TEST(ResampleTest, DoesNotReplaceAView) {
    IsImage image = MakeImage(4, 3);
    IsImage view;
    view.Ghost(&image);
    EXPECT_FALSE(view.Resample(5, 5, kLanczos, kOverflowRepeat));
    EXPECT_NE(strstr(view.LastErrorText(), "view"), nullptr);
    EXPECT_FALSE(image.Resample(5, 5, kLanczos, kOverflowRepeat, &view));
    EXPECT_EQ(view.Dib(), image.Dib());
    IsImage target;
    EXPECT_TRUE(view.Resample(5, 5, kLanczos, kOverflowRepeat, &target)) << "but reads one";
}

/// A row of millions of pixels that becomes a few would take more working memory than pictures may.
TEST(ResampleTest, WorkingMemoryIsLimitedToo) {
    const LimitsGuard guard;
    IsImage image;
    ASSERT_NE(image.CreateImage(100000, 1, 24), nullptr);
    DecodeLimits limits;
    limits.maxBlockBytes = 300040;
    SetDecodeLimits(limits);
    IsImage target;
    EXPECT_TRUE(image.Resample(100, 1, kLanczos, kOverflowRepeat, &target));
    EXPECT_FALSE(image.Resample(1, 1, kLanczos, kOverflowRepeat));
    EXPECT_NE(strstr(image.LastErrorText(), "maxBlockBytes"), nullptr) << image.LastErrorText();
}

} // namespace
