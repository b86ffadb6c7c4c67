// SPDX-License-Identifier: MIT
//
// The JPEG codec, on files that the library encodes through our own destination.
#include "image/ImageJPG.h"
#include "tests/image/ExifBuilder.h"
#include "tests/image/ImageTesting.h"
#include "tests/image/JpegBuilder.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace jpegtest;
using namespace tint;
using exiftest::ExifBuilder;
using imagetest::Cut;
using imagetest::LimitsGuard;

namespace {

bool Decode(const Bytes& file, IsImage& image) {
    return imagetest::Decode(file, image, kFormatJpeg);
}

const Picture kPlain;
const Bytes kFile = JpegFile(kPlain);
const Bytes kProgressive = JpegFile(With(kPlain, [](Picture& p) { p.progressive = true; }));
const ExifBuilder kIntel(false);

Bytes WithExif(const std::vector<exiftest::Entry>& entries, const Bytes& file = kFile) {
    return WithSections(file, {Section(0xE1, kIntel.Block(entries))});
}

/// The largest difference of any channel to the samples that were encoded.
int LargestError(const IsImage& image, const Picture& picture) {
    int largest = 0;
    for (uint32_t i = 0; i < picture.width * picture.height; ++i) {
        const uint32_t x = i % picture.width, y = i / picture.width;
        const RGBQUAD color = image.GetPixelColor(x, picture.height - 1 - y);
        const uint8_t channels[] = {color.rgbRed, color.rgbGreen, color.rgbBlue};
        for (int c = 0; c < 3; ++c) {
            int expected = SampleAt(picture, x, y, picture.components == 1 ? 0 : c);
            if (picture.components == 4)
                expected = expected * SampleAt(picture, x, y, 3) / 255;
            largest = std::max(largest, std::abs(channels[c] - expected));
        }
    }
    return largest;
}

TEST(JpegForms, ComeOutRight) {
    const auto made = [](int components, auto change) {
        return With(Picture(), [&](Picture& picture) {
            picture.components = components;
            change(picture);
        });
    };
    const struct {
        const char* name;
        Picture picture;
        int tolerance; ///< per channel; what is lost where chroma has fewer samples is more
    } cases[] = {
        {"one pixel", made(3, [](auto& p) { p.width = p.height = 1; }), 8},
        {"odd width", made(3, [](auto& p) { p.width = 13; }), 8},
        {"subsampled", made(3, [](auto& p) { p.sampling = 2; }), 12},
        {"progressive", made(3, [](auto& p) { p.progressive = true; }), 8},
        {"arithmetic", made(3, [](auto& p) { p.arithmetic = true; }), 8},
        {"both", made(3, [](auto& p) { p.arithmetic = p.progressive = true; }), 8},
        {"a scan per component", made(3, [](auto& p) { p.separate = true; }), 8},
        {"restarts", made(3, [](auto& p) { p.restartRows = 1, p.height = 24; }), 8},
        {"grey", made(1, [](auto&) {}), 4},
        {"grey, progressive", made(1, [](auto& p) { p.progressive = true, p.width = 9; }), 4},
        {"CMYK", made(4, [](auto&) {}), 8},
        {"YCCK", made(4, [](auto& p) { p.ycck = true; }), 8},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const bool grey = c.picture.components == 1;
        IsImage image;
        ASSERT_TRUE(Decode(JpegFile(c.picture), image)) << image.LastErrorText();
        EXPECT_EQ(image.Width(), c.picture.width);
        EXPECT_EQ(image.Height(), c.picture.height);
        EXPECT_EQ(image.BitCount(), grey ? 8u : 24u);
        EXPECT_EQ(image.PaletteEntries(), grey ? 256u : 0u);
        EXPECT_LE(LargestError(image, c.picture), c.tolerance);
    }
    IsImage image;
    ASSERT_TRUE(Decode(JpegFile(made(2, [](auto& p) { p.sample = 100; })), image));
    EXPECT_EQ(image.GetPixelColor(0, 0).rgbRed, 100) << "two components are stored as they are";
}

TEST(JpegResolution, IsThatOfExifElseTheDensity) {
    const auto density = [](int unit, uint16_t x, uint16_t y) {
        Picture picture;
        picture.densityUnit = unit;
        picture.xDensity = x;
        picture.yDensity = y;
        return JpegFile(picture);
    };
    const ExifBuilder& i = kIntel;
    const struct {
        Bytes file;
        uint32_t xDpi, yDpi;
    } cases[] = {
        {kFile, 1, 1}, // no header
        {density(0, 1, 2), 1, 2},
        {density(0, 0, 0), 96, 96},
        {density(1, 300, 72), 300, 72},
        {density(2, 40, 118), 1, 3}, // the formula for metres, deliberately
        {WithExif({i.Rational(0x11A, 300, 1), i.Rational(0x11B, 72, 1), i.Short(0x128, 2)}), 300,
         72},
        {WithExif({i.Rational(0x11A, 118, 1), i.Rational(0x11B, 59, 1), i.Short(0x128, 3)}), 299,
         149},
        {WithExif({i.Rational(0x11A, 300, 1), i.Short(0x128, 2)}), 300, 1},
        {WithExif({i.Rational(0x11A, 300, 1), i.Rational(0x11B, 72, 1)}), 1, 1}, // no unit
        {WithExif({i.Rational(0x11A, -300, 1), i.Rational(0x11B, 1, 3), i.Short(0x128, 2)}), 96,
         96},
        {WithExif({i.Rational(0x11A, INT32_MAX, 1), i.Short(0x128, 5)}), 96, 1},
    };
    for (const auto& c : cases) {
        IsImage image;
        ASSERT_TRUE(Decode(c.file, image));
        EXPECT_EQ(image.Info().xDpi, c.xDpi) << &c - cases;
        EXPECT_EQ(image.Info().yDpi, c.yDpi) << &c - cases;
    }
}

TEST(JpegExif, IsReadWithoutThePicture) {
    Bytes file = {1, 2, 3};
    Append(file, WithExif({kIntel.Text(0x10F, "Maker"), kIntel.Short(0x112, 6),
                           kIntel.Long(0x201, 50), kIntel.Long(0x202, 1)}));
    CxMemFile stream(file.data(), static_cast<uint32_t>(file.size()));
    stream.Seek(3, 0);
    CxImageJPG image;
    EXPECT_EQ(image.ThumbnailPosition(), -1);
    EXPECT_STREQ(image.ExifErrorText(), "");
    ASSERT_TRUE(image.ReadExif(&stream));
    EXPECT_EQ(stream.Tell(), 3);
    EXPECT_TRUE(image.IsEmpty());
    EXPECT_STREQ(image.CameraMake(), "Maker");
    EXPECT_EQ(image.FrameWidth(), 16);
    EXPECT_EQ(image.Process(), 0xC0);
    // Two bytes of the marker and two of the length precede "Exif" and its two zeros.
    EXPECT_EQ(image.ThumbnailPosition(), 3 + 2 + 4 + 6 + 50);
    EXPECT_EQ(*image.ThumbnailData(), file[3 + 2 + 4 + 6 + 50]);
    ASSERT_TRUE(image.DecodeJpeg(&stream));
    EXPECT_EQ(image.Info().orientation, 6);
    EXPECT_LE(LargestError(image, kPlain), 8) << "a load turns nothing";
    EXPECT_FALSE(image.ReadExif(nullptr));
    EXPECT_STREQ(image.CameraMake(), "");

    // Damage does not touch the picture.
    for (const std::vector<Bytes>& sections :
         {std::vector<Bytes>(20, Section(0xE2, {'x'})),
          {Section(0xE1, kIntel.Block({kIntel.Short(0x112, 6), {0, 0, 0, {}}}))},
          {Bytes(30, 0xFF)}}) {
        file = WithSections(kFile, sections);
        CxMemFile damaged(file.data(), static_cast<uint32_t>(file.size()));
        EXPECT_TRUE(image.DecodeJpeg(&damaged));
        EXPECT_STRNE(image.ExifErrorText(), "");
        EXPECT_FALSE(image.HasExif());
        EXPECT_EQ(image.Info().orientation, 0) << "of the picture before";
        EXPECT_STREQ(image.LastErrorText(), "");
    }
}

TEST(JpegOptions, ReachTheLibrary) {
    const struct {
        uint32_t options;
        uint8_t colors, scale;
        uint32_t bitCount, mostEntries;
    } cases[] = {
        {kJpegGrayscale, 90, 2, 8, 256},
        {kJpegQuantize, 16, 1, 8, 16},
        {kJpegQuantize | kJpegOnePass, 90, 1, 8, 90},
        {kJpegQuantize | kJpegDither, 255, 1, 8, 255},
        {kJpegQuantize | kJpegGrayscale, 8, 1, 8, 8},
        {kJpegNoSmoothing, 90, 4, 24, 0},
        {0, 90, 0, 24, 0}, // a scale of none
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.options);
        IsImage image;
        image.SetFormatValue(kFormatJpeg, c.options);
        image.SetJpegQuality(c.colors);
        image.SetJpegScale(c.scale);
        ASSERT_TRUE(Decode(kFile, image)) << image.LastErrorText();
        EXPECT_EQ(image.Width(), 16u / std::max<unsigned>(c.scale, 1));
        EXPECT_EQ(image.BitCount(), c.bitCount);
        EXPECT_LE(image.PaletteEntries(), c.mostEntries);
        EXPECT_EQ(image.RowPointer(0), image.Dib() + 40 + image.PaletteBytes());
        EXPECT_EQ(image.Info().bits, image.RowPointer(0));
        // About the right brightness, whatever the number of colours.
        const RGBQUAD corner = image.GetPixelColor(image.Width() - 1, 0);
        EXPECT_NEAR(corner.rgbGreen, 15 * 5 + 15 * 3 + 50, 50);
        EXPECT_EQ(corner.rgbRed == corner.rgbBlue, (c.options & kJpegGrayscale) != 0);
    }
    IsImage image;
    image.SetFormatValue(kFormatJpeg, kJpegQuantize | kJpegOnePass);
    image.SetJpegQuality(7);
    EXPECT_FALSE(Decode(kFile, image)) << "the library's smallest palette has 8 colours";
    image.SetJpegQuality(255);
    ASSERT_TRUE(Decode(JpegFile(With(kPlain, [](Picture& p) { p.components = 4, p.sample = 128; })),
                       image));
    EXPECT_NEAR(image.GetPixelColor(3, 3).rgbRed, 64, 45) << "CMYK: half of half the light";
    for (const uint32_t mode : {0u, 3u, 0xFFFFFFFFu}) {
        Bytes file = kFile;
        CxMemFile stream(file.data(), static_cast<uint32_t>(file.size()));
        CxImageJPG dithered;
        dithered.SetFormatValue(kFormatJpeg, kJpegQuantize | kJpegDither | kJpegOnePass);
        dithered.SetDitherMode(mode);
        EXPECT_TRUE(dithered.DecodeJpeg(&stream)) << mode << ": others are left to the library";
    }
}

