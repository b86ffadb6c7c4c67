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
    const auto inMachineOrder = [](auto number) {
        Bytes bytes(sizeof(number));
        memcpy(bytes.data(), &number, sizeof(number));
        return bytes;
    };
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
        {kFloat, inMachineOrder(1.5f), 1.5}, {kDouble, inMachineOrder(-2.25), -2.25}};
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(reader.ConvertAnyFormat(c.value.data(), c.format), c.number) << c.format;
}

TEST_P(ExifOrders, DirectoriesAreFollowed) {
    const ExifBuilder b(GetParam());
    const uint32_t first = 8 + 2 + 12 + 4, second = first + 2 + 2 * 12 + 4;
    const Entry mode = b.Short(0x9207, 5), light = b.Short(0x9208, 3);
    using Parts = std::vector<Bytes>;
    const struct {
        Bytes block;
        int32_t meteringMode, lightSource;
    } cases[] = {
        {b.Block(Parts{b.Directory(8, {b.Long(0x8769, first)}),
                       b.Directory(first, {mode, b.Long(0xA005, second)}),
                       b.Directory(second, {light})}),
         5, 3},
        // One elsewhere is read beside what stands at offset 8, be it a directory or not.
        {b.Block(Parts{b.Directory(8, {mode}), b.Directory(first, {light})}, first), 5, 3},
        {b.Block(Parts{Bytes(18, 0xEE), b.Directory(26, {light})}, 26), 0, 3},
        // Half of the link is read: the first two bytes, which are 0 in big-endian blocks.
        {b.Block(Parts{b.Directory(8, {mode}, first), b.Directory(first, {light})}), 5,
         GetParam() ? 0 : 3},
    };
    for (const auto& c : cases) {
        const Read read(c.block);
        EXPECT_TRUE(read.ok) << read.reader.LastError();
        EXPECT_EQ(read.info.meteringMode, c.meteringMode) << "case " << &c - cases;
        EXPECT_EQ(read.info.lightSource, c.lightSource) << "case " << &c - cases;
    }
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
    const auto sensor = [](auto& i) -> double { return i.ccdWidth; };
    const struct {
        std::vector<Entry> entries;
        double (*field)(const ExifInfo&);
        double value;
        const char* oddity = "";
    } cases[] = {
        {{b.Short(0x112, 8)}, orientation, 8}, {{b.Short(0x112, 1)}, orientation, 1},
        {{b.Short(0x112, 3), b.Short(0x112, 9)}, orientation, 0, "Undefined rotation value"},
        {{b.Short(0x112, 0)}, orientation, 0, "Undefined rotation value"},
        {{b.Short(0x8827, 1)}, speed, 200}, {{b.Short(0x8827, 49)}, speed, 9800}, // codes
        {{b.Short(0x8827, 50)}, speed, 50},
        {{{0x8827, kSignedLong, 1, b.Number(0x80000000, 4)}}, speed, INT32_MIN},
        {{b.Short(0x9209, 4)}, flash, 1}, {{b.Short(0x9209, 16)}, flash, 0}, // 4: return light
        {{b.Rational(0x9201, 3, 1)}, exposure, 0.125},
        {{b.Rational(0x829A, 1, 2), b.Rational(0x9201, 3, 1)}, exposure, 0.5},
        {{b.Rational(0x9202, 4, 1)}, aperture, 4},
        {{b.Rational(0x9205, 2, 1), b.Rational(0x9202, 6, 1)}, aperture, 2},
        {{b.Rational(0x9202, 2000, 1)}, aperture, HUGE_VAL},
        {{b.Short(0x128, 4)}, unit, 0.03937007859349251},
        {{b.Short(0x128, 5)}, unit, 3.937007932108827e-05},
        {{b.Short(0x128, 1)}, unit, 1}, {{b.Short(0x128, 2), b.Short(0x128, 6)}, unit, 1},
        {{{0x11A, kDouble, 0, {}}}, unit, 0}, // a field of no values at the end
        {{b.Long(0xA002, 3000), b.Short(0xA210, 3)}, sensor, 0}, // pixels of no known width
    };
    for (const auto& c : cases) {
        const Read read(b.Block(c.entries));
        EXPECT_TRUE(read.ok);
        EXPECT_STREQ(read.reader.LastError(), c.oddity);
        EXPECT_EQ(c.field(read.info), c.value) << "case " << &c - cases;
    }
    const std::string text(300, 'x');
    const ExifInfo cut = Read(b.Block({b.Text(0x10F, text), b.Text(0x110, text), b.Text(0x9003, text),
                                       b.Text(0x9000, text), b.Text(0x9286, text, kUndefined)})).info;
    const std::vector<size_t> lengths = {strlen(cut.cameraMake), strlen(cut.cameraModel),
                                         strlen(cut.dateTime), strlen(cut.exifVersion),
                                         strlen(cut.comments)};
    EXPECT_EQ(lengths, (std::vector<size_t>{31, 39, 19, 4, 199}));
}

