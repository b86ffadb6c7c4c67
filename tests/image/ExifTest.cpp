// SPDX-License-Identifier: MIT
//
// The section and EXIF reader, on files built entry by entry.
#include "image/CxMemFile.h"
#include "image/ExifReader.h"
#include "tests/image/ExifBuilder.h"
#include "tests/image/ImageTesting.h"
#include "tests/image/JpegBuilder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

using namespace exiftest;
using imagetest::LimitsGuard;
using jpegtest::Section;

namespace {

/// A reader over one block, which it cannot read past: the block is exactly as long.
struct Read {
    ExifInfo info;
    ExifReader reader{&info};
    bool ok;

    explicit Read(const Bytes& block) {
        const Bytes exact(block.begin(), block.end());
        ok = reader.ProcessExif(exact.data(), static_cast<uint32_t>(exact.size()));
        // The thumbnail pointed into the block.
        thumbnailAt = info.thumbnailData ? info.thumbnailData - exact.data() : -1;
        info.thumbnailData = nullptr;
    }
    ptrdiff_t thumbnailAt;
};

/// A JPEG file's marker sections, up to an empty scan header.
Bytes FileOf(const std::vector<Bytes>& sections) {
    return jpegtest::WithSections({0xFF, 0xD8, 0xFF, 0xDA, 0, 2, 1, 2, 3}, sections);
}

struct ReadFile {
    Bytes file;
    ExifReader reader;
    bool ok;

