// SPDX-License-Identifier: MIT
//
// The section and EXIF reader: the input is a file, and from its third byte on a block.
#include "fuzz/FuzzTarget.h"
#include "image/CxMemFile.h"
#include "image/ExifReader.h"

#include <cstring>

namespace {

/// Reads the record whole: its texts end, its thumbnail is there.
void ReadInfo(const ExifInfo& info) {
    fuzz::Require(memchr(info.comments, 0, sizeof(info.comments)) != nullptr);
    fuzz::Require(memchr(info.cameraMake, 0, sizeof(info.cameraMake)) != nullptr);
    fuzz::Require(info.orientation >= 0 && info.orientation <= 8);
    uint32_t sum = 0;
    for (uint32_t i = 0; i < info.thumbnailSize; ++i)
        sum += info.thumbnailData[i];
    fuzz::sink = sum;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    CxMemFile stream(const_cast<uint8_t*>(data), static_cast<uint32_t>(size));
    for (uint32_t mode = 0; mode < 4; ++mode) {
        stream.Seek(0, 0);
        ExifReader reader;
        const bool read = reader.ReadSections(&stream, mode);
        fuzz::Require(read || *reader.LastError() != '\0');
        fuzz::Require(reader.ThumbnailPosition() < static_cast<int32_t>(size));
        ReadInfo(reader.Info());
    }
    if (size > 2) {
        ExifReader reader;
        reader.ProcessExif(data + 2, static_cast<uint32_t>(size - 2));
        ReadInfo(reader.Info());
    }
    return 0;
}
