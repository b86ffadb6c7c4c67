// SPDX-License-Identifier: MIT
#include "fuzz/JpegSeeds.h"

#include "tests/image/ExifBuilder.h"
#include "tests/image/JpegBuilder.h"

using exiftest::ExifBuilder;
using jpegtest::Bytes;
using jpegtest::Picture;
using jpegtest::Section;

namespace {

/// A block with sub-directories, a next one and values inside and outside of their entries.
Bytes ExifBlock(bool motorola) {
    const ExifBuilder b(motorola);
    const std::vector<exiftest::Entry> inner = {
        b.Rational(0x829A, 1, 250), b.Short(0x9209, 9),
        b.Text(0x9286, std::string("ASCII\0\0\0Hi", 10), exiftest::kUndefined)};
    const std::vector<exiftest::Entry> entries = {b.Text(0x10F, "Maker"), b.Short(0x112, 6),
                                                  b.Rational(0x11A, 72, 1), b.Long(0x8769, 0)};
    const uint32_t second = 8 + static_cast<uint32_t>(b.Directory(8, entries).size());
    std::vector<exiftest::Entry> linked = entries;
    linked.back() = b.Long(0x8769, second);
    const uint32_t third = second + static_cast<uint32_t>(b.Directory(second, inner).size());
    return b.Block(std::vector<Bytes>{b.Directory(8, linked, third), b.Directory(second, inner),
                                      b.Directory(third, {b.Long(0x201, 8), b.Long(0x202, 4)})});
}

Picture Make(int components, bool progressive, bool arithmetic, int sampling) {
    Picture picture;
    picture.width = 19;
    picture.height = 11;
    picture.components = components;
    picture.progressive = progressive;
    picture.arithmetic = arithmetic;
    picture.sampling = sampling;
    picture.restartRows = sampling - 1;
    picture.ycck = components == 4 && progressive;
    return picture;
}

const struct {
    const char* name;
    uint8_t options; ///< first byte of a JPEG fuzzer's input
    Picture picture;
} kPictures[] = {
    {"color", 0, Make(3, false, false, 2)},
    {"progressive", 0, Make(3, true, false, 2)},
    {"arithmetic", 0, Make(3, false, true, 1)},
    {"arithmeticprogressive", 0, Make(3, true, true, 1)},
    {"grey", 0, Make(1, false, false, 1)},
    {"cmyk", 0, Make(4, false, false, 1)},
    {"ycck", 0, Make(4, true, false, 2)},
    {"quantized", 0x02, Make(3, false, false, 1)},
    {"quantizedonepass", 0x0A, Make(4, false, false, 1)},
    {"scaledgrey", 0x21, Make(3, true, false, 2)},
    {"unsmoothed", 0x10, Make(3, false, false, 2)},
};

} // namespace

std::vector<Seed> JpegSeeds() {
    std::vector<Seed> seeds;
    const Bytes comment = Section(0xFE, {'t', 'e', 'x', 't', '\r', '\n'});
    for (const auto& seed : kPictures) {
        Bytes file = jpegtest::WithSections(jpegtest::JpegFile(seed.picture),
                                            {Section(0xE1, ExifBlock(seed.options != 0)), comment});
        file.insert(file.begin(), seed.options);
        seeds.push_back({"jpeg", seed.name, file});
    }
    for (const bool motorola : {false, true}) {
        const Bytes block = ExifBlock(motorola);
        const std::string order = motorola ? "motorola" : "intel";
        seeds.push_back({"exif", order + "file",
                         jpegtest::WithSections(
                             {0xFF, 0xD8, 0xFF, 0xDA, 0, 2, 1, 2},
                             {Section(0xE1, block), comment, Section(0xC0, {8, 0, 1, 0, 1, 3})})});
        Bytes bare = {0xFF, 0xD8};
        imagetest::Append(bare, block);
        seeds.push_back({"exif", order + "block", bare});
    }
    return seeds;
}
