// SPDX-License-Identifier: MIT
#include "image/IsImage.h"

#include "image/DibLayout.h"
#include "image/LargePages.h"
#include "image/Resolution.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

using namespace tint;

IsImage::IsImage(uint32_t type) {
    Startup(type);
}

IsImage::IsImage(const IsImage& source) {
    Startup(kFormatUnknown);
    Copy(source);
}

IsImage& IsImage::operator=(const IsImage& source) {
    Copy(source);
    return *this;
}

IsImage::~IsImage() {
    DestroyImage();
}

void IsImage::Startup(uint32_t type) {
    dib = nullptr;
    sideBuffer = nullptr;
    header = {};
    info = {};
    info.type = type;
    info.jpegQuality = 90;
    info.jpegScale = 1;
    info.transparentIndex = -1;
    info.enabled = 1;
    info.xDpi = kDefaultDpi;
    info.yDpi = kDefaultDpi;
    SetErrorText(nullptr);
}

uint8_t* IsImage::CreateImage(uint32_t width, uint32_t height, uint32_t bitCount, uint32_t type) {
    if (!DestroyImage()) {
        SetErrorText("image is a view of another");
        return nullptr;
    }
    DibLayout layout;
    if (const char* refusal = LayOutDib(width, height, bitCount, layout)) {
        SetErrorText(refusal);
        return nullptr;
    }
    // Zeroed by the allocator, which for a large block costs nothing until its pages are used: a
    // header that claims gigabytes touches no memory, and missing pixels are no old heap contents.
    dib = static_cast<uint8_t*>(calloc(1, static_cast<size_t>(layout.blockBytes)));
    if (!dib) {
        SetErrorText("out of memory");
        return nullptr;
    }
    PreferLargePages(dib, static_cast<size_t>(layout.blockBytes));
    header.biSize = sizeof(header);
    header.biWidth = static_cast<int32_t>(width);
    header.biHeight = static_cast<int32_t>(height);
    header.biPlanes = 1;
    header.biBitCount = layout.bitCount;
    header.biSizeImage = static_cast<uint32_t>(layout.imageBytes);
    header.biClrUsed = layout.paletteEntries;
    info.effectiveWidth = static_cast<uint32_t>(layout.rowBytes);
    info.type = type;
    info.bits = RowPointer(0);
    StoreHeader();
    SetErrorText(nullptr);
    return dib;
}

bool IsImage::BeginPicture(uint32_t width, uint32_t height, uint32_t bitCount, uint32_t type) {
    if (!CreateImage(width, height, bitCount, type))
        return false;
    info.transparentIndex = -1;
    info.backgroundColor = {};
    return true;
}

/// Makes a picture of zeros with the settings, palette and resolution of `source` in another size.
bool IsImage::CreateLike(const IsImage& source, uint32_t width, uint32_t height) {
    CopyInfo(source);
    if (!CreateImage(width, height, source.BitCount(), source.Type()))
        return false;
    header.biClrUsed = source.header.biClrUsed; // an image may use less than its depth can address
    header.biXPelsPerMeter = source.header.biXPelsPerMeter;
    header.biYPelsPerMeter = source.header.biYPelsPerMeter;
    info.orientation = source.info.orientation;
    info.bits = RowPointer(0);
    StoreHeader();
    if (PaletteEntries() > 0)
        memcpy(Palette(), source.Palette(), PaletteBytes());
    return true;
}

bool IsImage::DestroyImage() {
    if (info.ghostOf)
        return false;
    free(sideBuffer);
    sideBuffer = nullptr;
    free(dib);
    dib = nullptr;
    // An empty image has no size.  The resolution stays: it may have been set for the next picture.
    BITMAPINFOHEADER empty = {};
    empty.biXPelsPerMeter = header.biXPelsPerMeter;
    empty.biYPelsPerMeter = header.biYPelsPerMeter;
    header = empty;
    info.effectiveWidth = 0;
    info.bits = nullptr;
    info.orientation = 0;
    return true;
}

/// Whether `other` is a view of this image, if only of an empty one, or they have a buffer in common.
bool IsImage::SharesBuffers(const IsImage& other) const {
    return other.info.ghostOf == this || (dib && dib == other.dib) ||
           (sideBuffer && sideBuffer == other.sideBuffer);
}

