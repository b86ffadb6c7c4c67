// SPDX-License-Identifier: MIT
//
// The walk over the directories of an EXIF block.
#include "image/DecodeLimits.h"
#include "image/ExifField.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr uint32_t kHeaderBytes = 14; // "Exif", two zeros, byte order, 42, first offset
constexpr uint32_t kEntryBytes = 12;
constexpr uint32_t kFirstDirectory = 8;
constexpr uint16_t kTagExifDirectory = 0x8769;
constexpr uint16_t kTagInteropDirectory = 0xA005;
constexpr uint16_t kTagThumbnailOffset = 0x0201;
constexpr uint16_t kTagThumbnailBytes = 0x0202;

/// Directories inside one another that are read whatever the limit says: each takes stack.
constexpr uint32_t kMaxDepth = 100;

/// Counts a directory as being read for as long as it lives.
class DepthGuard {
public:
    explicit DepthGuard(uint32_t& depth) : m_depth(++depth) {}
    ~DepthGuard() { --m_depth; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    uint32_t& m_depth;
};

} // namespace

bool ExifReader::ProcessExif(const uint8_t* data, uint32_t length) {
    info->flashUsed = 0;
    memset(info->comments, 0, sizeof(info->comments));
    exifImageWidth = 0;
    if (length < 6 || memcmp(data, "Exif\0\0", 6) != 0)
        return Fail("Incorrect Exif header");
    const bool intel = length >= 8 && memcmp(data + 6, "II", 2) == 0;
    const bool motorola = length >= 8 && memcmp(data + 6, "MM", 2) == 0;
    if (!intel && !motorola)
        return Fail("Invalid Exif alignment marker.");
    motorolaOrder = motorola;
    if (length < kHeaderBytes || Get16u(data + 8) != 42)
        return Fail("Invalid Exif start (1)");

    // A block whose directory lies elsewhere deliberately has offset 8 read as a directory too.
    // What stands there is then seldom one, so its failure says nothing about the real directory.
    const uint8_t* base = data + 6;
    const uint32_t exifLength = length - 6;
    const uint32_t first = Get32u(data + 10);
    const uint8_t* lastUsed = base;
    bool read = ProcessDirectory(base + kFirstDirectory, base, exifLength, info, &lastUsed);
    if (first > kFirstDirectory) {
        read = first <= exifLength
                   ? ProcessDirectory(base + first, base, exifLength, info, &lastUsed)
                   : Fail("Illegally sized directory");
    }
    if (read && info->focalPlaneXRes != 0) {
        info->ccdWidth = tint::ToFloat(static_cast<double>(exifImageWidth) * info->focalPlaneUnits /
                                       info->focalPlaneXRes);
    }
    return read;
}

bool ExifReader::ProcessDirectory(const uint8_t* directory, const uint8_t* offsetBase,
                                  uint32_t exifLength, ExifInfo* into, const uint8_t** lastUsed) {
    const DepthGuard guard(m_depth);
    const tint::DecodeLimits limits = tint::GetDecodeLimits();
    if (m_depth > std::min(limits.maxExifDepth, kMaxDepth))
        return Fail("EXIF directories exceed the limit maxExifDepth");
    if (++m_directories > limits.maxExifDirectories)
        return Fail("EXIF directories exceed the limit maxExifDirectories");

    Directory walk = {offsetBase, exifLength, into, lastUsed};
    const uint64_t at = static_cast<uint64_t>(directory - offsetBase);
    if (at + 2 > exifLength)
        return Fail("Illegally sized directory");
    const uint32_t entries = Get16u(directory);
    const uint64_t end = at + 2 + uint64_t{kEntryBytes} * entries;
    if (end > exifLength)
        return Fail("Illegally sized directory");
    for (uint32_t i = 0; i < entries; ++i) {
        Field field;
        if (!ReadField(walk, directory + 2 + size_t{kEntryBytes} * i, field))
            return false;
        StoreField(field, *into);
        if (field.tag == kTagThumbnailOffset)
            walk.thumbnailOffset = tint::ToUint32(Number(field));
        if (field.tag == kTagThumbnailBytes)
            walk.thumbnailBytes = tint::ToUint32(Number(field));
        if (field.tag == kTagExifDirectory || field.tag == kTagInteropDirectory) {
            const uint32_t link = Get32u(field.value);
            if (link > kFirstDirectory && !FollowLink(walk, link))
                return false;
        }
    }
    // The link to the next directory is deliberately read as 16 bits of its 32: in big-endian blocks
    // that is the half which is 0.  A block that ends here has no link.
    const uint32_t next = end + 2 <= exifLength ? Get16u(offsetBase + end) : 0;
    if (next != 0 && !FollowLink(walk, next))
        return false;
    if (walk.thumbnailOffset != 0 && walk.thumbnailBytes != 0 &&
        uint64_t{walk.thumbnailOffset} + walk.thumbnailBytes <= exifLength) {
        into->thumbnailData = offsetBase + walk.thumbnailOffset;
        into->thumbnailSize = walk.thumbnailBytes;
    }
    return true;
}

/// Finds and checks the value of an entry.
bool ExifReader::ReadField(const Directory& directory, const uint8_t* entry, Field& field) {
    field.tag = Get16u(entry);
    field.format = Get16u(entry + 2);
    const uint32_t valueBytes = FormatBytes(field.format);
    if (valueBytes == 0)
        return Fail("Illegal format code in EXIF dir");
    const uint64_t bytes = uint64_t{Get32u(entry + 4)} * valueBytes;
    uint64_t at = static_cast<uint64_t>(entry + 8 - directory.base);
    if (bytes > 4) {
        at = Get32u(entry + 8);
        if (at + bytes > directory.length)
            return Fail("Illegal pointer offset value in EXIF.");
    }
    field.value = directory.base + at;
    field.bytes = static_cast<uint32_t>(bytes);
    field.readable = directory.length - at;
    if (directory.lastUsed && field.value + bytes > *directory.lastUsed)
        *directory.lastUsed = field.value + bytes;
    return true;
}

/// Reads the directory at `offset`.
bool ExifReader::FollowLink(const Directory& directory, uint32_t offset) {
    if (offset > directory.length)
        return Fail("Illegal subdirectory link");
    return ProcessDirectory(directory.base + offset, directory.base, directory.length,
                            directory.info, directory.lastUsed);
}
