// SPDX-License-Identifier: MIT
#pragma once

#include "tests/image/Bytes.h"

/// @file
/// Bitmaps built byte by byte.

namespace bmptest {

using imagetest::Append;
using imagetest::Bytes;
using imagetest::Number;
using imagetest::With;

/// A bitmap in parts; every field is written as it stands, sound or not.
struct Bitmap {
    uint16_t bitCount = 24;
    int32_t width = 1;
    int32_t height = 1;
    Bytes pixels = {};
    uint32_t compression = 0;
    Bytes masks = {};
    uint32_t headerSize = 40; ///< 12 writes a core header; beyond 40 `headerTail` or zeros follow
    uint32_t imageSize = 0;
    int32_t xPixelsPerMeter = 0;
    int32_t yPixelsPerMeter = 0;
    uint32_t colorsUsed = 0;
    Bytes headerTail = {}; ///< what a header of more than 40 bytes holds beyond them
    Bytes palette = {};
    uint32_t gap = 0; ///< bytes between palette and pixels, in files only
};

/// Palette bytes of 4 (or 3) bytes an entry, from 0xRRGGBB colours; masks too.
inline Bytes PaletteOf(const std::vector<uint32_t>& colors, int entryBytes = 4) {
    Bytes out;
    for (const uint32_t color : colors)
        Append(out, Number(color, entryBytes));
    return out;
}

/// A bitmap with a palette of black, red, green and blue, as far as its depth has one.
inline Bitmap Make(uint16_t bits, int32_t width, int32_t height, const Bytes& pixels,
                   uint32_t compression = 0, const std::vector<uint32_t>& masks = {}) {
    Bitmap bitmap = {bits, width, height, pixels, compression, PaletteOf(masks)};
    bitmap.colorsUsed = bits == 1 ? 2 : bits <= 8 ? 4 : 0;
    bitmap.palette = PaletteOf({0x000000, 0xFF0000, 0x00FF00, 0x0000FF});
    bitmap.palette.resize(bitmap.colorsUsed * 4);
    return bitmap;
}

/// The same bitmap under another header; a core header has all colours its depth can address.
inline Bitmap WithHeader(Bitmap bitmap, uint32_t headerSize) {
    bitmap.headerSize = headerSize;
    bitmap.imageSize = static_cast<uint32_t>(bitmap.pixels.size());
    if (headerSize == 12) {
        bitmap.palette = PaletteOf({0x000000, 0xFF0000, 0x00FF00, 0x0000FF}, 3);
        bitmap.palette.resize(bitmap.bitCount <= 8 ? (size_t{3} << bitmap.bitCount) : 0);
    }
    return bitmap;
}

/// A packed DIB: everything but the file header and the gap; `pixels` apart from the rest.
inline Bytes PackedDib(const Bitmap& bitmap, bool pixels = true) {
    Bytes out = Number(bitmap.headerSize, 4);
    const int side = bitmap.headerSize == 12 ? 2 : 4;
    Append(out, Number(static_cast<uint32_t>(bitmap.width), side));
    Append(out, Number(static_cast<uint32_t>(bitmap.height), side));
    Append(out, {1, 0});
    Append(out, Number(bitmap.bitCount, 2));
    if (bitmap.headerSize != 12) {
        for (const uint32_t field :
             {bitmap.compression, bitmap.imageSize, static_cast<uint32_t>(bitmap.xPixelsPerMeter),
              static_cast<uint32_t>(bitmap.yPixelsPerMeter), bitmap.colorsUsed, 0u})
            Append(out, Number(field, 4));
        Append(out, bitmap.headerTail);
        if (bitmap.headerSize > out.size() && bitmap.headerSize < 1000)
            out.resize(bitmap.headerSize);
    }
    Append(out, bitmap.masks);
    Append(out, bitmap.palette);
    Append(out, pixels ? bitmap.pixels : Bytes());
    return out;
}

/// A BMP file.
inline Bytes BmpFile(const Bitmap& bitmap) {
    Bytes body = PackedDib(bitmap, false);
    body.resize(body.size() + bitmap.gap, 0xEE);
    Bytes out = {'B', 'M'};
    for (const size_t field :
         {14 + body.size() + bitmap.pixels.size(), size_t{0}, 14 + body.size()})
        Append(out, Number(field, 4));
    Append(out, body);
    Append(out, bitmap.pixels);
    return out;
}

} // namespace bmptest
