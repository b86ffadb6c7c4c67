// SPDX-License-Identifier: MIT
#include "image/Bitfields.h"

#include "image/LittleEndian.h"

namespace tint {

namespace {

int CountBits(uint32_t mask) {
    int bits = 0;
    for (; mask; mask &= mask - 1)
        ++bits;
    return bits;
}

} // namespace

FieldConverter16::FieldConverter16(uint16_t redMask, uint16_t greenMask, uint16_t blueMask) {
    const int red = CountBits(redMask);
    const int green = CountBits(greenMask);
    const int blue = CountBits(blueMask);
    m_blue = {blueMask, 8 - red};
    m_green = {greenMask, 8 - red - green};
    m_red = {redMask, 8 - red - green - blue};
}

inline uint8_t FieldConverter16::Field::Extract(uint32_t pixel) const {
    // Masks from a file can ask for shifts of -40 to 8, which 64 bits define.
    const uint64_t field = pixel & mask;
    return static_cast<uint8_t>(leftShift >= 0 ? field << leftShift : field >> -leftShift);
}

void FieldConverter16::operator()(uint8_t* target, const uint8_t* source, size_t pixels) const {
    for (size_t i = pixels; i-- > 0;) {
        const uint32_t pixel = ReadLe16(source + i * 2);
        target[i * 3] = m_blue.Extract(pixel);
        target[i * 3 + 1] = m_green.Extract(pixel);
        target[i * 3 + 2] = m_red.Extract(pixel);
    }
}

void DropFourthByte(uint8_t* target, const uint8_t* source, size_t pixels) {
    for (size_t i = 0; i < pixels; ++i) {
        target[i * 3] = source[i * 4];
        target[i * 3 + 1] = source[i * 4 + 1];
        target[i * 3 + 2] = source[i * 4 + 2];
    }
}

template <size_t BytesPerPixel>
MaskConverter<BytesPerPixel>::MaskConverter(uint32_t redMask, uint32_t greenMask, uint32_t blueMask)
    : m_red(MakeChannel(redMask)), m_green(MakeChannel(greenMask)), m_blue(MakeChannel(blueMask)) {}

template <size_t BytesPerPixel>
typename MaskConverter<BytesPerPixel>::Channel
MaskConverter<BytesPerPixel>::MakeChannel(uint32_t mask) {
    Channel channel = {mask, 0, 0};
    if (mask == 0)
        return channel;
    while (!(mask >> channel.low & 1))
        ++channel.low;
    for (uint32_t bits = mask >> channel.low; bits; bits >>= 1)
        ++channel.width;
    return channel;
}

template <size_t BytesPerPixel>
inline uint8_t MaskConverter<BytesPerPixel>::Channel::Extract(uint32_t pixel) const {
    const uint32_t sample = (pixel & mask) >> low;
    return static_cast<uint8_t>(width > 8 ? sample >> (width - 8) : sample << (8 - width));
}

template <size_t BytesPerPixel>
void MaskConverter<BytesPerPixel>::operator()(uint8_t* target, const uint8_t* source,
                                              size_t pixels) const {
    for (size_t i = 0; i < pixels; ++i) {
        const uint8_t* bytes = source + i * BytesPerPixel;
        const uint32_t pixel = BytesPerPixel == 2 ? ReadLe16(bytes) : ReadLe32(bytes);
        target[i * 3] = m_blue.Extract(pixel);
        target[i * 3 + 1] = m_green.Extract(pixel);
        target[i * 3 + 2] = m_red.Extract(pixel);
    }
}

template class MaskConverter<2>;
template class MaskConverter<4>;

} // namespace tint