void IsImage::Ghost(IsImage* source) {
    if (!source || source == this || (!info.ghostOf && SharesBuffers(*source)))
        return; // a view of itself, directly or through its own ghost, would own nothing any more
    DestroyImage();
    header = source->header;
    info = source->info;
    dib = source->dib;
    sideBuffer = source->sideBuffer;
    info.ghostOf = source;
}

bool IsImage::Transfer(IsImage& source) {
    if (&source == this)
        return true;
    if (SharesBuffers(source) || !DestroyImage())
        return false;
    header = source.header;
    info = source.info;
    dib = source.dib;
    sideBuffer = source.sideBuffer;
    source.header = {};
    source.info = {};
    source.dib = nullptr;
    source.sideBuffer = nullptr;
    return true;
}

bool IsImage::Copy(const IsImage& source) {
    if (&source == this)
        return true;
    if (info.ghostOf) {
        SetErrorText("image is a view of another");
        return false;
    }
    uint8_t* block = nullptr;
    if (source.dib) {
        block = static_cast<uint8_t*>(malloc(source.BlockSize()));
        if (!block) {
            SetErrorText("out of memory");
            return false;
        }
        memcpy(block, source.dib, source.BlockSize());
    }
    DestroyImage();
    header = source.header;
    info = source.info;
    info.ghostOf = nullptr;
    dib = block;
    info.bits = RowPointer(0);
    memcpy(lastError, source.lastError, sizeof(lastError));
    return true;
}

void IsImage::CopyInfo(const IsImage& source) {
    if (dib || info.ghostOf)
        return;
    info = source.info;
    // What describes the source's own block would leave an empty image pointing into it.
    info.effectiveWidth = 0;
    info.bits = nullptr;
    info.orientation = 0;
    info.ghostOf = nullptr;
}

bool IsImage::FlipRows() {
    if (!dib)
        return false;
    for (uint32_t low = 0, high = Height() - 1; low < high; ++low, --high) {
        uint8_t* row = RowPointer(low);
        std::swap_ranges(row, row + info.effectiveWidth, RowPointer(high));
    }
    return true;
}

uint32_t IsImage::PaletteBytes() const {
    return header.biClrUsed * static_cast<uint32_t>(sizeof(RGBQUAD));
}

uint32_t IsImage::BlockSize() const {
    return header.biSize + header.biSizeImage + PaletteBytes();
}

const uint8_t* IsImage::RowPointer(uint32_t row) const {
    if (!dib || row >= Height())
        return nullptr;
    return dib + header.biSize + PaletteBytes() + static_cast<size_t>(info.effectiveWidth) * row;
}

uint8_t* IsImage::RowPointer(uint32_t row) {
    return const_cast<uint8_t*>(static_cast<const IsImage*>(this)->RowPointer(row));
}

void IsImage::SetHorizontalDpi(int32_t dpi) {
    info.xDpi = dpi < 1 ? kDefaultDpi : static_cast<uint32_t>(dpi);
    header.biXPelsPerMeter = PixelsPerMeterFromDpi(info.xDpi);
    StoreHeader();
}

void IsImage::SetVerticalDpi(int32_t dpi) {
    info.yDpi = dpi < 1 ? kDefaultDpi : static_cast<uint32_t>(dpi);
    header.biYPelsPerMeter = PixelsPerMeterFromDpi(info.yDpi);
    StoreHeader();
}

uint32_t IsImage::FormatValue(uint32_t format) const {
    const uint32_t slot = format == kFormatUnknown ? info.type : format;
    return slot < 4 ? info.formatValues[slot] : 0;
}

void IsImage::SetFormatValue(uint32_t format, uint32_t value) {
    const uint32_t slot = format == kFormatUnknown ? info.type : format;
    if (slot < 4)
        info.formatValues[slot] = value;
}

void IsImage::SetErrorText(const char* text) {
    snprintf(lastError, sizeof(lastError), "%s", text ? text : "");
}

void IsImage::StoreHeader() {
    if (dib)
        memcpy(dib, &header, sizeof(header));
}