/// A palette shorter than its depth has room for stays so short, and its pixels can all be set.
TEST(JpegOptions, ShortPalettesArePalettesLikeAnyOther) {
    IsImage image, resized;
    image.SetFormatValue(kFormatJpeg, kJpegQuantize);
    image.SetJpegQuality(11);
    ASSERT_TRUE(Decode(kFile, image));
    ASSERT_EQ(image.PaletteEntries(), 11u);
    for (const uint8_t index : {10, 5, 0}) {
        EXPECT_TRUE(image.SetPixelIndex(0, 0, index));
        EXPECT_EQ(image.GetPixelIndex(0, 0), index);
    }
    EXPECT_FALSE(image.SetPixelIndex(0, 0, 11));
    ASSERT_TRUE(image.Resample(31, 7, 0, 0, &resized));
    EXPECT_EQ(resized.PaletteEntries(), 11u);
    EXPECT_EQ(resized.Info().bits, resized.RowPointer(0));
    EXPECT_EQ(memcmp(resized.Palette(), image.Palette(), 44), 0);
    EXPECT_EQ(resized.GetPixelIndex(30, 6), image.GetPixelIndex(15, 15));
}

TEST(JpegLimits, RefusalsNameTheLimit) {
    const auto scans = [](int more) {
        return JpegFile(With(kPlain, [more](Picture& p) { p.scansMore = more; }));
    };
    const auto claiming = [](const Bytes& file, uint16_t side) {
        return WithFrameSize(file, side, side);
    };
    const DecodeLimits whole;
    const DecodeLimits fiveScans = With(whole, [](auto& limits) { limits.maxJpegScans = 5; });
    // Coefficients: four blocks of 128 bytes in each of three components may be twice the limit.
    // Scaled down, the picture itself is far from it.
    const DecodeLimits just = With(whole, [](auto& limits) { limits.maxBlockBytes = 768; });
    const DecodeLimits tooFew = With(whole, [](auto& limits) { limits.maxBlockBytes = 767; });
    const struct {
        DecodeLimits limits;
        uint8_t scale;
        Bytes file;
        const char* error;
    } cases[] = {{fiveScans, 1, scans(4), ""},
                 {fiveScans, 1, scans(5), "maxJpegScans"},
                 {just, 8, kProgressive, ""},
                 {tooFew, 8, kProgressive, "maxBlockBytes"},
                 {tooFew, 8, kFile, ""}, // needs no such memory
                 {whole, 1, claiming(kProgressive, 65500), "maxBlockBytes"},
                 {whole, 1, claiming(kFile, 23000), "maxPixels"},
                 {whole, 1, claiming(kFile, 65535), "65500"},
                 {whole, 1, claiming(kFile, 0), "Empty JPEG image"},
                 {whole, 1, claiming(kProgressive, 20000), "JPEG data end long before"}};
    const LimitsGuard guard;
    for (const auto& c : cases) {
        SetDecodeLimits(c.limits);
        IsImage image;
        image.SetJpegScale(c.scale);
        EXPECT_EQ(Decode(c.file, image), *c.error == '\0');
        EXPECT_NE(strstr(image.LastErrorText(), c.error), nullptr) << image.LastErrorText();
    }
    SetDecodeLimits({});
    IsImage image;
    ASSERT_TRUE(Decode(WithFrameSize(kFile, 16000, 16000), image));
    EXPECT_NE(image.GetPixelColor(0, 15999).rgbBlue, 0);
    EXPECT_EQ(image.GetPixelColor(0, 0).rgbBlue, 0) << "not invented by the library";
}

