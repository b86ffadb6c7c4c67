// SPDX-License-Identifier: MIT
#pragma once

#include "image/IsImage.h"

#include <cstdint>
#include <vector>

namespace tint {

/// Takes rows of blue, green, red for an image: straight into the rows of a 24-bit one, otherwise
/// through the palette entry nearest to each colour.
class ResampleTarget {
public:
    /// @param image  must not be used by others meanwhile
    explicit ResampleTarget(IsImage& image) : m_image(image) {}

    /// Where to write the pixels `first` to `first + count - 1` of row `y`.
    /// @param slot  0 to 3: as many rows can be open at a time
    uint8_t* Open(uint32_t y, uint32_t first, uint32_t count, uint32_t slot);
    /// Stores what was written.
    void Close(uint32_t y, uint32_t first, uint32_t count, uint32_t slot);

private:
    /// Colours that were looked up lately, so that few go through the whole palette.
    struct Known {
        uint32_t color;
        uint8_t index;
        bool used;
    };
    uint8_t IndexOf(const uint8_t* color);

    IsImage& m_image;
    std::vector<uint8_t> m_rows[4];
    std::vector<Known> m_known;
};

} // namespace tint
