// SPDX-License-Identifier: MIT
#pragma once

#include "image/ExifReader.h"

/// @file
/// Internal to the EXIF reader: what a directory and its entries are while they are read.

/// A directory and the block it lies in.
struct ExifReader::Directory {
    const uint8_t* base;
    uint32_t length; ///< readable bytes at `base`
    ExifInfo* info;
    const uint8_t** lastUsed;
    uint32_t thumbnailOffset = 0;
    uint32_t thumbnailBytes = 0;
};

/// A directory entry with its value found and checked.
struct ExifReader::Field {
    uint16_t tag = 0;
    uint16_t format = 0;            ///< 1 to 12
    const uint8_t* value = nullptr; ///< at least 4 readable bytes
    uint32_t bytes = 0;             ///< of the value as stated, all readable
    uint64_t readable = 0;          ///< bytes from `value` to the end of the block
};

namespace tint {

/// `value` without its fraction, as the nearest an int32_t can hold; 0 for what is no number.
int32_t ToInt32(double value);

/// The same for a uint32_t.
uint32_t ToUint32(double value);

/// `value` as a float; infinity where it is too large for one.
float ToFloat(double value);

} // namespace tint
