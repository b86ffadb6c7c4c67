// SPDX-License-Identifier: MIT
//
// The PNG reader: the input is a file, whose checksums are put right first so that mutated chunks
// are not all turned away by theirs.
#include "fuzz/FuzzTarget.h"
#include "image/CxMemFile.h"
#include "image/ImagePNG.h"

#include <zlib.h>

#include <vector>

namespace {

uint32_t ReadBe32(const uint8_t* p) {
    return uint32_t{p[0]} << 24 | uint32_t{p[1]} << 16 | uint32_t{p[2]} << 8 | p[3];
}

/// Walks through the chunks: 4 bytes of length, 4 of type, the data, 4 of checksum.
void CorrectChecksums(std::vector<uint8_t>& file) {
    size_t at = 8;
    while (file.size() >= at + 12 && ReadBe32(&file[at]) <= file.size() - at - 12) {
        const uint32_t length = ReadBe32(&file[at]);
        const uLong checksum = crc32(0, &file[at + 4], length + 4);
        at += 8 + size_t{length};
        for (int shift = 24; shift >= 0; shift -= 8)
            file[at++] = static_cast<uint8_t>(checksum >> shift);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::UseSmallLimits();
    std::vector<uint8_t> file(data, data + size);
    CorrectChecksums(file);
    CxMemFile stream(file.data(), static_cast<uint32_t>(file.size()));
    CxImagePNG direct;
    const bool decoded = direct.DecodePng(&stream);
    fuzz::ReadWhole(direct); // after a failure too: the image may be partly filled

    IsImage image;
    fuzz::DecodeAgain(image, tint::kFormatPng, stream, decoded);
    return 0;
}
