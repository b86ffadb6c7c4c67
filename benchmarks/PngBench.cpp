// SPDX-License-Identifier: MIT
#include "benchmarks/ImageBench.h"

#include "benchmarks/TestPictures.h"

#include <png.h>

#include <cstdlib>
#include <cstring>

namespace {

struct Input {
    const uint8_t* at;
    size_t left;
};

void ReadInput(png_structp png, png_bytep data, size_t length) {
    auto& input = *static_cast<Input*>(png_get_io_ptr(png));
    if (length > input.left)
        png_error(png, "short");
    memcpy(data, input.at, length);
    input.at += length;
    input.left -= length;
}

/// The library's loop, into a block laid out as an image's rows.
void DecodeBare(const std::vector<uint8_t>& file, PngKind kind) {
    Input input = {file.data(), file.size()};
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_read_fn(png, &input, ReadInput);
    png_read_info(png, info);
    if (kind == PngKind::Rgba)
        png_set_strip_alpha(png);
    if (kind != PngKind::Palette)
        png_set_bgr(png);
    png_read_update_info(png, info);
    const size_t stride = (png_get_rowbytes(png, info) + 3) / 4 * 4;
    const uint32_t height = png_get_image_height(png, info);
    auto* const block = static_cast<uint8_t*>(std::malloc(stride * height));
    if (!block)
        std::abort();
    for (uint32_t y = height; y-- > 0;)
        png_read_row(png, block + stride * y, nullptr);
    png_read_end(png, nullptr);
    png_destroy_read_struct(&png, &info, nullptr);
    std::free(block);
}

} // namespace

std::vector<Row> BenchPng() {
    const IsImage picture = MakePhoto(kBenchWidth, kBenchHeight);
    const struct {
        const char* what;
        PngKind kind;
    } subjects[] = {{"PNG RGB, 12 MP", PngKind::Rgb},
                    {"PNG RGBA, 12 MP", PngKind::Rgba},
                    {"PNG palette, 12 MP", PngKind::Palette}};
    std::vector<Row> rows;
    for (const auto& subject : subjects) {
        const std::vector<uint8_t> file = EncodePng(picture, subject.kind);
        for (const Row& row : CompareImages(
                 subject.what,
                 {{"IsImage",
                   [&] {
                       if (IsImage(file.data(), static_cast<uint32_t>(file.size())).Width() !=
                           kBenchWidth)
                           std::abort();
                   }},
                  {"the bare library loop", [&] { DecodeBare(file, subject.kind); }}}))
            rows.push_back(row);
    }
    return rows;
}
