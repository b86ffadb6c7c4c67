// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tint {

/// The largest block an image may have: sizes are handed on as signed 32-bit numbers.
inline constexpr uint64_t kMaxDibBlock = INT32_MAX;

/// The sizes of an image's block: header, palette, then bottom-up rows padded to 4 bytes.
struct DibLayout {
    uint16_t bitCount;       ///< stored depth: 1, 4, 8 or 24
    uint32_t paletteEntries; ///< 2, 16, 256 or 0
    uint64_t rowBytes;       ///< stride
    uint64_t imageBytes;     ///< all rows
    uint64_t blockBytes;     ///< header, palette and rows
};

/// The stored depth for pixels of `bitCount` bits: 0 and 1 give 1, 2 to 4 give 4, 5 to 8 give 8,
/// anything more gives 24.
uint16_t StoredBitCount(uint32_t bitCount);

/// Bytes of a row of `width` pixels of `bitCount` bits, padded to 4 bytes; no overflow.
uint64_t DibRowBytes(uint32_t width, uint32_t bitCount);

/// Lays out an image.
/// @param width     pixels, at least 1
/// @param height    rows, at least 1
/// @param bitCount  depth asked for; the stored depth is chosen from it
/// @param layout    receives the sizes; meaningless after a refusal
/// @return null, or why the size is refused: a side is 0 or does not fit the header's signed fields,
///         a row has 2^32 bits or more, the block exceeds kMaxDibBlock or one of the DecodeLimits.
///         A static text.
const char* LayOutDib(uint32_t width, uint32_t height, uint32_t bitCount, DibLayout& layout);

} // namespace tint
