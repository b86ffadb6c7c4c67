// SPDX-License-Identifier: MIT
//
// The JPEG reader: the first byte chooses the options, the rest is a file.
#include "fuzz/FuzzTarget.h"
#include "image/CxMemFile.h"
#include "image/ImageJPG.h"
#include "image/Resample.h"

namespace {

void Choose(IsImage& image, uint8_t choice) {
    image.SetFormatValue(tint::kFormatJpeg, static_cast<uint32_t>(choice & 0x1F) << 7);
    image.SetJpegScale(static_cast<uint8_t>(1 << (choice >> 5 & 3)));
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::UseSmallLimits();
    if (size == 0)
        return 0;
    CxMemFile stream(const_cast<uint8_t*>(data + 1), static_cast<uint32_t>(size - 1));
    CxImageJPG direct;
    Choose(direct, data[0]);
    const bool decoded = direct.DecodeJpeg(&stream);
    fuzz::ReadWhole(direct); // after a failure too: the image may be partly filled
    if (decoded && direct.ApplyOrientation()) {
        direct.Resample(5, 7, tint::kBilinear, tint::kOverflowRepeat); // a long row is refused
        fuzz::ReadWhole(direct);
    }

    IsImage image;
    Choose(image, data[0]);
    fuzz::DecodeAgain(image, tint::kFormatJpeg, stream, decoded);
    return 0;
}
