// SPDX-License-Identifier: MIT
//
// Reading of packed DIBs, the form in which the clipboard holds bitmaps.
#include "image/Bitfields.h"
#include "image/CxMemFile.h"
#include "image/DibHeader.h"
#include "image/DibRows.h"
#include "image/IsImage.h"
#include "image/LittleEndian.h"
#include "image/Resolution.h"
#include "image/Rle.h"

#include <algorithm>

using namespace tint;

namespace {

struct ColorMasks {
    uint32_t red, green, blue;
};

/// Reads the information header.  @return false when it is cut short or of an unknown form
bool ReadHeader(const uint8_t* data, size_t size, BITMAPINFOHEADER& header) {
    if (!data || size < kCoreHeaderBytes)
        return false;
    if (ReadLe32(data) == kCoreHeaderBytes) {
        header = ParseCoreHeader(data);
        return true;
    }
    if (size < kInfoHeaderBytes)
        return false;
    header = ParseInfoHeader(data);
    return header.biSize >= kInfoHeaderBytes && header.biSize <= size;
}

/// Why the container cannot hold what `header` announces; null when it can.
const char* RefuseCompression(const BITMAPINFOHEADER& header) {
    const uint32_t bits = header.biBitCount;
    bool fits = false;
    switch (header.biCompression) {
    case BI_RGB:
        fits = bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
        break;
    case BI_RLE8:
        fits = bits == 8;
        break;
    case BI_RLE4:
        fits = bits == 4;
        break;
    case BI_BITFIELDS:
        fits = bits == 16 || bits == 32;
        break;
    case BI_JPEG:
    case BI_PNG:
        break;
    default:
        return "unknown compression";
    }
    return fits ? nullptr : "compression type not supported";
}

/// Reads the masks of bit fields: the last part of a header that has room for them, else what
/// follows the header.
ColorMasks ReadMasks(CxFile& stream, const BITMAPINFOHEADER& header) {
    const bool inHeader = header.biSize >= kInfoHeaderBytes + kMaskBytes;
    stream.Seek(static_cast<int32_t>(inHeader ? kInfoHeaderBytes : header.biSize), 0);
    uint8_t bytes[kMaskBytes] = {};
    stream.Read(bytes, 1, sizeof(bytes));
    if (inHeader)
        stream.Seek(static_cast<int32_t>(header.biSize), 0);
    return {ReadLe32(bytes), ReadLe32(bytes + 4), ReadLe32(bytes + 8)};
}

/// The masks of `header`'s pixels; leaves the stream before the palette.
ColorMasks MasksOf(CxFile& stream, const BITMAPINFOHEADER& header) {
    if (header.biCompression == BI_BITFIELDS)
        return ReadMasks(stream, header);
    stream.Seek(static_cast<int32_t>(header.biSize), 0);
    if (header.biBitCount == 16)
        return {0x7C00, 0x03E0, 0x001F};
    return {0xFF0000, 0x00FF00, 0x0000FF};
}

void ReadPixels(CxFile& stream, const DibRows& rows, const BITMAPINFOHEADER& header,
                const ColorMasks& masks) {
    if (header.biCompression == BI_RLE8)
        DecodeRle8(stream, rows);
    else if (header.biCompression == BI_RLE4)
        DecodeRle4(stream, rows, Rle4Reading::kExact);
    else if (header.biBitCount == 16)
        rows.ReadConverted<2>(stream, MaskConverter<2>(masks.red, masks.green, masks.blue));
    else if (header.biBitCount == 32)
        rows.ReadConverted<4>(stream, MaskConverter<4>(masks.red, masks.green, masks.blue));
    else
        rows.Read(stream);
}

} // namespace

bool IsImage::CreateFromPackedDib(const uint8_t* data, size_t size) {
    if (info.ghostOf) {
        SetErrorText("image is a view of another");
        return false;
    }
    DestroyImage();
    SetErrorText(nullptr);
    if (ReadPackedDib(data, size))
        return true;
    DestroyImage();
    return false;
}

bool IsImage::ReadPackedDib(const uint8_t* data, size_t size) {
    BITMAPINFOHEADER source;
    const uint32_t reachable = static_cast<uint32_t>(std::min<size_t>(size, INT32_MAX));
    if (!ReadHeader(data, reachable, source)) {
        SetErrorText("DIB header is damaged or not supported");
        return false;
    }
    if (const char* refusal = RefuseCompression(source)) {
        SetErrorText(refusal);
        return false;
    }
    if (!BeginPicture(static_cast<uint32_t>(source.biWidth), RowCount(source), source.biBitCount,
                      kFormatUnknown))
        return false;
    // Where the header states no resolution both setters choose their default.
    SetHorizontalDpi(static_cast<int32_t>(DpiFromPixelsPerMeter(source.biXPelsPerMeter)));
    SetVerticalDpi(static_cast<int32_t>(DpiFromPixelsPerMeter(source.biYPelsPerMeter)));

    CxMemFile stream(const_cast<uint8_t*>(data), reachable); // only read
    const ColorMasks masks = MasksOf(stream, source);
    // Above 8 bits a palette is a hint for devices that need one: passed over.
    ReadPalette(stream, *this, PaletteEntriesOf(source),
                source.biSize == kCoreHeaderBytes ? 3 : sizeof(RGBQUAD));
    ReadPixels(stream, DibRows(*this, source.biHeight < 0), source, masks);
    return true;
}
