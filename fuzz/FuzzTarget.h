// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxFile.h"
#include "image/DecodeLimits.h"
#include "image/IsImage.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// @file
/// What the fuzz targets share.

/// Runs one input; the entry point of libFuzzer.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace fuzz {

/// Ends the process, which a fuzzer takes for a finding, unless `holds`.
inline void Require(bool holds) {
    if (!holds)
        abort();
}

/// Small pictures show every fault that large ones do, and a thousand times as many of them.
inline void UseSmallLimits() {
    tint::DecodeLimits limits;
    limits.maxPixels = 1 << 12;
    limits.maxBlockBytes = 1 << 15;
    tint::SetDecodeLimits(limits);
}

/// Where results go so that computing them is not optimised away.
inline volatile uint32_t sink;

/// Reads every byte of the block and every pixel, so that the sanitizers see what is there.
inline void ReadWhole(const IsImage& image) {
    uint32_t sum = 0;
    for (uint32_t i = 0; i < image.BlockSize(); ++i)
        sum += image.Dib()[i];
    for (uint32_t y = 0; y < image.Height(); ++y) {
        for (uint32_t x = 0; x < image.Width(); ++x)
            sum += image.GetPixelColor(x, y).rgbRed;
    }
    sink = sum;
}

/// Decodes `stream` again through the dispatcher, which has to agree with the codec itself.
inline void DecodeAgain(IsImage& image, uint32_t type, CxFile& stream, bool decoded) {
    stream.Seek(0, 0);
    Require(image.DecodeByType(type, &stream) == decoded);
    Require(image.IsEmpty() != decoded);
    Require((*image.LastErrorText() == '\0') == decoded);
}

} // namespace fuzz
