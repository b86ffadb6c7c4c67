// SPDX-License-Identifier: MIT
//
// The packed-DIB reader: the input is the block.
#include "fuzz/FuzzTarget.h"

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::UseSmallLimits();
    IsImage image;
    const bool created = image.CreateFromPackedDib(data, size);
    fuzz::Require(image.IsEmpty() != created);
    fuzz::Require((*image.LastErrorText() == '\0') == created);
    fuzz::ReadWhole(image);
    return 0;
}
