// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

/// @file
/// Bitmaps built byte by byte, for tests and as seeds for the fuzzers.

namespace bmptest {

using Bytes = std::vector<uint8_t>;

/// Appends `bytes` low bytes of `value`, lowest first.
inline void AppendLe(Bytes& out, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<uint8_t>(value >> 8 * i));
}

inline void Append(Bytes& out, const Bytes& more) {
    out.insert(out.end(), more.begin(), more.end());
}

/// A bitmap in parts; every field is written as it stands, sound or not.
struct Bitmap {
    int32_t width = 1;
    int32_t height = 1;
    uint16_t bitCount = 24;
    uint32_t compression = 0;
    uint32_t headerSize = 40; ///< 12 writes a core header; beyond 40 `headerTail` or zeros follow
    uint32_t imageSize = 0;
    int32_t xPixelsPerMeter = 0;
    int32_t yPixelsPerMeter = 0;
    uint32_t colorsUsed = 0;
    Bytes headerTail; ///< what a header of more than 40 bytes holds beyond them
    Bytes masks;
    Bytes palette;
    Bytes pixels;
    uint32_t gap = 0; ///< bytes between palette and pixels, in files only
};

/// Palette bytes of 4 (or 3) bytes an entry, from 0xRRGGBB colours.
inline Bytes PaletteOf(std::initializer_list<uint32_t> colors, int entryBytes = 4) {
    Bytes out;
    for (const uint32_t color : colors)
        AppendLe(out, color, entryBytes);
    return out;
}

/// The three colour masks of bit fields.
inline Bytes MasksOf(uint32_t red, uint32_t green, uint32_t blue) {
    Bytes out;
    for (const uint32_t mask : {red, green, blue})
        AppendLe(out, mask, 4);
    return out;
}

inline Bytes HeaderOf(const Bitmap& bitmap) {
    Bytes out;
    AppendLe(out, bitmap.headerSize, 4);
    const int side = bitmap.headerSize == 12 ? 2 : 4;
    AppendLe(out, static_cast<uint32_t>(bitmap.width), side);
    AppendLe(out, static_cast<uint32_t>(bitmap.height), side);
    AppendLe(out, 1, 2);
    AppendLe(out, bitmap.bitCount, 2);
    if (bitmap.headerSize == 12)
        return out;
    for (const uint32_t field :
         {bitmap.compression, bitmap.imageSize, static_cast<uint32_t>(bitmap.xPixelsPerMeter),
          static_cast<uint32_t>(bitmap.yPixelsPerMeter), bitmap.colorsUsed, 0u})
        AppendLe(out, field, 4);
    Append(out, bitmap.headerTail);
    if (bitmap.headerSize > out.size() && bitmap.headerSize < 1000)
        out.resize(bitmap.headerSize);
    return out;
}

/// A packed DIB: everything but the file header and the gap.
inline Bytes PackedDib(const Bitmap& bitmap) {
    Bytes out = HeaderOf(bitmap);
    Append(out, bitmap.masks);
    Append(out, bitmap.palette);
    Append(out, bitmap.pixels);
    return out;
}

/// A BMP file.
inline Bytes BmpFile(const Bitmap& bitmap) {
    Bytes body = HeaderOf(bitmap);
    Append(body, bitmap.masks);
    Append(body, bitmap.palette);
    body.resize(body.size() + bitmap.gap, 0xEE);
    Bytes out = {'B', 'M'};
    AppendLe(out, static_cast<uint32_t>(14 + body.size() + bitmap.pixels.size()), 4);
    AppendLe(out, 0, 4);
    AppendLe(out, static_cast<uint32_t>(14 + body.size()), 4);
    Append(out, body);
    Append(out, bitmap.pixels);
    return out;
}

} // namespace bmptest