TEST(JpegDamage, AnEarlyEndIsAWarningAndMessagesArePassedOn) {
    IsImage cut;
    EXPECT_TRUE(Decode(Cut(kFile, kFile.size() - 10), cut));
    EXPECT_STREQ(cut.LastErrorText(), "");
    EXPECT_FALSE(Decode(Cut(kFile, 100), cut));
    Bytes noTables = Cut(kFile, 2);
    Append(noTables, Section(0xC0, {12, 0, 1, 0, 1, 1, 1, 0x11, 0}));
    const std::pair<Bytes, const char*> messages[] = {
        {{}, "Empty input file"}, {Bytes(7, 'n'), "Not a JPEG file"}, {noTables, "missing SOS"}};
    for (const auto& [file, message] : messages) {
        IsImage image;
        EXPECT_FALSE(Decode(file, image));
        EXPECT_NE(strstr(image.LastErrorText(), message), nullptr) << image.LastErrorText();
    }
    EXPECT_FALSE(CxImageJPG().DecodeJpeg(nullptr));
}

TEST(JpegStreams, WorkInPiecesAndReportFailures) {
    /// A stream that takes `room` bytes and then fails.
    struct FullStream : CxMemFile {
        size_t room;
        size_t Write(const void* data, size_t elementSize, size_t count) override {
            if (elementSize * count > room)
                return 0;
            room -= elementSize * count;
            return CxMemFile::Write(data, elementSize, count);
        }
    };
    Picture picture;
    picture.width = picture.height = 300; // more than one piece of 4096 bytes
    const Bytes file = JpegFile(picture);
    ASSERT_GT(file.size(), 4096u);
    for (const size_t room : {size_t{0}, size_t{4096}, file.size() - 1, file.size()}) {
        FullStream stream;
        stream.Open();
        stream.room = room;
        const std::string error = Encode(picture, stream);
        EXPECT_EQ(error.empty(), room == file.size()) << room;
        EXPECT_EQ(error.find("disk space") != std::string::npos, room != file.size()) << error;
    }
    IsImage image;
    ASSERT_TRUE(Decode(file, image));
    EXPECT_LE(LargestError(image, picture), 60) << "over the ends of the pieces";
}

} // namespace
