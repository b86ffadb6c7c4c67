// SPDX-License-Identifier: MIT
#pragma once

#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// @file
/// PNG files built chunk by chunk, for tests and as seeds for the fuzzers.

namespace pngtest {

using Bytes = std::vector<uint8_t>;

enum ColorType : uint8_t { kGrey = 0, kRgb = 2, kPalette = 3, kGreyAlpha = 4, kRgbAlpha = 6 };

/// A picture in parts; every field is written as it stands, sound or not.
struct Png {
    uint8_t colorType = kRgb;
    uint8_t bitDepth = 8;
    uint32_t width = 1;
    uint32_t height = 1;
    Bytes rows; ///< top row first, packed, each row starting at a byte
    bool interlaced = false;
    std::vector<std::pair<std::string, Bytes>>
        chunks; ///< those between header and pixels, in order
};

inline void AppendBe32(Bytes& out, uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<uint8_t>(value >> shift));
}

inline void AppendChunk(Bytes& out, const std::string& type, const Bytes& data) {
    AppendBe32(out, static_cast<uint32_t>(data.size()));
    const size_t start = out.size();
    out.insert(out.end(), type.begin(), type.end());
    out.insert(out.end(), data.begin(), data.end());
    AppendBe32(out, static_cast<uint32_t>(
                        crc32(0, out.data() + start, static_cast<uInt>(out.size() - start))));
}

inline uint32_t PixelBits(const Png& png) {
    const uint32_t channels[] = {1, 0, 3, 1, 2, 0, 4};
    return channels[png.colorType] * png.bitDepth;
}

/// The rows of one reduced picture: every `dx`-th pixel from `x0` on of every `dy`-th row from `y0`
/// on, each row behind a filter byte of 0.
inline void AppendPass(Bytes& out, const Png& png, uint32_t x0, uint32_t y0, uint32_t dx,
                       uint32_t dy) {
    const size_t bits = PixelBits(png);
    const size_t rowBytes = (png.width * bits + 7) / 8;
    for (uint32_t y = y0; y < png.height && x0 < png.width; y += dy) {
        const size_t pixels = (png.width - x0 + dx - 1) / dx;
        out.push_back(0);
        const size_t start = out.size();
        out.resize(start + (pixels * bits + 7) / 8);
        for (size_t i = 0; i < pixels * bits; ++i) {
            const size_t from = (x0 + i / bits * dx) * bits + i % bits;
            const unsigned bit = png.rows[y * rowBytes + from / 8] >> (7 - from % 8) & 1;
            out[start + i / 8] = static_cast<uint8_t>(out[start + i / 8] | bit << (7 - i % 8));
        }
    }
}

/// The filtered rows, not yet deflated.
inline Bytes FilteredRows(const Png& png) {
    Bytes out;
    if (!png.interlaced) {
        AppendPass(out, png, 0, 0, 1, 1);
        return out;
    }
    const uint32_t passes[7][4] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                   {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
    for (const auto& pass : passes)
        AppendPass(out, png, pass[0], pass[1], pass[2], pass[3]);
    return out;
}

inline Bytes Deflate(const Bytes& data) {
    uLongf length = compressBound(static_cast<uLong>(data.size()));
    Bytes out(length);
    compress(out.data(), &length, data.data(), static_cast<uLong>(data.size()));
    out.resize(length);
    return out;
}

inline Bytes PngFile(const Png& png) {
    Bytes out = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    Bytes header;
    AppendBe32(header, png.width);
    AppendBe32(header, png.height);
    for (const int field : {int{png.bitDepth}, int{png.colorType}, 0, 0, int{png.interlaced}})
        header.push_back(static_cast<uint8_t>(field));
    AppendChunk(out, "IHDR", header);
    for (const auto& chunk : png.chunks)
        AppendChunk(out, chunk.first, chunk.second);
    if (!png.rows.empty())
        AppendChunk(out, "IDAT", Deflate(FilteredRows(png)));
    AppendChunk(out, "IEND", {});
    return out;
}

} // namespace pngtest
