// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxFile.h"
#include "image/DibTypes.h"
#include "image/IsImage.h"

#include <cstddef>
#include <cstdint>

/// @file
/// What stands before the pixels of a bitmap: the information header and the palette.

namespace tint {

inline constexpr uint32_t kCoreHeaderBytes = 12; ///< the OS/2 header: 16-bit sides, no compression
inline constexpr uint32_t kInfoHeaderBytes = sizeof(BITMAPINFOHEADER);
inline constexpr uint32_t kMaskBytes = 12; ///< the red, green and blue mask of bit fields

/// The fields of the 40 bytes at `bytes`.
BITMAPINFOHEADER ParseInfoHeader(const uint8_t* bytes);

/// The fields of the 12 bytes at `bytes`; those a core header does not have are 0.
BITMAPINFOHEADER ParseCoreHeader(const uint8_t* bytes);

/// The height without its sign, which says only where the rows begin.
inline uint32_t RowCount(const BITMAPINFOHEADER& header) {
    const uint32_t height = static_cast<uint32_t>(header.biHeight);
    return header.biHeight < 0 ? 0 - height : height;
}

/// Entries of the palette that follows `header`: those it states, else as many as its depth can
/// address, none above 8 bits.
uint32_t PaletteEntriesOf(const BITMAPINFOHEADER& header);

/// Moves on by `bytes`, or to the end where that is beyond reach.
void SkipBytes(CxFile& stream, uint64_t bytes);

/// Reads the palette of a bitmap into `image`.
///
/// The stream is left behind the last entry the file claims.  Entries the image has no room for are
/// passed over; reserved bytes, and entries the file does not have, become 0.
/// @param entries     entries in the file, however many
/// @param entryBytes  4, or 3 after a core header
void ReadPalette(CxFile& stream, IsImage& image, uint32_t entries, uint32_t entryBytes);

} // namespace tint
