// SPDX-License-Identifier: MIT
//
// fuzz_seeds DIR: writes the seed corpus, one folder a fuzz target.
#include "fuzz/JpegSeeds.h"
#include "tests/image/BmpBuilder.h"
#include "tests/image/PngBuilder.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

using namespace bmptest;

namespace {

const struct {
    const char* name;
    Bitmap bitmap;
} kBitmaps[] = {
    {"depth1", Make(1, 9, 2, {0x80, 0x80, 0, 0, 0x55, 0, 0, 0})},
    {"depth1core", WithHeader(Make(1, 3, 1, {0xA0, 0, 0, 0}), 12)},
    {"depth4", Make(4, 3, 2, {0x01, 0x10, 0, 0, 0x10, 0, 0, 0})},
    {"depth8", Make(8, 2, 2, {0, 1, 0, 0, 1, 0, 0, 0})},
    {"depth8topdown", Make(8, 2, -2, {0, 1, 0, 0, 1, 0, 0, 0})},
    {"depth16", Make(16, 2, 1, {0x1F, 0, 0, 0x7C})},
    {"depth16fields", Make(16, 1, 1, {0xFF, 0xFF, 0, 0}, 3, {0xF800, 0x7E0, 0x1F})},
    {"depth24", Make(24, 1, 2, {1, 2, 3, 0, 4, 5, 6, 0})},
    {"depth24os2", WithHeader(Make(24, 1, 1, {1, 2, 3, 0}), 64)},
    {"depth24v4", WithHeader(Make(24, 1, 1, {1, 2, 3, 0}), 108)},
    {"depth32", Make(32, 1, -2, {1, 2, 3, 4, 5, 6, 7, 8})},
    {"depth32fields", Make(32, 1, 1, {1, 2, 3, 4}, 3, {0xFF, 0xFF00, 0xFF0000})},
    {"rle8", Make(8, 6, 3, {3, 1, 0, 3, 1, 0, 1, 0, 0, 0, 0, 2, 1, 1, 9, 1, 0, 1}, 1)},
    {"rle4", Make(4, 9, 3, {3, 0x10, 0, 5, 0x10, 0x11, 0x10, 0, 0, 0, 0, 2, 1, 1, 9, 0x11}, 2)},
};

pngtest::Png MakePng(pngtest::ColorType type, uint8_t bits, bool interlaced,
                     std::initializer_list<const char*> chunks = {}) {
    pngtest::Png png;
    png.colorType = type;
    png.bitDepth = bits;
    png.interlaced = interlaced;
    png.width = 5;
    png.height = 3;
    for (size_t i = 0; i < (png.width * pngtest::PixelBits(png) + 7) / 8 * png.height; ++i)
        png.rows.push_back(static_cast<uint8_t>(i * 37));
    for (const std::string chunk : chunks) {
        const size_t sample = type == pngtest::kGrey || type == pngtest::kGreyAlpha ? 2 : 6;
        const size_t bytes = chunk == "PLTE"             ? 12
                             : chunk == "pHYs"           ? 9
                             : type == pngtest::kPalette ? 1
                                                         : sample;
        png.chunks.emplace_back(chunk, chunk == "gAMA" ? Bytes{0, 0, 0xB1, 0x8F} : Bytes(bytes));
    }
    return png;
}

const struct {
    const char* name;
    pngtest::Png png;
} kPngs[] = {
    {"grey1", MakePng(pngtest::kGrey, 1, true, {"tRNS"})},
    {"grey2", MakePng(pngtest::kGrey, 2, true, {"tRNS", "bKGD"})},
    {"grey8", MakePng(pngtest::kGrey, 8, false, {"pHYs"})},
    {"grey16", MakePng(pngtest::kGrey, 16, true, {"tRNS"})},
    {"greyalpha8", MakePng(pngtest::kGreyAlpha, 8, false, {"gAMA", "bKGD"})},
    {"greyalpha16", MakePng(pngtest::kGreyAlpha, 16, true, {"bKGD"})},
    {"palette2", MakePng(pngtest::kPalette, 2, true, {"PLTE", "tRNS"})},
    {"palette8", MakePng(pngtest::kPalette, 8, false, {"PLTE", "tRNS", "bKGD"})},
    {"rgb8", MakePng(pngtest::kRgb, 8, false, {"tRNS"})},
    {"rgb16", MakePng(pngtest::kRgb, 16, true, {"gAMA", "tRNS", "bKGD"})},
    {"rgba8", MakePng(pngtest::kRgbAlpha, 8, true, {"bKGD"})},
    {"rgba16", MakePng(pngtest::kRgbAlpha, 16, false)},
};

/// Operations of MemStreamFuzzer: seeks, reads, writes and single bytes, on a block of the stream's
/// own (even first byte) and on a caller's.
const Bytes kOperations[] = {
    {0, 3, 16, 255, 7, 1, 0, 0, 2, 4, 9, 5, 6, 4},
    {0, 0, 0, 0, 16, 1, 0, 5, 1, 0, 0, 0, 0, 0, 0, 2, 255, 40},
    {11, 2, 4, 3, 4, 1, 1, 2, 3, 3, 5, 8, 0, 127, 255, 255, 255, 0, 5, 1, 3, 1, 1, 9},
    {7, 1, 156, 0, 4, 4, 0, 255, 255, 255, 0, 2, 5, 1, 1, 2, 3, 2, 2, 2},
};

bool Write(const std::filesystem::path& folder, const std::string& name, const Bytes& data) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    std::ofstream file(folder / name, std::ios::binary);
    file.write(reinterpret_cast<const char*>(data.data()),
               static_cast<std::streamsize>(data.size()));
    file.close();
    return file.good();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        fputs("usage: fuzz_seeds DIR\n", stderr);
        return 1;
    }
    const std::filesystem::path folder = argv[1];
    bool written = true;
    for (const auto& seed : kBitmaps) {
        const std::string name = seed.name;
        written = Write(folder / "bmp", name + ".bmp", BmpFile(seed.bitmap)) && written;
        written = Write(folder / "packed_dib", name + ".dib", PackedDib(seed.bitmap)) && written;
    }
    written = Write(folder / "bmp", "bare.bmp", PackedDib(kBitmaps[0].bitmap)) && written;
    for (const auto& seed : kPngs)
        written =
            Write(folder / "png", seed.name + std::string(".png"), PngFile(seed.png)) && written;
    for (const Seed& seed : JpegSeeds())
        written =
            !seed.data.empty() && Write(folder / seed.folder, seed.name, seed.data) && written;
    int number = 0;
    for (const Bytes& operations : kOperations)
        written = Write(folder / "mem_stream", std::to_string(number++), operations) && written;
    if (!written)
        fprintf(stderr, "fuzz_seeds: %s cannot be written\n", argv[1]);
    return written ? 0 : 1;
}
