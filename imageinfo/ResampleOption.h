// SPDX-License-Identifier: MIT
#pragma once

#include "image/Resample.h"

#include <cstdint>
#include <string>

/// The value of --resample.
struct ResampleOption {
    int32_t width = 0; ///< 0 while nothing was asked for
    int32_t height = 0;
    int32_t interpolation = tint::kLanczos;
    int32_t overflow = tint::kOverflowRepeat;
};

/// Reads "WxH[,interpolation[,overflow]]".  @return false, with `option` undefined, for anything else
bool ParseResample(const std::string& text, ResampleOption& option);
