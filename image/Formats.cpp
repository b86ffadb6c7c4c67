// SPDX-License-Identifier: MIT
#include "image/Formats.h"

#include <cstring>

namespace tint {

namespace {

constexpr uint8_t kBmpSignature[] = {'B', 'M'};
constexpr uint8_t kPngSignature[] = {0x89, 'P', 'N', 'G'};
constexpr uint8_t kJfifSignature[] = {0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x10, 'J', 'F', 'I', 'F'};

template <size_t N>
bool StartsWith(const uint8_t* data, const uint8_t (&signature)[N]) {
    static_assert(N <= kSignatureBytes, "a signature lies within the bytes that were read");
    return memcmp(data, signature, N) == 0;
}

/// The last three characters of `path`, "" when it is shorter.  No dot is looked for: a file named
/// just "bmp" counts as one.
const char* Extension(const char* path) {
    const size_t length = path ? strlen(path) : 0;
    return length >= 3 ? path + length - 3 : "";
}

} // namespace

ImageFormat DetectFormat(const uint8_t* data, size_t size) {
    if (!data || size < kSignatureBytes + 1)
        return kFormatUnknown;
    if (StartsWith(data, kBmpSignature))
        return kFormatBmp;
    if (StartsWith(data, kPngSignature))
        return kFormatPng;
    return StartsWith(data, kJfifSignature) ? kFormatJpeg : kFormatUnknown;
}

ImageFormat DetectFileFormat(const uint8_t (&head)[kSignatureBytes], const char* path) {
    const char* extension = Extension(path);
    if (StartsWith(head, kBmpSignature) || strcmp(extension, "bmp") == 0)
        return kFormatBmp;
    if (StartsWith(head, kPngSignature) || strcmp(extension, "png") == 0)
        return kFormatPng;
    if (StartsWith(head, kJfifSignature) || strcmp(extension, "jpg") == 0)
        return kFormatJpeg;
    return kFormatUnknown;
}

const char* FormatName(uint32_t format) {
    switch (format) {
    case kFormatBmp:
        return "bmp";
    case kFormatJpeg:
        return "jpeg";
    case kFormatPng:
        return "png";
    default:
        return "unknown";
    }
}

} // namespace tint
