// SPDX-License-Identifier: MIT
//
// Single pixels and palette entries of an image.
#include "image/IsImage.h"

uint8_t IsImage::GetPixelIndex(uint32_t x, uint32_t y) const {
    const uint8_t* row = RowPointer(y);
    if (!row || x >= Width())
        return 0;
    switch (BitCount()) {
    case 1:
        return static_cast<uint8_t>(row[x / 8] >> (7 - x % 8) & 1);
    case 4:
        return static_cast<uint8_t>(row[x / 2] >> (x % 2 ? 0 : 4) & 0x0F);
    case 8:
        return row[x];
    default:
        return 0;
    }
}

bool IsImage::SetPixelIndex(uint32_t x, uint32_t y, uint8_t index) {
    uint8_t* row = RowPointer(y);
    if (!row || x >= Width() || index >= PaletteEntries())
        return false;
    const uint32_t perByte = 8 / BitCount();
    const uint32_t shift = (perByte - 1 - x % perByte) * BitCount();
    const uint32_t mask = ((1u << BitCount()) - 1) << shift; // a palette may be shorter than that
    uint8_t& byte = row[x / perByte];
    byte = static_cast<uint8_t>((byte & ~mask) | static_cast<uint32_t>(index) << shift);
    return true;
}

RGBQUAD IsImage::GetPixelColor(uint32_t x, uint32_t y) const {
    const uint8_t* row = RowPointer(y);
    if (!row || x >= Width())
        return {};
    if (BitCount() != 24)
        return GetPaletteColor(GetPixelIndex(x, y));
    const uint8_t* pixel = row + static_cast<size_t>(x) * 3;
    return {pixel[0], pixel[1], pixel[2], 0};
}

bool IsImage::SetPixelColor(uint32_t x, uint32_t y, RGBQUAD color) {
    uint8_t* row = RowPointer(y);
    if (!row || x >= Width())
        return false;
    if (BitCount() != 24)
        return SetPixelIndex(x, y, GetNearestIndex(color));
    uint8_t* pixel = row + static_cast<size_t>(x) * 3;
    pixel[0] = color.rgbBlue;
    pixel[1] = color.rgbGreen;
    pixel[2] = color.rgbRed;
    return true;
}

const RGBQUAD* IsImage::Palette() const {
    if (!dib || header.biClrUsed == 0)
        return nullptr;
    return reinterpret_cast<const RGBQUAD*>(dib + sizeof(header));
}

RGBQUAD* IsImage::Palette() {
    return const_cast<RGBQUAD*>(static_cast<const IsImage*>(this)->Palette());
}

RGBQUAD IsImage::GetPaletteColor(uint32_t index) const {
    const RGBQUAD* palette = Palette();
    return palette && index < PaletteEntries() ? palette[index] : RGBQUAD{};
}

bool IsImage::SetPaletteColor(uint32_t index, RGBQUAD color) {
    RGBQUAD* palette = Palette();
    if (!palette || index >= PaletteEntries())
        return false;
    palette[index] = {color.rgbBlue, color.rgbGreen, color.rgbRed, 0};
    return true;
}

uint8_t IsImage::GetNearestIndex(RGBQUAD color) const {
    const RGBQUAD* palette = Palette();
    uint32_t nearest = 0;
    int smallest = INT32_MAX;
    for (uint32_t i = 0; palette && i < PaletteEntries(); ++i) {
        const int blue = palette[i].rgbBlue - color.rgbBlue;
        const int green = palette[i].rgbGreen - color.rgbGreen;
        const int red = palette[i].rgbRed - color.rgbRed;
        const int distance = blue * blue + green * green + red * red;
        if (distance < smallest) {
            smallest = distance;
            nearest = i;
        }
    }
    return static_cast<uint8_t>(nearest);
}
