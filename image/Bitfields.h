// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace tint {

/// Turns 16-bit pixels of a BMP file into 24-bit ones.
///
/// Samples are shifted to the top of their byte and not scaled: full 5-bit red gives 248, not 255.
/// The shift for blue is deliberately formed from the red mask's width, and the masks are taken to
/// lie in the order red, green, blue without gaps; that is right for 5-5-5 and 5-6-5, the forms in
/// use, and gives other colours for masks of unequal red and blue.
class FieldConverter16 {
public:
    FieldConverter16(uint16_t redMask, uint16_t greenMask, uint16_t blueMask);

    /// Converts `pixels` pixels of 2 bytes at `source` to 3 bytes each at `target`, the last one
    /// first: `target` may be `source`, or lie above it.
    void operator()(uint8_t* target, const uint8_t* source, size_t pixels) const;

private:
    struct Field {
        uint32_t mask;
        int leftShift; ///< negative shifts right
        uint8_t Extract(uint32_t pixel) const;
    };
    Field m_red, m_green, m_blue;
};

/// Turns `pixels` 32-bit pixels at `source` into 24-bit ones at `target`, which do not overlap: bytes
/// 0 to 2 are blue, green and red, the fourth is dropped.
void DropFourthByte(uint8_t* target, const uint8_t* source, size_t pixels);

/// Turns pixels of 2 or 4 bytes with any colour masks into 24-bit ones.
///
/// Samples of fewer than 8 bits are shifted to the top of their byte, of wider ones the top 8 bits
/// are taken; an empty mask gives 0.
template <size_t BytesPerPixel>
class MaskConverter {
    static_assert(BytesPerPixel == 2 || BytesPerPixel == 4, "pixels with masks");

public:
    MaskConverter(uint32_t redMask, uint32_t greenMask, uint32_t blueMask);

    /// Converts `pixels` pixels at `source` to 3 bytes each at `target`, which do not overlap.
    void operator()(uint8_t* target, const uint8_t* source, size_t pixels) const;

private:
    struct Channel {
        uint32_t mask;
        int low;   ///< lowest bit of the mask
        int width; ///< bits from the lowest to the highest
        uint8_t Extract(uint32_t pixel) const;
    };
    static Channel MakeChannel(uint32_t mask);
    Channel m_red, m_green, m_blue;
};

extern template class MaskConverter<2>;
extern template class MaskConverter<4>;

} // namespace tint
