// SPDX-License-Identifier: MIT
#pragma once

#include "image/IsImage.h"
#include "image/Resample.h"

#include <cstdint>
#include <vector>

namespace tint {

/// The pixels of an image as rows of blue, green, red, also beyond its edges.
class ResampleSource {
public:
    /// @param overflow  an Overflow
    ResampleSource(const IsImage& image, int32_t overflow);

    /// Pixels `first` to `first + count - 1` of row `y`; any of them may lie outside.
    /// @param scratch  may receive them; the result stays valid as long as it is left alone
    const uint8_t* Row(int64_t y, int64_t first, uint32_t count,
                       std::vector<uint8_t>& scratch) const;

    /// Whether what lies beyond the edges is one colour.
    bool IsPlainOutside() const {
        return m_overflow >= kOverflowWhite && m_overflow <= kOverflowTransparent;
    }
    /// Writes that colour.
    void PutOutside(uint8_t* out) const;

private:
    /// The position inside that stands for `at`, -1 for none.
    int64_t Inside(int64_t at, int64_t size) const;
    /// Pixels that all lie inside.
    void CopyInside(uint32_t y, uint32_t first, uint32_t count, uint8_t* out) const;
    void CopyAny(int64_t y, int64_t x, uint8_t* out) const;

    const IsImage& m_image;
    int32_t m_overflow;
    RGBQUAD m_outside;
};

} // namespace tint
