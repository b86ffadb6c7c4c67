// SPDX-License-Identifier: MIT
#include "benchmarks/TestPictures.h"

#include "image/JpegLibrary.h"

#include <png.h>

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace {

uint8_t Sample(double slope, double wave, uint32_t noise) {
    return static_cast<uint8_t>(64 + slope * 100 + wave * 40 + noise % 16);
}

/// The pixels of row `y` in the order PNG wants, one to four bytes each.
std::vector<uint8_t> PngRow(const IsImage& picture, uint32_t y, PngKind kind) {
    std::vector<uint8_t> row;
    for (uint32_t x = 0; x < picture.Width(); ++x) {
        const uint8_t* pixel = picture.RowPointer(y) + static_cast<size_t>(x) * 3;
        if (kind == PngKind::Palette) {
            row.push_back(
                static_cast<uint8_t>(pixel[2] / 43 * 36 + pixel[1] / 43 * 6 + pixel[0] / 43));
            continue;
        }
        row.insert(row.end(), {pixel[2], pixel[1], pixel[0]});
        if (kind == PngKind::Rgba)
            row.push_back(static_cast<uint8_t>(x + y));
    }
    return row;
}

void AppendToVector(png_structp png, png_bytep data, size_t length) {
    auto& out = *static_cast<std::vector<uint8_t>*>(png_get_io_ptr(png));
    out.insert(out.end(), data, data + length);
}

} // namespace

IsImage MakePhoto(uint32_t width, uint32_t height) {
    IsImage picture;
    picture.CreateImage(width, height, 24);
    uint32_t seed = 1;
    for (uint32_t y = 0; y < height; ++y) {
        uint8_t* pixel = picture.RowPointer(y);
        for (uint32_t x = 0; x < width; ++x, pixel += 3) {
            seed = seed * 1664525 + 1013904223;
            const double slope = static_cast<double>(x + y) / (width + height);
            const double wave = std::sin(x * 0.021) * std::cos(y * 0.017);
            const bool edge = (x / 97 + y / 61) % 5 == 0;
            pixel[0] = Sample(slope, wave, seed >> 24);
            pixel[1] = Sample(1 - slope, wave, seed >> 16);
            pixel[2] = Sample(edge ? 0 : slope, -wave, seed >> 20);
        }
    }
    return picture;
}

std::vector<uint8_t> EncodeBmp(const IsImage& picture) {
    constexpr uint32_t fileHeader = 14;
    const uint32_t size = fileHeader + picture.BlockSize();
    const uint32_t offset = size - picture.Header().biSizeImage;
    std::vector<uint8_t> file = {'B', 'M'};
    for (const uint32_t field : {size, 0u, offset}) {
        for (uint32_t shift = 0; shift < 32; shift += 8)
            file.push_back(static_cast<uint8_t>(field >> shift));
    }
    file.insert(file.end(), picture.Dib(), picture.Dib() + picture.BlockSize());
    return file;
}

std::vector<uint8_t> EncodeJpeg(const IsImage& picture, bool progressive) {
    jpeg_compress_struct library;
    jpeg_error_mgr errors;
    library.err = jpeg_std_error(&errors);
    jpeg_create_compress(&library);
    unsigned char* data = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&library, &data, &size);
    library.image_width = picture.Width();
    library.image_height = picture.Height();
    library.input_components = 3;
    library.in_color_space = JCS_EXT_BGR;
    jpeg_set_defaults(&library);
    jpeg_set_quality(&library, 90, TRUE);
    if (progressive)
        jpeg_simple_progression(&library);
    jpeg_start_compress(&library, TRUE);
    for (uint32_t y = picture.Height(); y-- > 0;) {
        JSAMPROW row = const_cast<uint8_t*>(picture.RowPointer(y));
        jpeg_write_scanlines(&library, &row, 1);
    }
    jpeg_finish_compress(&library);
    jpeg_destroy_compress(&library);
    std::vector<uint8_t> file(data, data + size);
    free(data);
    return file;
}

std::vector<uint8_t> EncodePng(const IsImage& picture, PngKind kind) {
    const int colorType = kind == PngKind::Rgb    ? PNG_COLOR_TYPE_RGB
                          : kind == PngKind::Rgba ? PNG_COLOR_TYPE_RGBA
                                                  : PNG_COLOR_TYPE_PALETTE;
    std::vector<uint8_t> file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &file, AppendToVector, nullptr);
    png_set_compression_level(png, 3);
    png_set_IHDR(png, info, picture.Width(), picture.Height(), 8, colorType, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_color palette[216];
    for (int i = 0; i < 216; ++i)
        palette[i] = {static_cast<png_byte>(i / 36 * 51), static_cast<png_byte>(i / 6 % 6 * 51),
                      static_cast<png_byte>(i % 6 * 51)};
    if (kind == PngKind::Palette)
        png_set_PLTE(png, info, palette, 216);
    png_write_info(png, info);
    for (uint32_t y = picture.Height(); y-- > 0;)
        png_write_row(png, PngRow(picture, y, kind).data());
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    return file;
}
