// SPDX-License-Identifier: MIT
#include "image/DibLayout.h"

#include "image/DecodeLimits.h"
#include "image/DibTypes.h"

namespace tint {

uint16_t StoredBitCount(uint32_t bitCount) {
    if (bitCount < 2)
        return 1;
    if (bitCount <= 4)
        return 4;
    return bitCount <= 8 ? 8 : 24;
}

uint64_t DibRowBytes(uint32_t width, uint32_t bitCount) {
    // At most (2^32 - 1)^2 + 31 before the division: 64 bits hold it.
    return (static_cast<uint64_t>(width) * bitCount + 31) / 32 * 4;
}

const char* LayOutDib(uint32_t width, uint32_t height, uint32_t bitCount, DibLayout& layout) {
    if (width == 0 || height == 0)
        return "image width or height is 0";
    if (width > INT32_MAX || height > INT32_MAX)
        return "image width or height exceeds 31 bits";

    layout.bitCount = StoredBitCount(bitCount);
    layout.paletteEntries = layout.bitCount <= 8 ? 1u << layout.bitCount : 0;
    // True products: a size test in 32 bits would be passed by every product that wraps.
    layout.rowBytes = DibRowBytes(width, layout.bitCount);
    if (static_cast<uint64_t>(width) * layout.bitCount + 31 > UINT32_MAX)
        return "image row exceeds 32 bits";
    layout.imageBytes = layout.rowBytes * height;
    layout.blockBytes = sizeof(BITMAPINFOHEADER) + layout.imageBytes +
                        static_cast<uint64_t>(layout.paletteEntries) * sizeof(RGBQUAD);
    if (layout.blockBytes > kMaxDibBlock)
        return "image exceeds 2 GiB";

    const DecodeLimits limits = GetDecodeLimits();
    if (static_cast<uint64_t>(width) * height > limits.maxPixels)
        return "image exceeds the limit maxPixels";
    if (layout.blockBytes > limits.maxBlockBytes)
        return "image exceeds the limit maxBlockBytes";
    return nullptr;
}

} // namespace tint
