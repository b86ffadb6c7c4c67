// SPDX-License-Identifier: MIT
//
// The section and EXIF reader, on files built entry by entry.
#include "image/ExifReader.h"
#include "tests/image/ExifBuilder.h"
#include "tests/image/ImageTesting.h"
#include "tests/image/JpegBuilder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

using namespace exiftest;
using namespace std::string_literals;
using imagetest::Cut;
using imagetest::LimitsGuard;
using jpegtest::Section;
using tint::DecodeLimits;

namespace {

/// A reader over one block, which it cannot read past: the block is exactly as long.
struct Read {
    ExifInfo info;
    ExifReader reader{&info};
    bool ok;
    ptrdiff_t thumbnailAt;

    explicit Read(const Bytes& block) {
        const Bytes exact(block.begin(), block.end());
        ok = reader.ProcessExif(exact.data(), static_cast<uint32_t>(exact.size()));
        thumbnailAt = info.thumbnailData ? info.thumbnailData - exact.data() : -1;
        info.thumbnailData = nullptr; // it pointed into the block
    }
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

const ExifBuilder kIntel(false);

class ExifOrders : public testing::TestWithParam<bool> {};

// clang-format off
TEST_P(ExifOrders, EveryFieldIsFilled) {
    const ExifBuilder b(GetParam());
    const Read read(b.Block({
        b.Text(0x010F, "Maker"), b.Text(0x0110, "Model 1"), b.Short(0x0112, 6),
        b.Rational(0x011A, 300, 2), b.Rational(0x011B, 144, 1), b.Short(0x0128, 2),
        b.Rational(0x829A, 1, 250), b.Rational(0x829D, 28, 10), b.Short(0x8822, 3),
        b.Short(0x8827, 400), b.Text(0x9000, "0221", kUndefined),
        b.Text(0x9003, "2008:05:30 15:56:01\0"s), b.Rational(0x9102, 7, 2),
        b.Rational(0x9203, -3, 2, kSignedRational), b.Rational(0x9204, -1, 3, kSignedRational),
        b.Rational(0x9206, 5, 4), b.Short(0x9207, 5), b.Short(0x9208, 10), b.Short(0x9209, 9),
        b.Rational(0x920A, 135, 1), b.Text(0x9286, "ASCII\0\0\0Hello  "s, kUndefined),
        b.Long(0xA002, 3000), b.Long(0xA003, 4000), b.Rational(0xA20E, 2000, 1),
        b.Rational(0xA20F, 1000, 1), b.Short(0xA210, 3)}));
    ASSERT_TRUE(read.ok) << read.reader.LastError();
    const ExifInfo& i = read.info;
    const std::pair<const char*, const char*> texts[] = {
        {i.cameraMake, "Maker"}, {i.cameraModel, "Model 1"}, {i.exifVersion, "0221"},
        {i.dateTime, "2008:05:30 15:56:01"}, {i.comments, "Hello"}, {read.reader.LastError(), ""}};
    for (const auto& [text, expected] : texts)
        EXPECT_STREQ(text, expected);
    const std::pair<double, double> numbers[] = {
        {i.orientation, 6}, {i.xResolution, 150}, {i.yResolution, 144}, {i.resolutionUnit, 1},
        {i.exposureTime, 0.004f}, {i.apertureFNumber, 2.8f}, {i.exposureProgram, 3},
        {i.isoEquivalent, 400}, {i.compressionLevel, 3}, {i.brightness, -1.5f},
        {i.exposureBias, -1.0f / 3}, {i.subjectDistance, 1.25f}, {i.meteringMode, 5},
        {i.lightSource, 10}, {i.flashUsed, 1}, {i.focalLength, 135}, {i.focalPlaneXRes, 2000},
        {i.focalPlaneYRes, 1000}, {i.focalPlaneUnits, 0.39370078f},
        {i.ccdWidth, 4000 * 0.39370078f / 2000}};
    for (const auto& [number, expected] : numbers)
        EXPECT_FLOAT_EQ(static_cast<float>(number), static_cast<float>(expected));
}
// clang-format on

TEST_P(ExifOrders, ValuesOfEveryFormatAreConverted) {
    const ExifBuilder b(GetParam());
    ExifReader reader;
    reader.SetMotorolaOrder(GetParam());
    const float single = 1.5f;
    const double twice = -2.25;
    Bytes machineFloat(4), machineDouble(8);
    memcpy(machineFloat.data(), &single, 4);
    memcpy(machineDouble.data(), &twice, 8);
    // clang-format off
    const struct {
        int32_t format;
        Bytes value;
        double number;
    } cases[] = {
        {kByte, {200}, 200}, {kAscii, {'7'}, 0}, {kUndefined, {7}, 0}, {0, {7}, 0}, {13, {7}, 0},
        {kShort, b.Number(0xFFFE, 2), 65534}, {kLong, b.Number(0xFFFFFFFE, 4), 4294967294.0},
        {kSignedByte, {0xFE}, -2}, {kSignedShort, b.Number(0xFFFE, 2), -2},
        {kSignedLong, b.Number(0xFFFFFFFE, 4), -2}, {kRational, b.Rational(0, 7, 2).value, 3.5},
        {kRational, b.Rational(0, -7, 2).value, -3.5}, // deliberately signed
        {kRational, b.Rational(0, 7, 0).value, 0},
        {kSignedRational, b.Rational(0, INT32_MIN, -1).value, 2147483648.0},
        {kFloat, machineFloat, 1.5}, {kDouble, machineDouble, -2.25}};
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(reader.ConvertAnyFormat(c.value.data(), c.format), c.number) << c.format;
}

TEST_P(ExifOrders, DirectoriesAreFollowed) {
    const ExifBuilder b(GetParam());
    const uint32_t first = 8 + 2 + 12 + 4, second = first + 2 + 2 * 12 + 4;
    const Read nested(
        b.Block(std::vector<Bytes>{b.Directory(8, {b.Long(0x8769, first)}),
                                   b.Directory(first, {b.Short(0x9207, 5), b.Long(0xA005, second)}),
                                   b.Directory(second, {b.Short(0x9208, 3)})}));
    EXPECT_TRUE(nested.ok) << nested.reader.LastError();
    EXPECT_EQ(nested.info.meteringMode, 5);
    EXPECT_EQ(nested.info.lightSource, 3);

    const Read chained(
        b.Block(std::vector<Bytes>{b.Directory(8, {b.Short(0x9207, 5)}, first),
                                   b.Directory(first, {b.Long(0x0201, second), b.Long(0x0202, 3)}),
                                   {1, 2, 3}}));
    EXPECT_TRUE(chained.ok);
    // Half of the link is read: the first two bytes, which are 0 in big-endian blocks.
    EXPECT_EQ(chained.info.thumbnailSize, GetParam() ? 0u : 3u);
    EXPECT_EQ(chained.thumbnailAt, GetParam() ? -1 : ptrdiff_t{6} + second);
}

INSTANTIATE_TEST_SUITE_P(ByteOrders, ExifOrders, testing::Bool(),
                         [](const auto& test) { return test.param ? "Motorola" : "Intel"; });

// clang-format off
TEST(ExifFields, FollowTheirRules) {
    const ExifBuilder& b = kIntel;
    const auto speed = [](auto& i) -> double { return i.isoEquivalent; };
    const auto exposure = [](auto& i) -> double { return i.exposureTime; };
    const auto aperture = [](auto& i) -> double { return i.apertureFNumber; };
    const auto unit = [](auto& i) -> double { return i.resolutionUnit; };
    const auto orientation = [](auto& i) -> double { return i.orientation; };
    const auto flash = [](auto& i) -> double { return i.flashUsed; };
    const struct {
        std::vector<Entry> entries;
        double (*field)(const ExifInfo&);
        double value;
    } cases[] = {
        {{b.Short(0x112, 8)}, orientation, 8},
        {{b.Short(0x112, 9)}, orientation, 0},
        {{b.Short(0x112, 0)}, orientation, 0},
        {{b.Short(0x8827, 1)}, speed, 200}, // a code
        {{b.Short(0x8827, 49)}, speed, 9800},
        {{b.Short(0x8827, 50)}, speed, 50},
        {{{0x8827, kSignedLong, 1, b.Number(0x80000000, 4)}}, speed, INT32_MIN},
        {{b.Short(0x9209, 4)}, flash, 1}, // return light
        {{b.Short(0x9209, 16)}, flash, 0},
        {{b.Rational(0x9201, 3, 1)}, exposure, 0.125},
        {{b.Rational(0x829A, 1, 2), b.Rational(0x9201, 3, 1)}, exposure, 0.5},
        {{b.Rational(0x9202, 4, 1)}, aperture, 4},
        {{b.Rational(0x9205, 2, 1), b.Rational(0x9202, 6, 1)}, aperture, 2},
        {{b.Rational(0x9202, 2000, 1)}, aperture, HUGE_VAL},
        {{b.Short(0x128, 4)}, unit, 0.03937007859349251},
        {{b.Short(0x128, 5)}, unit, 3.937007932108827e-05},
        {{b.Short(0x128, 1)}, unit, 1},
        {{b.Short(0x128, 2), b.Short(0x128, 6)}, unit, 1},
        {{{0x11A, kDouble, 0, {}}}, unit, 0}, // a field of no values at the end
    };
    for (const auto& c : cases) {
        const Read read(b.Block(c.entries));
        EXPECT_TRUE(read.ok) << read.reader.LastError();
        EXPECT_EQ(c.field(read.info), c.value) << "case " << &c - cases;
    }
    EXPECT_STREQ(Read(b.Block({b.Short(0x112, 9)})).reader.LastError(), "Undefined rotation value");
    const std::string text(300, 'x');
    const ExifInfo cut = Read(b.Block({b.Text(0x10F, text), b.Text(0x110, text), b.Text(0x9003, text),
                                       b.Text(0x9000, text), b.Text(0x9286, text, kUndefined)})).info;
    EXPECT_EQ(strlen(cut.cameraMake), 31u);
    EXPECT_EQ(strlen(cut.cameraModel), 39u);
    EXPECT_EQ(strlen(cut.dateTime), 19u);
    EXPECT_EQ(strlen(cut.exifVersion), 4u);
    EXPECT_EQ(strlen(cut.comments), 199u);
}

TEST(ExifFields, UserCommentsLoseTheNameOfPlainText) {
    const std::pair<std::string, const char*> cases[] = {
        {"ASCII\0\0\0Hi"s, "Hi"}, {"ASCII\0\0\0\0 Hi"s, ""}, {"ASCII\0\0\0\0\0"s, ""}, {"ASCII"s, ""},
        {"ASCII     Hi"s, ""}, {"ASCII!"s, "!"}, {"plain text   "s, "plain text"},
        {"text"s + std::string(130, ' '), "text"}, {std::string(128, ' '), ""}, {"     "s, ""},
        {"\0\0\0\0\0\0\0\0Hi"s, ""}, {"UNICODE\0H\0i\0"s, "UNICODE"}};
    for (const auto& [value, comment] : cases)
        EXPECT_STREQ(Read(kIntel.Block({kIntel.Text(0x9286, value, kUndefined)})).info.comments, comment);
    const Read twice(kIntel.Block({kIntel.Text(0x9286, "first one", kUndefined),
                                   kIntel.Text(0x9286, "ASCII\0\0\0\0\0"s, kUndefined)}));
    EXPECT_STREQ(twice.info.comments, "first one") << "nothing but filling leaves it alone";
}
// clang-format on

TEST(ExifBlocks, DamageIsNamed) {
    const ExifBuilder& b = kIntel;
    Bytes wrongOrder = b.Block({b.Short(0x112, 1)});
    wrongOrder[6] = 'X';
    Bytes wrongMagic = b.Block({b.Short(0x112, 1)});
    wrongMagic[8] = 43;
    Bytes manyEntries = b.Block({b.Short(0x112, 1)});
    manyEntries[14] = manyEntries[15] = 0xFF;
    const uint32_t end = 8 + 2 + 12 + 4; // of a directory of one entry
    const char kOffset[] = "Illegal pointer offset value in EXIF.";
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
        {kOffset, b.Block({Entry{0x10F, kAscii, 5, b.Number(end - 4, 4)}})},
        {kOffset, b.Block({Entry{0x11A, kDouble, 0x20000001, b.Number(8, 4)}})},
        {kOffset, b.Block({Entry{0x10F, kAscii, 0x20, b.Number(0xFFFFFFF0, 4)}})},
        {"Illegal subdirectory link", b.Block({b.Long(0x8769, end + 1)})},
        {"Illegal subdirectory link", b.Block({b.Long(0xA005, 0xFFFFFFFF)})},
        {"Illegal subdirectory link", b.Block({b.Short(0x112, 1)}, end + 1)},
        {"Illegally sized directory", b.Block({b.Long(0x8769, end)})},
        {"Illegally sized directory", b.Block(std::vector<Bytes>{b.Directory(8, {})}, 0xFFFFFFFF)},
    };
    for (const auto& c : cases) {
        const Read read(c.block);
        EXPECT_FALSE(read.ok) << c.error;
        EXPECT_STREQ(read.reader.LastError(), c.error);
    }
    // The last value that fits.
    EXPECT_TRUE(Read(b.Block({Entry{0x10F, kAscii, 5, b.Number(end - 5, 4)}})).ok);
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

TEST(ExifBlocks, DepthAndNumberOfDirectoriesAreLimited) {
    const LimitsGuard guard;
    const ExifBuilder& b = kIntel;
    const uint32_t inner = 8 + 2 + 12 + 4, second = inner + 12;
    const Bytes loop = b.Block(std::vector<Bytes>{b.Directory(8, {b.Long(0x8769, inner)}),
                                                  b.Directory(inner, {b.Long(0x8769, inner)})});
    const Bytes link = b.Block({b.Short(0x112, 1)}, 8);
    const Bytes twoBeside = b.Block(std::vector<Bytes>{
        b.Directory(8, {b.Long(0x8769, second), b.Long(0xA005, second)}), b.Directory(second, {})});
    const char kDepth[] = "EXIF directories exceed the limit maxExifDepth";
    const char kNumber[] = "EXIF directories exceed the limit maxExifDirectories";
    const struct {
        uint32_t depth, directories;
        Bytes block;
        const char* error;
    } cases[] = {{8, 64, loop, kDepth},
                 {8, 64, link, kDepth},
                 {2, 3, twoBeside, ""},
                 {1, 3, twoBeside, kDepth},
                 {2, 2, twoBeside, kNumber}};
    DecodeLimits limits;
    for (const auto& c : cases) {
        limits.maxExifDepth = c.depth;
        limits.maxExifDirectories = c.directories;
        tint::SetDecodeLimits(limits);
        EXPECT_STREQ(Read(c.block).reader.LastError(), c.error);
    }
    limits.maxExifDepth = limits.maxExifDirectories = UINT32_MAX;
    tint::SetDecodeLimits(limits);
    EXPECT_FALSE(Read(loop).ok) << "whatever the limits say";
    // The number is that of the file, however many blocks it has.
    LimitsGuard::Set(&DecodeLimits::maxExifDirectories, 2);
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
        Append(out, {0xFE, 0, 3, 'c'}); // a comment behind so many fill bytes
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
    for (size_t length = 0; length <= exif.size(); ++length)
        EXPECT_EQ(Read(Cut(exif, length)).ok, length == exif.size()) << length;
    for (size_t length = 0; length < 6; ++length)
        EXPECT_EQ(ReadFile(FileOf({Section(0xC0, Bytes(length, 9))})).reader.Info().height, 0);
    EXPECT_FALSE(ExifReader().ReadSections(nullptr, 1));
}

} // namespace
