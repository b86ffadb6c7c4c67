// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace tint {

/// The format codes of the image layer.
enum ImageFormat : uint32_t {
    kFormatUnknown = 0,
    kFormatBmp = 1,
    kFormatJpeg = 2,
    kFormatPng = 3,
};

/// Bytes of a file that DetectFileFormat looks at.
inline constexpr size_t kSignatureBytes = 10;

/// Recognises a picture in memory by its first bytes.
///
/// BMP ("BM"), PNG (0x89 "PNG") and JPEG whose first segment is a JFIF header are known; a JPEG that
/// starts otherwise, with an EXIF segment for example, is unknown here.
/// @param data  may be null
/// @param size  bytes at `data`; fewer than 11 are never recognised
ImageFormat DetectFormat(const uint8_t* data, size_t size);

/// Recognises a file by its first bytes and its name.
///
/// Per format, in the order BMP, PNG, JPEG, the signature is tried and then the last three
/// characters of the path ("bmp", "png", "jpg", in lower case only).  So any JPEG named "jpg" is
/// known, and a file that starts with "BM" is a BMP whatever its name.
/// @param head  the first bytes of the file, zeros where it is shorter
/// @param path  may be null
ImageFormat DetectFileFormat(const uint8_t (&head)[kSignatureBytes], const char* path);

/// "bmp", "jpeg", "png" or "unknown".
const char* FormatName(uint32_t format);

} // namespace tint
