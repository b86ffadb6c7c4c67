// SPDX-License-Identifier: MIT
#pragma once

#include "tests/image/Bytes.h"

#include <zlib.h>

#include <string>
#include <utility>

/// @file
/// PNG files built chunk by chunk, for tests and as seeds for the fuzzers.

namespace pngtest {

using imagetest::Append;
using imagetest::Bytes;
using imagetest::Number;
using Chunks = std::vector<std::pair<std::string, Bytes>>;

enum ColorType : uint8_t { kGrey = 0, kRgb = 2, kPalette = 3, kGreyAlpha = 4, kRgbAlpha = 6 };

/// A picture in parts; every field is written as it stands, sound or not.
struct Png {
    uint8_t colorType = kRgb;
    uint8_t bitDepth = 8;
    uint32_t width = 1;
    uint32_t height = 1;
    Bytes rows;    ///< top row first, packed, each row starting at a byte
    Chunks chunks; ///< those between header and pixels, in order
    bool interlaced = false;
};

inline Png Make(ColorType type, uint8_t bits, uint32_t width, uint32_t height, const Bytes& rows,
                const Chunks& chunks = {}) {
    return {type, bits, width, height, rows, chunks};
}

inline void AppendChunk(Bytes& out, const std::string& type, const Bytes& data) {
    Bytes chunk(type.begin(), type.end());
    chunk.insert(chunk.end(), data.begin(), data.end());
    Append(out, Number(data.size(), 4, true));
    out.insert(out.end(), chunk.begin(), chunk.end());
    Append(out, Number(crc32(0, chunk.data(), static_cast<uInt>(chunk.size())), 4, true));
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
    Bytes header = Number(png.width, 4, true);
    Append(header, Number(png.height, 4, true));
    Append(header, {png.bitDepth, png.colorType, 0, 0, png.interlaced});
    AppendChunk(out, "IHDR", header);
    for (const auto& chunk : png.chunks)
        AppendChunk(out, chunk.first, chunk.second);
    if (!png.rows.empty())
        AppendChunk(out, "IDAT", Deflate(FilteredRows(png)));
    AppendChunk(out, "IEND", {});
    return out;
}

} // namespace pngtest
