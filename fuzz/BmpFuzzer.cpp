// SPDX-License-Identifier: MIT
//
// The BMP reader: the input is a file.
#include "fuzz/FuzzTarget.h"
#include "image/CxMemFile.h"
#include "image/ImageBMP.h"

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::UseSmallLimits();
    CxMemFile stream(const_cast<uint8_t*>(data), static_cast<uint32_t>(size));
    CxImageBMP direct;
    const bool decoded = direct.DecodeBmp(&stream);
    fuzz::ReadWhole(direct); // after a failure too: the image may be partly filled

    IsImage image;
    fuzz::DecodeAgain(image, tint::kFormatBmp, stream, decoded);
    return 0;
}
