// SPDX-License-Identifier: MIT
#include "image/DibHeader.h"

#include "image/LittleEndian.h"

#include <algorithm>

namespace tint {

BITMAPINFOHEADER ParseInfoHeader(const uint8_t* bytes) {
    BITMAPINFOHEADER header = {};
    header.biSize = ReadLe32(bytes);
    header.biWidth = static_cast<int32_t>(ReadLe32(bytes + 4));
    header.biHeight = static_cast<int32_t>(ReadLe32(bytes + 8));
    header.biPlanes = ReadLe16(bytes + 12);
    header.biBitCount = ReadLe16(bytes + 14);
    header.biCompression = ReadLe32(bytes + 16);
    header.biSizeImage = ReadLe32(bytes + 20);
    header.biXPelsPerMeter = static_cast<int32_t>(ReadLe32(bytes + 24));
    header.biYPelsPerMeter = static_cast<int32_t>(ReadLe32(bytes + 28));
    header.biClrUsed = ReadLe32(bytes + 32);
    header.biClrImportant = ReadLe32(bytes + 36);
    return header;
}

BITMAPINFOHEADER ParseCoreHeader(const uint8_t* bytes) {
    BITMAPINFOHEADER header = {};
    header.biSize = ReadLe32(bytes);
    header.biWidth = ReadLe16(bytes + 4);
    header.biHeight = ReadLe16(bytes + 6);
    header.biPlanes = ReadLe16(bytes + 8);
    header.biBitCount = ReadLe16(bytes + 10);
    return header;
}

uint32_t PaletteEntriesOf(const BITMAPINFOHEADER& header) {
    if (header.biClrUsed != 0 || header.biBitCount > 8)
        return header.biClrUsed;
    return 1u << header.biBitCount;
}

void SkipBytes(CxFile& stream, uint64_t bytes) {
    if (bytes > INT32_MAX || !stream.Seek(static_cast<int32_t>(bytes), 1))
        stream.Seek(0, 2);
}

void ReadPalette(CxFile& stream, IsImage& image, uint32_t entries, uint32_t entryBytes) {
    uint8_t raw[256 * sizeof(RGBQUAD)] = {};
    const uint32_t room = image.PaletteEntries();
    const uint32_t stored = std::min(entries, room);
    stream.Read(raw, 1, stored * entryBytes);
    for (uint32_t i = 0; i < room; ++i) {
        const uint8_t* entry = raw + i * entryBytes;
        image.SetPaletteColor(i, {entry[0], entry[1], entry[2], 0});
    }
    if (entries > stored)
        SkipBytes(stream, static_cast<uint64_t>(entries - stored) * entryBytes);
}

} // namespace tint