TEST(ExifFields, UserCommentsLoseTheNameOfPlainText) {
    const std::pair<std::string, const char*> cases[] = {
        {"ASCII\0\0\0Hi"s, "Hi"}, {"ASCII\0\0\0\0 Hi"s, "kept"}, {"ASCII\0\0\0\0\0"s, "kept"},
        {"ASCII"s, "kept"}, {"ASCII!"s, "!"}, {"plain text   "s, "plain text"},
        {"text"s + std::string(130, ' '), "text"}, {"     "s, ""}, {"\0\0\0\0\0\0\0\0Hi"s, ""},
        {"UNICODE\0H\0i\0"s, "UNICODE"}};
    for (const auto& [value, comment] : cases)
        EXPECT_STREQ(Read(kIntel.Block({kIntel.Text(0x9286, "kept", kUndefined),
                                        kIntel.Text(0x9286, value, kUndefined)})).info.comments, comment);
}
// clang-format on

TEST(ExifBlocks, DamageIsNamed) {
    const ExifBuilder& b = kIntel;
    const Bytes sound = b.Block({b.Short(0x112, 1), b.Text(0x10F, "A long maker")});
    const auto changed = [&sound](size_t at, uint8_t byte) {
        return imagetest::With(sound, [&](Bytes& block) { block[at] = byte; });
    };
    const uint32_t end = 8 + 2 + 12 + 4; // of a directory of one entry
    const char kOffset[] = "Illegal pointer offset value in EXIF.";
    const char kSize[] = "Illegally sized directory", kLink[] = "Illegal subdirectory link";
    const struct {
        const char* error;
        Bytes block;
    } cases[] = {
        {"Incorrect Exif header", changed(5, 1)},
        {"Invalid Exif alignment marker.", changed(6, 'X')},
        {"Invalid Exif start (1)", changed(8, 43)},
        {kSize, changed(15, 0xFF)}, // entries
        {kSize, b.Block(std::vector<Bytes>{b.Directory(8, {})}, 0xFFFFFFFF)},
        {"Illegal format code in EXIF dir", b.Block({Entry{0x112, 0, 1, {}}})},
        {"Illegal format code in EXIF dir", b.Block({Entry{0x112, 13, 1, {}}})},
        // The last value that fits and the first that does not; a count that wraps in 32 bits; an
        // offset that does.
        {"", b.Block({Entry{0x10F, kAscii, 5, b.Number(end - 5, 4)}})},
        {kOffset, b.Block({Entry{0x10F, kAscii, 5, b.Number(end - 4, 4)}})},
        {kOffset, b.Block({Entry{0x11A, kDouble, 0x20000001, b.Number(8, 4)}})},
        {kOffset, b.Block({Entry{0x10F, kAscii, 0x20, b.Number(0xFFFFFFF0, 4)}})},
        {kSize, b.Block({b.Long(0x8769, end)})},
        {kLink, b.Block({b.Long(0x8769, end + 1)})},
        {kLink, b.Block({b.Long(0xA005, 0xFFFFFFFF)})},
        {kLink, b.Block({b.Short(0x112, 1)}, end + 1)},
        {kLink, Cut(b.Block({b.Short(0x112, 1)}, end + 1), 6 + end - 2)}, // half a link is enough
    };
    for (const auto& c : cases) {
        const Read read(c.block);
        EXPECT_EQ(read.ok, *c.error == '\0') << &c - cases;
        EXPECT_STREQ(read.reader.LastError(), c.error) << &c - cases;
    }
    for (size_t length = 0; length < sound.size(); ++length)
        EXPECT_FALSE(Read(Cut(sound, length)).ok) << length;
}

