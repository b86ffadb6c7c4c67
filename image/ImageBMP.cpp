// SPDX-License-Identifier: MIT
#include "image/ImageBMP.h"

#include "image/Bitfields.h"
#include "image/DibHeader.h"
#include "image/DibLayout.h"
#include "image/DibRows.h"
#include "image/LittleEndian.h"
#include "image/Resolution.h"
#include "image/Rle.h"

using namespace tint;

namespace {

constexpr size_t kFileHeaderBytes = 14;
constexpr uint16_t kFileType = 0x4D42; // "BM"
constexpr uint32_t kOs2HeaderBytes = 64;

/// Whether a header longer than 40 bytes describes nothing but plain bottom-up rows.  Compared in
/// 64 bits: no wrapped product makes a header pass.
bool DescribesPlainRows(const BITMAPINFOHEADER& header) {
    if (header.biWidth < 0 || header.biHeight < 0)
        return false;
    const uint64_t rowBytes = DibRowBytes(static_cast<uint32_t>(header.biWidth), header.biBitCount);
    return rowBytes <= UINT32_MAX &&
           header.biSizeImage == rowBytes * static_cast<uint32_t>(header.biHeight) &&
           header.biPlanes == 1 && header.biCompression == BI_RGB && header.biClrUsed == 0;
}

/// Fills in what a header may leave at 0.
void CompleteHeader(BITMAPINFOHEADER& header) {
    if (header.biSizeImage == 0) {
        // For the caller of ReadDibInfoHeader.  The product of large sides, and that of top-down
        // rows, wraps; rows are read by the size of the image that was made, whatever stands here.
        header.biSizeImage = static_cast<uint32_t>(
            DibRowBytes(static_cast<uint32_t>(header.biWidth), header.biBitCount) *
            static_cast<uint32_t>(header.biHeight));
    }
    header.biClrUsed = PaletteEntriesOf(header);
}

/// Reads the masks of a 16-bit file, of which the low 16 bits count.
FieldConverter16 ReadMasks(CxFile& stream) {
    uint8_t masks[kMaskBytes] = {};
    stream.Read(masks, 1, sizeof(masks));
    return {ReadLe16(masks), ReadLe16(masks + 4), ReadLe16(masks + 8)};
}

} // namespace

/// Where a picture comes from.
struct CxImageBMP::Source {
    CxFile& stream;
    int32_t startPosition;
    uint32_t pixelOffset; ///< from startPosition; 0: the pixels follow header and palette
    BITMAPINFOHEADER header;

    /// Moves on from the palette, or from the masks.  False for an offset the stream cannot reach.
    bool SeekToPixels() const {
        if (pixelOffset == 0) {
            // Above 8 bits a palette is a hint for devices that need one: passed over.
            if (header.biBitCount > 8)
                SkipBytes(stream, uint64_t{header.biClrUsed} * sizeof(RGBQUAD));
            return true;
        }
        const int64_t position = static_cast<int64_t>(startPosition) + pixelOffset;
        return position <= INT32_MAX && stream.Seek(static_cast<int32_t>(position), 0);
    }
};

CxImageBMP::~CxImageBMP() = default;

bool CxImageBMP::DecodeBmp(CxFile* stream) {
    if (!stream)
        return false;
    Source source = {*stream, stream->Tell(), 0, {}};
    if (source.startPosition < 0)
        return false; // nothing could be found by its offset
    uint8_t fileHeader[kFileHeaderBytes];
    if (stream->Read(fileHeader, 1, sizeof(fileHeader)) != sizeof(fileHeader))
        return false;
    if (ReadLe16(fileHeader) == kFileType)
        source.pixelOffset = ReadLe32(fileHeader + 10);
    else if (!stream->Seek(source.startPosition, 0))
        return false; // a bare DIB that cannot be read from its start
    return ReadDibInfoHeader(stream, source.header) && CreateFromHeader(source) &&
           ReadPixels(source);
}