    explicit ReadFile(const Bytes& data, uint32_t mode = ExifReader::kReadMetadata)
        : file(data.begin(), data.end()) {
        CxMemFile stream(file.data(), static_cast<uint32_t>(file.size()));
        ok = reader.ReadSections(&stream, mode);
    }
};

class ExifOrders : public testing::TestWithParam<bool> {};

TEST_P(ExifOrders, EveryFieldIsFilled) {
    const ExifBuilder b(GetParam());
    const Bytes block = b.Block({
        b.Text(0x010F, "Maker"),
        b.Text(0x0110, "Model 1"),
        b.Short(0x0112, 6),
        b.Rational(0x011A, 300, 2),
        b.Rational(0x011B, 144, 1),
        b.Short(0x0128, 2),
        b.Rational(0x829A, 1, 250),
        b.Rational(0x829D, 28, 10),
        b.Short(0x8822, 3),
        b.Short(0x8827, 400),
        b.Text(0x9000, "0221", kUndefined),
        b.Text(0x9003, std::string("2008:05:30 15:56:01") + '\0'),
        b.Rational(0x9102, 7, 2),
        b.Rational(0x9203, -3, 2, kSignedRational),
        b.Rational(0x9204, -1, 3, kSignedRational),
        b.Rational(0x9206, 5, 4),
        b.Short(0x9207, 5),
        b.Short(0x9208, 10),
        b.Short(0x9209, 0x09),
        b.Rational(0x920A, 135, 1),
        b.Text(0x9286, std::string("ASCII\0\0\0Hello  ", 15), kUndefined),
        b.Long(0xA002, 3000),
        b.Long(0xA003, 4000),
        b.Rational(0xA20E, 2000, 1),
        b.Rational(0xA20F, 1000, 1),
        b.Short(0xA210, 3),
    });
    const Read read(block);
    ASSERT_TRUE(read.ok) << read.reader.LastError();
    const ExifInfo& info = read.info;
    EXPECT_STREQ(info.cameraMake, "Maker");
    EXPECT_STREQ(info.cameraModel, "Model 1");
    EXPECT_EQ(info.orientation, 6);
    EXPECT_FLOAT_EQ(info.xResolution, 150);
    EXPECT_FLOAT_EQ(info.yResolution, 144);
    EXPECT_FLOAT_EQ(info.resolutionUnit, 1);
    EXPECT_FLOAT_EQ(info.exposureTime, 0.004f);
    EXPECT_FLOAT_EQ(info.apertureFNumber, 2.8f);
    EXPECT_EQ(info.exposureProgram, 3);
    EXPECT_EQ(info.isoEquivalent, 400);
    EXPECT_STREQ(info.exifVersion, "0221");
    EXPECT_STREQ(info.dateTime, "2008:05:30 15:56:01");
    EXPECT_EQ(info.compressionLevel, 3);
    EXPECT_FLOAT_EQ(info.brightness, -1.5f);
    EXPECT_FLOAT_EQ(info.exposureBias, -1.0f / 3);
    EXPECT_FLOAT_EQ(info.subjectDistance, 1.25f);
    EXPECT_EQ(info.meteringMode, 5);
    EXPECT_EQ(info.lightSource, 10);
    EXPECT_EQ(info.flashUsed, 1);
    EXPECT_FLOAT_EQ(info.focalLength, 135);
    EXPECT_STREQ(info.comments, "Hello");
    EXPECT_FLOAT_EQ(info.focalPlaneXRes, 2000);
    EXPECT_FLOAT_EQ(info.focalPlaneYRes, 1000);
    EXPECT_FLOAT_EQ(info.focalPlaneUnits, 0.39370078f);
    EXPECT_FLOAT_EQ(info.ccdWidth, 4000 * 0.39370078f / 2000);
    EXPECT_STREQ(read.reader.LastError(), "");
}

TEST_P(ExifOrders, ValuesOfEveryFormatAreConverted) {
    const ExifBuilder b(GetParam());
    ExifReader reader;
    reader.SetMotorolaOrder(GetParam());
    const float single = 1.5f;
    const double twice = -2.25;
    Bytes machineFloat(4), machineDouble(8);
    memcpy(machineFloat.data(), &single, 4);
    memcpy(machineDouble.data(), &twice, 8);
    const struct {
        int32_t format;
        Bytes value;
        double number;
    } cases[] = {
        {kByte, {200}, 200},
        {kAscii, {'7'}, 0},
        {kShort, b.Number(0xFFFE, 2), 65534},
        {kLong, b.Number(0xFFFFFFFE, 4), 4294967294.0},
        {kRational, b.Rational(0, 7, 2).value, 3.5},
        {kRational, b.Rational(0, -7, 2).value, -3.5}, // deliberately signed
        {kRational, b.Rational(0, 7, 0).value, 0},
        {kSignedByte, {0xFE}, -2},
        {kUndefined, {7}, 0},
        {kSignedShort, b.Number(0xFFFE, 2), -2},
        {kSignedLong, b.Number(0xFFFFFFFE, 4), -2},
        {kSignedRational, b.Rational(0, INT32_MIN, -1).value, 2147483648.0},
        {kFloat, machineFloat, 1.5},
        {kDouble, machineDouble, -2.25},
        {0, {7}, 0},
        {13, {7}, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(reader.ConvertAnyFormat(c.value.data(), c.format), c.number) << c.format;
    const Bytes number = {0x12, 0x34, 0x56, 0x78};
    EXPECT_EQ(reader.Get16u(number.data()), GetParam() ? 0x1234 : 0x3412);
    EXPECT_EQ(reader.Get32u(number.data()), GetParam() ? 0x12345678u : 0x78563412u);
    EXPECT_EQ(ExifReader::Get16m(number.data()), 0x1234);
}

TEST_P(ExifOrders, SubDirectoriesAreFollowed) {
    const ExifBuilder b(GetParam());
    const uint32_t first = 8 + 2 + 12 + 4;
    const uint32_t second = first + 2 + 2 * 12 + 4;
    const Bytes block = b.Block(std::vector<Bytes>{
        b.Directory(8, {b.Long(0x8769, first)}),
        b.Directory(first, {b.Short(0x9207, 5), b.Long(0xA005, second)}),
        b.Directory(second, {b.Short(0x9208, 3)}),
    });
    const Read read(block);
    EXPECT_TRUE(read.ok) << read.reader.LastError();
    EXPECT_EQ(read.info.meteringMode, 5);
    EXPECT_EQ(read.info.lightSource, 3);
}

TEST_P(ExifOrders, TheNextDirectoryIsFoundByHalfOfItsLink) {
    const ExifBuilder b(GetParam());
    const uint32_t next = 8 + 2 + 12 + 4;
    const uint32_t data = next + 2 + 2 * 12 + 4;
    Bytes block = b.Block(std::vector<Bytes>{
        b.Directory(8, {b.Short(0x9207, 5)}, next),
        b.Directory(next, {b.Long(0x0201, data), b.Long(0x0202, 3)}),
        {1, 2, 3},
    });
    const Read read(block);
    EXPECT_TRUE(read.ok);
    const bool found = !GetParam(); // the first two bytes are 0 in big-endian blocks
    EXPECT_EQ(read.info.thumbnailSize, found ? 3u : 0u);
    EXPECT_EQ(read.thumbnailAt, found ? ptrdiff_t{6} + data : -1);
}

INSTANTIATE_TEST_SUITE_P(ByteOrders, ExifOrders, testing::Bool(),
                         [](const auto& test) { return test.param ? "Motorola" : "Intel"; });

const ExifBuilder kIntel(false);

TEST(ExifFields, FollowTheirRules) {
    const ExifBuilder& b = kIntel;
    const struct {
        const char* name;
        std::vector<Entry> entries;
        std::function<double(const ExifInfo&)> field;
        double value;
    } cases[] = {
        {"orientation 8", {b.Short(0x112, 8)}, [](auto& i) { return i.orientation; }, 8},
        {"orientation 9", {b.Short(0x112, 9)}, [](auto& i) { return i.orientation; }, 0},
        {"orientation 0", {b.Short(0x112, 0)}, [](auto& i) { return i.orientation; }, 0},
        {"speed code", {b.Short(0x8827, 1)}, [](auto& i) { return i.isoEquivalent; }, 200},
        {"speed 49", {b.Short(0x8827, 49)}, [](auto& i) { return i.isoEquivalent; }, 9800},
        {"speed 50", {b.Short(0x8827, 50)}, [](auto& i) { return i.isoEquivalent; }, 50},
        {"speed of INT32_MIN",
         {{0x8827, kSignedLong, 1, b.Number(0x80000000, 4)}},
         [](auto& i) { return i.isoEquivalent; },
         INT32_MIN},
        {"flash return light", {b.Short(0x9209, 4)}, [](auto& i) { return i.flashUsed; }, 1},
        {"flash off", {b.Short(0x9209, 16)}, [](auto& i) { return i.flashUsed; }, 0},
        {"shutter speed",
         {b.Rational(0x9201, 3, 1)},
         [](auto& i) { return i.exposureTime; },
         0.125},
        {"shutter speed beside exposure time",
         {b.Rational(0x829A, 1, 2), b.Rational(0x9201, 3, 1)},
         [](auto& i) { return i.exposureTime; },
         0.5},
        {"aperture", {b.Rational(0x9202, 4, 1)}, [](auto& i) { return i.apertureFNumber; }, 4},
        {"largest aperture",
         {b.Rational(0x9205, 2, 1), b.Rational(0x9202, 6, 1)},
         [](auto& i) { return i.apertureFNumber; },
         2},
        {"aperture beyond a float",
         {b.Rational(0x9202, 2000, 1)},
         [](auto& i) { return i.apertureFNumber; },
         std::numeric_limits<double>::infinity()},
        {"millimetres",
         {b.Short(0x128, 4)},
         [](auto& i) { return i.resolutionUnit; },
         0.03937007859349251},
        {"micrometres",
         {b.Short(0x128, 5)},
         [](auto& i) { return i.resolutionUnit; },
         3.937007932108827e-05},
        {"no unit stated", {b.Short(0x128, 1)}, [](auto& i) { return i.resolutionUnit; }, 1},
        {"unknown unit",
         {b.Short(0x128, 2), b.Short(0x128, 6)},
         [](auto& i) { return i.resolutionUnit; },
         1},
        {"field of no values at the end",
         {{0x11A, kDouble, 0, {}}},
         [](auto& i) { return i.xResolution; },
         0},
    };
    for (const auto& c : cases) {
        const Read read(b.Block(c.entries));
        EXPECT_TRUE(read.ok) << c.name << ": " << read.reader.LastError();
        EXPECT_EQ(c.field(read.info), c.value) << c.name;
    }
    EXPECT_STREQ(Read(b.Block({b.Short(0x112, 9)})).reader.LastError(), "Undefined rotation value");
}

TEST(ExifFields, TextsAreCutToTheirFields) {
    const ExifBuilder& b = kIntel;
    const std::string longText(300, 'x');
    const Read read(
        b.Block({b.Text(0x10F, longText), b.Text(0x110, longText), b.Text(0x9003, longText),
                 b.Text(0x9000, longText), b.Text(0x9286, longText, kUndefined)}));
    EXPECT_EQ(strlen(read.info.cameraMake), 31u);
    EXPECT_EQ(strlen(read.info.cameraModel), 39u);
    EXPECT_EQ(strlen(read.info.dateTime), 19u);
    EXPECT_EQ(strlen(read.info.exifVersion), 4u);
    EXPECT_EQ(strlen(read.info.comments), 199u);
}

TEST(ExifFields, UserCommentsLoseTheNameOfPlainText) {
    using namespace std::string_literals;
    const struct {
        std::string value;
        const char* comment;
    } cases[] = {
        {"ASCII\0\0\0Hi"s, "Hi"},
        {"ASCII\0\0\0\0 Hi"s, ""},
        {"ASCII\0\0\0\0\0"s, ""},
        {"ASCII"s, ""},
        {"ASCII     Hi"s, ""},
        {"ASCII!"s, "!"},
        {"plain text   "s, "plain text"},
        {"text"s + std::string(130, ' '), "text"},
        {std::string(128, ' '), ""},
        {"     "s, ""},
        {"\0\0\0\0\0\0\0\0Hi"s, ""},
        {"UNICODE\0H\0i\0"s, "UNICODE"},
    };
    for (const auto& c : cases) {
        const Read read(kIntel.Block({kIntel.Text(0x9286, c.value, kUndefined)}));
        EXPECT_TRUE(read.ok);
        EXPECT_STREQ(read.info.comments, c.comment) << c.value;
    }
    // A comment of nothing but filling leaves an earlier one alone.
    const Read twice(kIntel.Block({kIntel.Text(0x9286, "first one", kUndefined),
                                   kIntel.Text(0x9286, "ASCII\0\0\0\0\0"s, kUndefined)}));
    EXPECT_STREQ(twice.info.comments, "first one");
}

TEST(ExifBlocks, DamageIsNamed) {
    const ExifBuilder& b = kIntel;
    Bytes wrongOrder = b.Block({b.Short(0x112, 1)});
    wrongOrder[6] = 'X';
    Bytes wrongMagic = b.Block({b.Short(0x112, 1)});
    wrongMagic[8] = 43;
    Bytes manyEntries = b.Block({b.Short(0x112, 1)});
    manyEntries[14] = manyEntries[15] = 0xFF;
    const struct {
        const char* error;
        Bytes block;
    } cases[] = {
        {"Incorrect Exif header", {}},
        {"Incorrect Exif header", {'E', 'x', 'i', 'f', 0, 1, 'I', 'I'}},
        {"Invalid Exif alignment marker.", {'E', 'x', 'i', 'f', 0, 0}},
        {"Invalid Exif alignment marker.", wrongOrder},
        {"Invalid Exif start (1)", wrongMagic},
        {"Illegally sized directory", b.Block(std::vector<Bytes>{})},
        {"Illegally sized directory", manyEntries},
        {"Illegal format code in EXIF dir", b.Block({Entry{0x112, 0, 1, {}}})},
        {"Illegal format code in EXIF dir", b.Block({Entry{0x112, 13, 1, {}}})},
        // Ends one byte behind the block; a count that wraps in 32 bits; an offset that does.
        {"Illegal pointer offset value in EXIF.",
         b.Block({Entry{0x10F, kAscii, 5, b.Number(8 + 2 + 12 + 4 - 4, 4)}})},
        {"Illegal pointer offset value in EXIF.",
         b.Block({Entry{0x11A, kDouble, 0x20000001, b.Number(8, 4)}})},
        {"Illegal pointer offset value in EXIF.",
         b.Block({Entry{0x10F, kAscii, 0x20, b.Number(0xFFFFFFF0, 4)}})},
        {"Illegal subdirectory link", b.Block({b.Long(0x8769, 8 + 2 + 12 + 4 + 1)})},
        {"Illegal subdirectory link", b.Block({b.Long(0xA005, 0xFFFFFFFF)})},
        {"Illegal subdirectory link", b.Block({b.Short(0x112, 1)}, 27)},
        {"Illegally sized directory", b.Block({b.Long(0x8769, 8 + 2 + 12 + 4)})},
        {"Illegally sized directory", b.Block(std::vector<Bytes>{b.Directory(8, {})}, 0xFFFFFFFF)},
    };
    for (const auto& c : cases) {
        const Read read(c.block);
        EXPECT_FALSE(read.ok) << c.error;
        EXPECT_STREQ(read.reader.LastError(), c.error);
    }
    // The last value that fits.
    EXPECT_TRUE(Read(b.Block({Entry{0x10F, kAscii, 5, b.Number(8 + 2 + 12 + 4 - 5, 4)}})).ok);
}

TEST(ExifBlocks, TheFirstDirectoryIsReadTwiceWhenItIsElsewhere) {
    const ExifBuilder& b = kIntel;
    const uint32_t real = 8 + 2 + 12 + 4;
    const Read both(b.Block(std::vector<Bytes>{b.Directory(8, {b.Short(0x9207, 5)}),
                                               b.Directory(real, {b.Short(0x112, 3)})},
                            real));
    EXPECT_TRUE(both.ok);
    EXPECT_EQ(both.info.meteringMode, 5);
    EXPECT_EQ(both.info.orientation, 3);

    const Bytes junk(18, 0xEE);
    const Read one(b.Block(std::vector<Bytes>{junk, b.Directory(26, {b.Short(0x112, 3)})}, 26));
    EXPECT_TRUE(one.ok) << "what stands at offset 8 is no directory";
    EXPECT_EQ(one.info.orientation, 3);
}

TEST(ExifBlocks, LoopsEndAtTheLimits) {
    const LimitsGuard guard;
    const ExifBuilder& b = kIntel;
    const uint32_t inner = 8 + 2 + 12 + 4;
    const std::vector<Bytes> loop = {b.Directory(8, {b.Long(0x8769, inner)}),
                                     b.Directory(inner, {b.Long(0x8769, inner)})};
    EXPECT_STREQ(Read(b.Block(loop)).reader.LastError(),
                 "EXIF directories exceed the limit maxExifDepth");
    EXPECT_STREQ(Read(b.Block({b.Short(0x112, 1)}, 8)).reader.LastError(),
                 "EXIF directories exceed the limit maxExifDepth");
    tint::DecodeLimits limits;
    limits.maxExifDepth = limits.maxExifDirectories = UINT32_MAX;
    tint::SetDecodeLimits(limits);
    EXPECT_FALSE(Read(b.Block(loop)).ok) << "whatever the limits say";
}

TEST(ExifBlocks, DepthAndNumberOfDirectoriesAreLimited) {
    const LimitsGuard guard;
    const ExifBuilder& b = kIntel;
    const uint32_t second = 8 + 2 + 2 * 12 + 4;
    const Bytes twoBeside = b.Block(std::vector<Bytes>{
        b.Directory(8, {b.Long(0x8769, second), b.Long(0xA005, second)}), b.Directory(second, {})});
    const struct {
        uint32_t depth, directories;
        const char* error;
    } cases[] = {
        {2, 3, ""},
        {1, 3, "EXIF directories exceed the limit maxExifDepth"},
        {2, 2, "EXIF directories exceed the limit maxExifDirectories"},
    };
    for (const auto& c : cases) {
        tint::DecodeLimits limits;
        limits.maxExifDepth = c.depth;
        limits.maxExifDirectories = c.directories;
        tint::SetDecodeLimits(limits);
        EXPECT_STREQ(Read(twoBeside).reader.LastError(), c.error);
    }
    // The number is that of the file, however many blocks it has.
    tint::DecodeLimits limits;
    limits.maxExifDirectories = 2;
    tint::SetDecodeLimits(limits);
    const Bytes one = Section(0xE1, b.Block({b.Short(0x112, 6)}));
    EXPECT_TRUE(ReadFile(FileOf({one, one})).reader.Info().isExif);
    EXPECT_FALSE(ReadFile(FileOf({one, one, one})).reader.Info().isExif);
}

TEST(ExifBlocks, ThumbnailsLieInTheBlock) {
    const ExifBuilder& b = kIntel;
    const uint32_t size = 8 + 2 + 2 * 12 + 4; // of the block behind "Exif", two zeros
    const struct {
        uint32_t offset, length, found;
    } cases[] = {
        {size - 4, 4, 4},   {size - 4, 5, 0}, {size, 1, 0},
        {8, 0, 0},          {0, 4, 0},        {0xFFFFFFFF, 0xFFFFFFFF, 0},
        {2, 0xFFFFFFFE, 0},
    };
    for (const auto& c : cases) {
        const Read read(b.Block({b.Long(0x201, c.offset), b.Long(0x202, c.length)}));
        EXPECT_TRUE(read.ok);
        EXPECT_EQ(read.info.thumbnailSize, c.found) << c.offset << ", " << c.length;
    }
}

TEST(ExifSections, FailuresAreNamed) {
    const auto fill = [](size_t bytes) {
        Bytes out(bytes, 0xFF);
        ExifBuilder::Append(out, {0xFE, 0, 3, 'c'}); // a comment behind so many fill bytes
        return out;
    };
    const std::vector<Bytes> tables(19, Section(0xDB, {1, 2}));
    std::vector<Bytes> tooMany = tables;
    tooMany.push_back(tables[0]);
    const struct {
        const char* error;
        Bytes file;
        uint32_t mode;
    } cases[] = {
        {"no JPEG file", {}, 1},
        {"no JPEG file", {0xFF, 0xD9}, 1},
        {"invalid marker", {0xFF, 0xD8}, 1},
        {"invalid marker", {0xFF, 0xD8, 0xFF, 0xE1, 0, 1}, 1},
        {"invalid marker", {0xFF, 0xD8, 0xFF, 0xE1, 0}, 1},
        {"Premature end of file?", {0xFF, 0xD8, 0xFF, 0xE1, 0, 4, 0}, 1},
        {"", FileOf({fill(6)}), 1},
        {"too many padding bytes!", FileOf({fill(7)}), 1},
        {"No image in jpeg!", FileOf({Section(0xD9, {})}), 1},
        {"", FileOf(tables), 1},
        {"Too many sections in jpg file", FileOf(tooMany), 1},
        // The image's section would be the one too many.
        {"Too many sections in jpg file", FileOf(tables), 3},
        {"", FileOf({tables.begin(), tables.end() - 1}), 3},
    };
    for (const auto& c : cases) {
        const ReadFile read(c.file, c.mode);
        EXPECT_STREQ(read.reader.LastError(), c.error);
        EXPECT_EQ(read.ok, *c.error == '\0');
    }
}

TEST(ExifSections, OnlySomeAreKept) {
    const Bytes exif = kIntel.Block({kIntel.Short(0x112, 6)});
    const Bytes file = FileOf({Section(0xE0, {'J', 'F', 'I', 'F', 0}), Section(0xE1, exif),
                               Section(0xE1, {'h', 't', 't', 'p'}), Section(0xE1, {'E', 'x'}),
                               Section(0xFE, {'o', 'n', 'e'}), Section(0xFE, {'t', 'w', 'o'}),
                               Section(0xE2, {}), Section(0xC2, {8, 1, 2, 3, 4, 3})});
    const ReadFile read(file, ExifReader::kReadMetadata | ExifReader::kReadImage);
    ASSERT_TRUE(read.ok);
    std::vector<int32_t> types;
    for (int32_t i = 0; i < read.reader.SectionCount(); ++i)
        types.push_back(read.reader.SectionAt(i).type);
    EXPECT_EQ(types, (std::vector<int32_t>{0xE1, 0xFE, 0xE2, 0xC2, 0xDA, 0x123}));
    EXPECT_EQ(read.reader.SectionAt(5).size, 3);
    EXPECT_EQ(read.reader.SectionAt(5).data[2], 3);
    const ExifInfo& info = read.reader.Info();
    EXPECT_TRUE(info.isExif);
    EXPECT_EQ(info.orientation, 6);
    EXPECT_STREQ(info.comments, "one");
    EXPECT_EQ(info.height, 0x102);
    EXPECT_EQ(info.width, 0x304);
    EXPECT_EQ(info.isColor, 1);
    EXPECT_EQ(info.process, 0xC2);

    const ReadFile without(file, 0);
    EXPECT_TRUE(without.ok);
    EXPECT_EQ(without.reader.SectionCount(), 3);
    EXPECT_FALSE(without.reader.Info().isExif);
}

TEST(ExifSections, CommentsAreMadePrintable) {
    const std::string text = "a\r\nb\rc\td\x80\x01"
                             "e";
    const ReadFile read(FileOf({Section(0xFE, Bytes(text.begin(), text.end()))}));
    EXPECT_STREQ(read.reader.Info().comments, "a\nb?c\td??e");
    const ReadFile longest(FileOf({Section(0xFE, Bytes(5000, 'x'))}));
    EXPECT_EQ(strlen(longest.reader.Info().comments), 998u);
    EXPECT_STREQ(ReadFile(FileOf({Section(0xFE, {'a', '\r'})})).reader.Info().comments, "a?");
}

TEST(ExifSections, ShortFramesAndBlocksAreSafe) {
    const Bytes exif = kIntel.Block({kIntel.Short(0x112, 6), kIntel.Text(0x10F, "A long maker")});
    for (size_t length = 0; length <= exif.size(); ++length) {
        const Bytes cut(exif.begin(), exif.begin() + static_cast<ptrdiff_t>(length));
        EXPECT_TRUE(ReadFile(FileOf({Section(0xE1, cut)})).ok) << "the sections are sound";
        const Read direct(cut);
        EXPECT_EQ(direct.ok, length == exif.size()) << length;
    }
    for (size_t length = 0; length < 6; ++length)
        EXPECT_EQ(ReadFile(FileOf({Section(0xC0, Bytes(length, 9))})).reader.Info().height, 0);
    const Bytes file = FileOf({Section(0xE1, exif), Section(0xFE, {'c'})});
    for (size_t length = 0; length < file.size() - 3; ++length)
        EXPECT_FALSE(
            ReadFile(Bytes(file.begin(), file.begin() + static_cast<ptrdiff_t>(length))).ok);
}

TEST(ExifSections, AReaderWithoutARecordHasItsOwn) {
    ExifInfo info;
    EXPECT_FALSE(ExifReader(&info).OwnsInfo());
    EXPECT_TRUE(ExifReader().OwnsInfo());
    EXPECT_FALSE(ExifReader().ReadSections(nullptr, 1));
}

} // namespace
