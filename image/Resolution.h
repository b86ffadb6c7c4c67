// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>

namespace tint {

/// The resolution assumed where a picture states none.
inline constexpr uint32_t kDefaultDpi = 96;

/// Dots per inch, rounded; 0 for a resolution of 0 or a meaningless negative one.
inline uint32_t DpiFromPixelsPerMeter(int32_t pixelsPerMeter) {
    if (pixelsPerMeter <= 0)
        return 0;
    return static_cast<uint32_t>(std::floor(pixelsPerMeter * 254.0 / 10000.0 + 0.5));
}

/// Pixels per metre, rounded, at most INT32_MAX.
inline int32_t PixelsPerMeterFromDpi(uint32_t dpi) {
    const double pixels = std::floor(dpi * 10000.0 / 254.0 + 0.5);
    return pixels < INT32_MAX ? static_cast<int32_t>(pixels) : INT32_MAX;
}

} // namespace tint