bool CxImageBMP::ReadDibInfoHeader(CxFile* stream, BITMAPINFOHEADER& header) {
    uint8_t bytes[kInfoHeaderBytes] = {};
    const size_t got = stream ? stream->Read(bytes, 1, sizeof(bytes)) : 0;
    if (got >= kCoreHeaderBytes && ReadLe32(bytes) == kCoreHeaderBytes) {
        // The smallest pictures end before 40 bytes, so this comes before the test for a cut header.
        header = ParseCoreHeader(bytes);
        if (!stream->Seek(static_cast<int32_t>(kCoreHeaderBytes) - static_cast<int32_t>(got), 1))
            return false;
        CompleteHeader(header);
        return true;
    }
    if (got < sizeof(bytes))
        return false;
    header = ParseInfoHeader(bytes);
    if (header.biSize != kInfoHeaderBytes) {
        // Headers of 41 bytes and more that are not OS/2's are believed only where they are simple.
        if (header.biSize < kInfoHeaderBytes || header.biSize > INT32_MAX ||
            (header.biSize != kOs2HeaderBytes && !DescribesPlainRows(header)))
            return false;
        if (!stream->Seek(static_cast<int32_t>(header.biSize - kInfoHeaderBytes), 1))
            return false;
    }
    CompleteHeader(header);
    return true;
}

/// Makes the image and reads its palette.
bool CxImageBMP::CreateFromHeader(const Source& source) {
    const BITMAPINFOHEADER& file = source.header;
    if (!BeginPicture(static_cast<uint32_t>(file.biWidth), RowCount(file), file.biBitCount,
                      kFormatBmp))
        return false;
    // Not through SetHorizontalDpi: a file without a resolution deliberately has 0 dpi.
    header.biXPelsPerMeter = file.biXPelsPerMeter;
    header.biYPelsPerMeter = file.biYPelsPerMeter;
    info.xDpi = DpiFromPixelsPerMeter(file.biXPelsPerMeter);
    info.yDpi = DpiFromPixelsPerMeter(file.biYPelsPerMeter);
    StoreHeader();
    if (PaletteEntries() > 0) {
        const bool coreHeader = file.biSize == kCoreHeaderBytes;
        ReadPalette(source.stream, *this, file.biClrUsed, coreHeader ? 3 : sizeof(RGBQUAD));
    }
    return true;
}

bool CxImageBMP::ReadPixels(const Source& source) {
    CxFile& stream = source.stream;
    const DibRows rows(*this, source.header.biHeight < 0);
    const uint32_t compression = source.header.biCompression;
    switch (source.header.biBitCount) {
    case 1:
    case 4:
    case 8:
        if (!source.SeekToPixels())
            return false;
        if (compression == BI_RGB)
            rows.Read(stream);
        else if (compression == BI_RLE8)
            DecodeRle8(stream, rows);
        else if (compression == BI_RLE4)
            DecodeRle4(stream, rows, Rle4Reading::kByTargetHalf);
        else
            return false;
        return true;
    case 16: {
        const FieldConverter16 convert = compression == BI_BITFIELDS
                                             ? ReadMasks(stream)
                                             : FieldConverter16(0x7C00, 0x03E0, 0x001F);
        if (!source.SeekToPixels())
            return false;
        rows.ReadConverted<2>(stream, convert);
        return true;
    }
    case 24:
        if (compression != BI_RGB || !source.SeekToPixels())
            return false;
        rows.Read(stream);
        return true;
    case 32:
        if (compression == BI_BITFIELDS)
            SkipBytes(stream, kMaskBytes); // ignored, but they stand before the pixels
        else if (compression != BI_RGB)
            return false;
        if (!source.SeekToPixels())
            return false;
        rows.ReadConverted<4>(stream, DropFourthByte);
        return true;
    default:
        return true; // deliberately a picture of zeros
    }
}

void CxImageBMP::ConvertBitfields(IsImage& image, const uint8_t* source, uint16_t redMask,
                                  uint16_t greenMask, uint16_t blueMask, uint8_t bitCount) {
    if (image.BitCount() != 24 || !source || (bitCount != 16 && bitCount != 32))
        return;
    const size_t stride = static_cast<size_t>(DibRowBytes(image.Width(), bitCount));
    const FieldConverter16 convert16(redMask, greenMask, blueMask);
    for (uint32_t row = image.Height(); row-- > 0;) {
        if (bitCount == 16)
            convert16(image.RowPointer(row), source + stride * row, image.Width());
        else
            DropFourthByte(image.RowPointer(row), source + stride * row, image.Width());
    }
}
