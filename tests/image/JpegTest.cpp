// SPDX-License-Identifier: MIT
//
// The JPEG codec, on files that the library encodes through our own destination.
#include "image/CxIOFile.h"
#include "image/ImageJPG.h"
#include "tests/image/ExifBuilder.h"
#include "tests/image/ImageTesting.h"
#include "tests/image/JpegBuilder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

using namespace jpegtest;
using namespace tint;
using exiftest::ExifBuilder;
using imagetest::LimitsGuard;

namespace {

/// Runs the decoder over `file`, which it cannot read past: the block is exactly as long.
bool Decode(const Bytes& file, IsImage& image) {
    const Bytes exact(file.begin(), file.end());
    CxMemFile stream(const_cast<uint8_t*>(exact.data()), static_cast<uint32_t>(exact.size()));
    return image.DecodeByType(kFormatJpeg, &stream);
}

Picture With(void (*change)(Picture&)) {
    Picture picture;
    change(picture);
    return picture;
}

/// The largest difference of any channel to the samples that were encoded.
int LargestError(const IsImage& image, const Picture& picture) {
    int largest = 0;
    for (uint32_t y = 0; y < picture.height; ++y) {
        for (uint32_t x = 0; x < picture.width; ++x) {
            const RGBQUAD color = image.GetPixelColor(x, picture.height - 1 - y);
            const uint8_t channels[] = {color.rgbRed, color.rgbGreen, color.rgbBlue};
            for (int c = 0; c < 3; ++c) {
                int expected = SampleAt(picture, x, y, picture.components == 1 ? 0 : c);
                if (picture.components == 4)
                    expected = expected * SampleAt(picture, x, y, 3) / 255;
                largest = std::max(largest, std::abs(channels[c] - expected));
            }
        }
    }
    return largest;
}

struct FormCase {
    const char* name;
    Picture picture;
    uint32_t bitCount;
    int tolerance; ///< per channel; what is lost where chroma has fewer samples is more
};

void PrintTo(const FormCase& c, std::ostream* out) {
    *out << c.name;
}

class JpegForms : public testing::TestWithParam<FormCase> {};

TEST_P(JpegForms, ComeOutRight) {
    const Picture& picture = GetParam().picture;
    const Bytes file = JpegFile(picture);
    ASSERT_FALSE(file.empty());
    IsImage image;
    ASSERT_TRUE(Decode(file, image)) << image.LastErrorText();
    EXPECT_EQ(image.Width(), picture.width);
    EXPECT_EQ(image.Height(), picture.height);
    EXPECT_EQ(image.BitCount(), GetParam().bitCount);
    EXPECT_EQ(image.PaletteEntries(), GetParam().bitCount == 8 ? 256u : 0u);
    EXPECT_EQ(image.Type(), uint32_t{kFormatJpeg});
    EXPECT_LE(LargestError(image, picture), GetParam().tolerance);
}

INSTANTIATE_TEST_SUITE_P(
    Files, JpegForms,
    testing::Values(FormCase{"Color", Picture(), 24, 8},
                    FormCase{"OnePixel", With([](Picture& p) { p.width = p.height = 1; }), 24, 8},
                    FormCase{"OddWidth", With([](Picture& p) { p.width = 13; }), 24, 8},
                    FormCase{"Subsampled", With([](Picture& p) { p.sampling = 2; }), 24, 12},
                    FormCase{"Progressive", With([](Picture& p) { p.progressive = true; }), 24, 8},
                    FormCase{"Arithmetic", With([](Picture& p) { p.arithmetic = true; }), 24, 8},
                    FormCase{"ArithmeticProgressive",
                             With([](Picture& p) { p.arithmetic = p.progressive = true; }), 24, 8},
                    FormCase{"ScanPerComponent", With([](Picture& p) { p.separate = true; }), 24,
                             8},
                    FormCase{"Restarts", With([](Picture& p) {
                                 p.restartRows = 1;
                                 p.height = 24;
                             }),
                             24, 8},
                    FormCase{"Grey", With([](Picture& p) { p.components = 1; }), 8, 4},
                    FormCase{"GreyProgressive", With([](Picture& p) {
                                 p.components = 1;
                                 p.progressive = true;
                                 p.width = 9;
                             }),
                             8, 4},
                    FormCase{"Cmyk", With([](Picture& p) { p.components = 4; }), 24, 8},
                    FormCase{"Ycck", With([](Picture& p) {
                                 p.components = 4;
                                 p.ycck = true;
                             }),
                             24, 8}),
    [](const auto& test) { return test.param.name; });

TEST(JpegPictures, TwoComponentsAreStoredAsTheyAre) {
    Picture picture;
    picture.components = 2;
    picture.sample = 100;
    IsImage image;
    ASSERT_TRUE(Decode(JpegFile(picture), image)) << image.LastErrorText();
    EXPECT_EQ(image.BitCount(), 24u);
    EXPECT_EQ(image.GetPixelColor(0, 0).rgbRed, 100);
    EXPECT_EQ(image.GetPixelColor(15, 0).rgbRed, 0) << "no one knows what they mean";
}

struct DensityCase {
    const char* name;
    int unit; ///< -1: no JFIF header
    uint16_t x, y;
    uint32_t xDpi, yDpi;
};

TEST(JpegPictures, DensityBecomesTheResolution) {
    const DensityCase cases[] = {
        {"no header", -1, 1, 1, 1, 1},
        {"ratio", 0, 1, 2, 1, 2},
        {"nothing", 0, 0, 0, 96, 96},
        {"inches", 1, 300, 72, 300, 72},
        // The formula for metres, deliberately.
        {"centimetres", 2, 40, 118, 1, 3},
    };
    for (const DensityCase& c : cases) {
        Picture picture;
        picture.densityUnit = c.unit;
        picture.xDensity = c.x;
        picture.yDensity = c.y;
        Bytes file = JpegFile(picture);
        ASSERT_FALSE(file.empty());
        IsImage image;
        ASSERT_TRUE(Decode(file, image)) << c.name;
        EXPECT_EQ(image.Info().xDpi, c.xDpi) << c.name;
        EXPECT_EQ(image.Info().yDpi, c.yDpi) << c.name;
    }
}

Bytes WithExif(const std::vector<exiftest::Entry>& entries) {
    const ExifBuilder b(false);
    return WithSections(JpegFile(Picture()), {Section(0xE1, b.Block(entries))});
}

TEST(JpegExif, GivesResolutionAndOrientation) {
    const ExifBuilder i(false);
    const struct {
        std::vector<exiftest::Entry> entries;
        uint32_t xDpi, yDpi;
    } cases[] = {
        {{i.Rational(0x11A, 300, 1), i.Rational(0x11B, 72, 1), i.Short(0x128, 2)}, 300, 72},
        {{i.Rational(0x11A, 118, 1), i.Rational(0x11B, 59, 1), i.Short(0x128, 3)}, 299, 149},
        {{i.Rational(0x11A, 300, 1), i.Short(0x128, 2)}, 300, 1},
        {{i.Rational(0x11A, 300, 1), i.Rational(0x11B, 72, 1)}, 1, 1}, // no unit
        {{i.Rational(0x11A, -300, 1), i.Rational(0x11B, 1, 3), i.Short(0x128, 2)}, 96, 96},
        {{i.Rational(0x11A, INT32_MAX, 1), i.Rational(0x11B, 1, 3), i.Short(0x128, 5)}, 96, 8466},
    };
    for (const auto& c : cases) {
        IsImage image;
        ASSERT_TRUE(Decode(WithExif(c.entries), image));
        EXPECT_EQ(image.Info().xDpi, c.xDpi);
        EXPECT_EQ(image.Info().yDpi, c.yDpi);
        EXPECT_EQ(image.Info().orientation, 0);
    }
    IsImage turned;
    ASSERT_TRUE(Decode(WithExif({i.Short(0x112, 6)}), turned));
    EXPECT_EQ(turned.Info().orientation, 6);
    EXPECT_LE(LargestError(turned, Picture()), 8) << "a load turns nothing";
    ASSERT_TRUE(Decode(JpegFile(Picture()), turned));
    EXPECT_EQ(turned.Info().orientation, 0) << "of the next picture";
}

TEST(JpegExif, IsReadWithoutThePicture) {
    const ExifBuilder i(false);
    const Bytes prefix = {1, 2, 3};
    Bytes file = WithExif({i.Text(0x10F, "Maker"), i.Long(0x201, 50), i.Long(0x202, 1)});
    file.insert(file.begin(), prefix.begin(), prefix.end());
    CxMemFile stream(file.data(), static_cast<uint32_t>(file.size()));
    stream.Seek(3, 0);
    CxImageJPG image;
    EXPECT_EQ(image.ThumbnailPosition(), -1);
    EXPECT_STREQ(image.ExifErrorText(), "");
    ASSERT_TRUE(image.ReadExif(&stream));
    EXPECT_EQ(stream.Tell(), 3);
    EXPECT_TRUE(image.IsEmpty());
    EXPECT_TRUE(image.HasExif());
    EXPECT_STREQ(image.CameraMake(), "Maker");
    EXPECT_EQ(image.FrameWidth(), 16);
    EXPECT_EQ(image.Process(), 0xC0);
    // Two bytes of the marker and two of the length precede "Exif" and its two zeros.
    EXPECT_EQ(image.ThumbnailPosition(), 3 + 2 + 4 + 6 + 50);
    EXPECT_EQ(*image.ThumbnailData(), file[3 + 2 + 4 + 6 + 50]);
    EXPECT_FALSE(image.ReadExif(nullptr));
    EXPECT_STREQ(image.CameraMake(), "");
}

TEST(JpegExif, DamageDoesNotTouchThePicture) {
    const std::vector<Bytes> tables(20, Section(0xE2, {'x'}));
    const std::vector<std::vector<Bytes>> cases = {
        tables, {Section(0xE1, {'E', 'x', 'i', 'f', 0, 0})}, {Bytes(30, 0xFF)}};
    for (const std::vector<Bytes>& sections : cases) {
        Bytes file = WithSections(JpegFile(Picture()), sections);
        CxMemFile stream(file.data(), static_cast<uint32_t>(file.size()));
        CxImageJPG image;
        EXPECT_TRUE(image.DecodeJpeg(&stream));
        EXPECT_STRNE(image.ExifErrorText(), "");
        EXPECT_FALSE(image.HasExif());
        EXPECT_STREQ(image.LastErrorText(), "");
    }
}

TEST(JpegOptions, ReachTheLibrary) {
    const Bytes file = JpegFile(Picture());
    const struct {
        uint32_t options;
        uint8_t colors;
        uint32_t bitCount, mostEntries;
    } cases[] = {
        {0, 90, 24, 0},
        {kJpegGrayscale, 90, 8, 256},
        {kJpegQuantize, 16, 8, 16},
        {kJpegQuantize | kJpegOnePass, 90, 8, 90},
        {kJpegQuantize | kJpegDither, 255, 8, 255},
        {kJpegQuantize | kJpegGrayscale, 8, 8, 8},
        {kJpegNoSmoothing, 90, 24, 0},
    };
    for (const auto& c : cases) {
        IsImage image;
        image.SetFormatValue(kFormatJpeg, c.options);
        image.SetJpegQuality(c.colors);
        ASSERT_TRUE(Decode(file, image)) << c.options << ": " << image.LastErrorText();
        EXPECT_EQ(image.BitCount(), c.bitCount) << c.options;
        EXPECT_LE(image.PaletteEntries(), c.mostEntries) << c.options;
        EXPECT_EQ(image.RowPointer(0), image.Dib() + 40 + image.PaletteBytes());
        EXPECT_EQ(image.Info().bits, image.RowPointer(0));
        // About the right brightness, whatever the number of colours.
        const RGBQUAD corner = image.GetPixelColor(15, 0);
        EXPECT_NEAR(corner.rgbGreen, 15 * 5 + 15 * 3 + 50, 50) << c.options;
        EXPECT_EQ(corner.rgbRed == corner.rgbBlue, (c.options & kJpegGrayscale) != 0) << c.options;
    }
    IsImage few;
    few.SetFormatValue(kFormatJpeg, kJpegQuantize);
    few.SetJpegQuality(7);
    EXPECT_FALSE(Decode(file, few)) << "the library's smallest palette has 8 colours";
    EXPECT_STRNE(few.LastErrorText(), "");
}

TEST(JpegOptions, QuantizedCmykHasThePicturesColors) {
    Picture picture;
    picture.components = 4;
    picture.sample = 128;
    IsImage image;
    image.SetFormatValue(kFormatJpeg, kJpegQuantize | kJpegOnePass);
    image.SetJpegQuality(255);
    ASSERT_TRUE(Decode(JpegFile(picture), image)) << image.LastErrorText();
    EXPECT_EQ(image.BitCount(), 8u);
    double sum = 0;
    for (uint32_t y = 0; y < 16; ++y) {
        for (uint32_t x = 0; x < 16; ++x)
            sum += image.GetPixelColor(x, y).rgbRed;
    }
    EXPECT_NEAR(sum / 256, 64, 20) << "half of half the light";
}

TEST(JpegOptions, TheScaleMakesPicturesSmaller) {
    const struct {
        uint8_t scale;
        uint32_t side;
    } cases[] = {{0, 16}, {1, 16}, {2, 8}, {4, 4}, {8, 2}};
    for (const auto& c : cases) {
        IsImage image;
        image.SetJpegScale(c.scale);
        ASSERT_TRUE(Decode(JpegFile(Picture()), image));
        EXPECT_EQ(image.Width(), c.side);
        EXPECT_EQ(image.Height(), c.side);
    }
}

TEST(JpegOptions, DitherModesBeyondTheLibrarysAreLeftToIt) {
    for (const uint32_t mode : {0u, 1u, 2u, 3u, 0xFFFFFFFFu}) {
        Bytes file = JpegFile(Picture());
        CxMemFile stream(file.data(), static_cast<uint32_t>(file.size()));
        CxImageJPG image;
        image.SetFormatValue(kFormatJpeg, kJpegQuantize | kJpegDither | kJpegOnePass);
        image.SetDitherMode(mode);
        EXPECT_TRUE(image.DecodeJpeg(&stream)) << mode;
        EXPECT_EQ(image.DitherMode(), mode);
    }
}

TEST(JpegLimits, RefusalsNameTheLimit) {
    const LimitsGuard guard;
    const auto scans = [](int more) {
        Picture picture;
        picture.scansMore = more;
        return JpegFile(picture);
    };
    const Bytes plain = JpegFile(Picture());
    const Bytes progressive = JpegFile(With([](Picture& p) { p.progressive = true; }));
    DecodeLimits limits;
    const struct {
        const char* limit;
        Bytes accepted, refused;
        DecodeLimits limits;
    } cases[] = {
        {"maxPixels", plain, JpegFile(With([](Picture& p) { p.width = 17; })),
         [=]() mutable {
             limits.maxPixels = 256;
             return limits;
         }()},
        {"maxBlockBytes", plain, JpegFile(With([](Picture& p) { p.height = 17; })),
         [=]() mutable {
             limits.maxBlockBytes = 40 + 768;
             return limits;
         }()},
        {"maxJpegScans", scans(4), scans(5),
         [=]() mutable {
             limits.maxJpegScans = 5;
             return limits;
         }()},
        {"maxJpegScans", scans(20), scans(50),
         [=]() mutable {
             limits.maxJpegScans = 50;
             return limits;
         }()},
    };
    for (const auto& c : cases) {
        SetDecodeLimits(c.limits);
        IsImage image;
        EXPECT_TRUE(Decode(c.accepted, image)) << image.LastErrorText();
        EXPECT_FALSE(Decode(c.refused, image)) << c.limit;
        EXPECT_NE(strstr(image.LastErrorText(), c.limit), nullptr) << image.LastErrorText();
    }
    // Coefficients: four blocks of 128 bytes in each of three components may be twice the limit.
    // Scaled down, the picture itself is far from it.
    for (const uint64_t bytes : {768u, 767u}) {
        limits.maxBlockBytes = bytes;
        SetDecodeLimits(limits);
        IsImage image;
        image.SetJpegScale(8);
        EXPECT_EQ(Decode(progressive, image), bytes == 768);
        EXPECT_EQ(strstr(image.LastErrorText(), "maxBlockBytes") != nullptr, bytes != 768);
        EXPECT_TRUE(Decode(plain, image)) << "needs no such memory";
    }
}

TEST(JpegLimits, HeadersThatClaimTooMuchAreRefused) {
    const Bytes progressive = JpegFile(With([](Picture& p) { p.progressive = true; }));
    const Bytes baseline = JpegFile(Picture());
    const struct {
        Bytes file;
        uint16_t side;
        const char* error;
    } cases[] = {
        {progressive, 65500, "maxBlockBytes"},
        {baseline, 65500, "2 GiB"},
        {baseline, 23000, "maxPixels"},
        {baseline, 65535, "65500"},
        {progressive, 20000, "JPEG data end long before the picture does"},
    };
    for (const auto& c : cases) {
        IsImage image;
        EXPECT_FALSE(Decode(WithFrameSize(c.file, c.side, c.side), image));
        EXPECT_NE(strstr(image.LastErrorText(), c.error), nullptr) << image.LastErrorText();
    }
}

TEST(JpegLimits, WhatAShortFileDoesNotReachStaysZero) {
    IsImage image;
    ASSERT_TRUE(Decode(WithFrameSize(JpegFile(Picture()), 16000, 16000), image));
    EXPECT_NE(image.GetPixelColor(0, 15999).rgbBlue, 0);
    EXPECT_EQ(image.GetPixelColor(0, 0).rgbBlue, 0) << "not invented by the library";
}

TEST(JpegDamage, EveryCutEndsWell) {
    const ExifBuilder i(false);
    const Bytes exif = Section(0xE1, i.Block({i.Text(0x10F, "Maker"), i.Short(0x112, 6)}));
    for (const bool progressive : {false, true}) {
        Picture picture;
        picture.width = picture.height = 9;
        picture.progressive = progressive;
        const Bytes file = WithSections(JpegFile(picture), {exif});
        size_t firstDecoded = 0;
        for (size_t length = 0; length <= file.size(); ++length) {
            IsImage image;
            const bool decoded =
                Decode(Bytes(file.begin(), file.begin() + static_cast<ptrdiff_t>(length)), image);
            EXPECT_EQ(*image.LastErrorText() == '\0', decoded);
            EXPECT_EQ(image.IsEmpty(), !decoded);
            if (decoded && firstDecoded == 0)
                firstDecoded = length;
            // Cut within the tables of a later scan, a progressive file is refused again.
            EXPECT_TRUE(decoded || progressive || firstDecoded == 0) << length;
        }
        EXPECT_GT(firstDecoded, 0u);
        EXPECT_LT(firstDecoded, file.size()) << "an early end is a warning";
    }
}

TEST(JpegDamage, TheLibrarysMessageIsPassedOn) {
    Bytes noTables = JpegFile(Picture());
    noTables.resize(2);
    const Bytes frame = Section(0xC0, {12, 0, 1, 0, 1, 1, 1, 0x11, 0});
    Append(noTables, frame);
    const struct {
        Bytes file;
        const char* error;
    } cases[] = {
        {{}, "Empty input file"},
        {{'n', 'o', 't', ' ', 'o', 'n', 'e'}, "Not a JPEG file"},
        {noTables, "missing SOS"},
        {WithFrameSize(JpegFile(Picture()), 0, 16), "Empty JPEG image"},
    };
    for (const auto& c : cases) {
        IsImage image;
        EXPECT_FALSE(Decode(c.file, image));
        EXPECT_NE(strstr(image.LastErrorText(), c.error), nullptr) << image.LastErrorText();
    }
    CxImageJPG image;
    EXPECT_FALSE(image.DecodeJpeg(nullptr));
}

TEST(JpegDamage, FlippedBytesAreSurvived) {
    for (const bool progressive : {false, true}) {
        Picture picture;
        picture.progressive = progressive;
        const Bytes file = JpegFile(picture);
        for (size_t at = 0; at < file.size(); ++at) {
            for (const uint8_t flip : {0x01, 0x80, 0xFF}) {
                Bytes damaged = file;
                damaged[at] = static_cast<uint8_t>(damaged[at] ^ flip);
                LimitsGuard guard;
                DecodeLimits limits;
                limits.maxPixels = 1 << 16;
                SetDecodeLimits(limits);
                IsImage image;
                const bool decoded = Decode(damaged, image);
                EXPECT_EQ(decoded, !image.IsEmpty());
            }
        }
    }
}

/// A stream that takes `room` bytes and then fails.
class FullStream : public CxMemFile {
public:
    explicit FullStream(size_t room) : m_room(room) { Open(); }
    size_t Write(const void* data, size_t elementSize, size_t count) override {
        if (elementSize * count > m_room)
            return 0;
        m_room -= elementSize * count;
        return CxMemFile::Write(data, elementSize, count);
    }

private:
    size_t m_room;
};

TEST(JpegDestination, WritesInPiecesAndReportsFailures) {
    Picture picture;
    picture.width = picture.height = 200; // more than one piece of 4096 bytes
    const Bytes file = JpegFile(picture);
    ASSERT_GT(file.size(), 4096u);
    IsImage image;
    EXPECT_TRUE(Decode(file, image));
    for (const size_t room : {size_t{0}, size_t{4096}, file.size() - 1, file.size()}) {
        FullStream stream(room);
        const std::string error = Encode(picture, stream);
        EXPECT_EQ(error.empty(), room == file.size()) << room;
        EXPECT_EQ(error.find("disk space") != std::string::npos, room != file.size()) << error;
    }
}

TEST(JpegSource, FilesAndMemoryGiveTheSame) {
    const std::string path = testing::TempDir() + "tintkit-source.jpg";
    const Bytes data = JpegFile(With([](Picture& p) { p.width = p.height = 300; }));
    {
        CxIOFile file;
        ASSERT_TRUE(file.Open(path.c_str(), "wb"));
        file.Write(data.data(), 1, data.size());
    }
    const IsImage fromFile(path.c_str());
    remove(path.c_str());
    IsImage fromMemory;
    ASSERT_TRUE(Decode(data, fromMemory));
    ASSERT_EQ(fromFile.BlockSize(), fromMemory.BlockSize());
    EXPECT_EQ(memcmp(fromFile.Dib(), fromMemory.Dib(), fromFile.BlockSize()), 0);
}

} // namespace