TEST(ExifBlocks, DepthAndNumberOfDirectoriesAreLimited) {
    const LimitsGuard guard;
    const ExifBuilder& b = kIntel;
    const uint32_t second = 8 + 2 + 2 * 12 + 4;
    const Bytes toItself = b.Block({b.Short(0x112, 1)}, 8);
    const Bytes twoBeside = b.Block(std::vector<Bytes>{
        b.Directory(8, {b.Long(0x8769, second), b.Long(0xA005, second)}), b.Directory(second, {})});
    const char kDepth[] = "EXIF directories exceed the limit maxExifDepth";
    const char kNumber[] = "EXIF directories exceed the limit maxExifDirectories";
    const struct {
        uint32_t depth, directories;
        Bytes block;
        const char* error;
    } cases[] = {{8, 64, toItself, kDepth},
                 {UINT32_MAX, UINT32_MAX, toItself, kDepth}, // whatever the limits say
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
    // The number is that of the file, however many blocks it has.
    const Bytes one = Section(0xE1, b.Block({b.Short(0x112, 6)}));
    EXPECT_TRUE(ReadFile(FileOf({one, one})).reader.Info().isExif);
    EXPECT_FALSE(ReadFile(FileOf({one, one, one})).reader.Info().isExif);
}

TEST(ExifBlocks, ThumbnailsLieInTheBlock) {
    const ExifBuilder& b = kIntel;
    const uint32_t size = 8 + 2 + 2 * 12 + 4; // of the block behind "Exif", two zeros
    const uint32_t cases[][3] = {{size - 4, 4, 4}, {size - 4, 5, 0}, {size, 1, 0},
                                 {8, 0, 0},        {0, 4, 0},        {2, 0xFFFFFFFE, 0}};
    for (const auto& [offset, length, found] : cases) {
        const Read read(b.Block({b.Long(0x201, offset), b.Long(0x202, length)}));
        EXPECT_TRUE(read.ok);
        EXPECT_EQ(read.info.thumbnailSize, found) << offset << ", " << length;
        EXPECT_EQ(read.thumbnailAt, found ? ptrdiff_t{6} + offset : -1);
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
    EXPECT_EQ(info.height << 16 | info.width, 0x1020304);
    EXPECT_EQ(info.isColor, 1);
    EXPECT_EQ(info.process, 0xC2);

    const ReadFile without(file, 0);
    EXPECT_TRUE(without.ok);
    EXPECT_EQ(without.reader.SectionCount(), 3);
    EXPECT_FALSE(without.reader.Info().isExif);
}

TEST(ExifSections, CommentsAreMadePrintableAndShortFramesPassedOver) {
    const auto comment = [](const std::string& text) {
        const Bytes bytes(text.begin(), text.end());
        return std::string(ReadFile(FileOf({Section(0xFE, bytes)})).reader.Info().comments);
    };
    EXPECT_EQ(comment("a\r\nb\rc\td\x80\x01 e"), "a\nb?c\td?? e");
    EXPECT_EQ(comment("a\r"), "a?");
    EXPECT_EQ(comment(std::string(5000, 'x')), std::string(998, 'x'));
    for (size_t length = 0; length < 6; ++length)
        EXPECT_EQ(ReadFile(FileOf({Section(0xC0, Bytes(length, 9))})).reader.Info().height, 0);
    EXPECT_FALSE(ExifReader().ReadSections(nullptr, 1));
}

} // namespace
