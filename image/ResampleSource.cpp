// SPDX-License-Identifier: MIT
#include "image/ResampleSource.h"

#include <algorithm>
#include <cstring>

namespace tint {

namespace {

RGBQUAD OutsideColor(const IsImage& image, int32_t overflow) {
    const RGBQUAD white = {255, 255, 255, 0};
    const ImageInfo& info = image.Info();
    if (overflow == kOverflowBackground)
        return info.backgroundColor;
    if (overflow != kOverflowTransparent || info.transparentIndex < 0)
        return white;
    return image.BitCount() == 24
               ? info.backgroundColor
               : image.GetPaletteColor(static_cast<uint32_t>(info.transparentIndex));
}

void PutColor(uint8_t* out, RGBQUAD color) {
    out[0] = color.rgbBlue;
    out[1] = color.rgbGreen;
    out[2] = color.rgbRed;
}

} // namespace

ResampleSource::ResampleSource(const IsImage& image, int32_t overflow)
    : m_image(image), m_overflow(overflow), m_outside(OutsideColor(image, overflow)) {}

int64_t ResampleSource::Inside(int64_t at, int64_t size) const {
    if (at >= 0 && at < size)
        return at;
    if (IsPlainOutside())
        return -1;
    if (m_overflow == kOverflowWrap)
        return (at % size + size) % size;
    return at < 0 ? 0 : size - 1;
}

void ResampleSource::PutOutside(uint8_t* out) const {
    PutColor(out, m_outside);
}

void ResampleSource::CopyInside(uint32_t y, uint32_t first, uint32_t count, uint8_t* out) const {
    if (m_image.BitCount() == 24) {
        memcpy(out, m_image.RowPointer(y) + static_cast<size_t>(first) * 3,
               static_cast<size_t>(count) * 3);
        return;
    }
    for (uint32_t i = 0; i < count; ++i)
        PutColor(out + static_cast<size_t>(i) * 3, m_image.GetPixelColor(first + i, y));
}

void ResampleSource::CopyAny(int64_t y, int64_t x, uint8_t* out) const {
    const int64_t insideX = Inside(x, m_image.Width());
    if (y < 0 || insideX < 0)
        PutColor(out, m_outside);
    else
        CopyInside(static_cast<uint32_t>(y), static_cast<uint32_t>(insideX), 1, out);
}

const uint8_t* ResampleSource::Row(int64_t y, int64_t first, uint32_t count,
                                   std::vector<uint8_t>& scratch) const {
    y = Inside(y, m_image.Height());
    const int64_t end = first + count;
    const int64_t insideFirst = std::max<int64_t>(first, 0);
    const int64_t insideEnd = std::min<int64_t>(end, m_image.Width());
    if (y >= 0 && insideFirst == first && insideEnd == end && m_image.BitCount() == 24)
        return m_image.RowPointer(static_cast<uint32_t>(y)) + static_cast<size_t>(first) * 3;

    scratch.resize(static_cast<size_t>(count) * 3);
    uint8_t* const out = scratch.data();
    const bool some = y >= 0 && insideFirst < insideEnd;
    if (some)
        CopyInside(static_cast<uint32_t>(y), static_cast<uint32_t>(insideFirst),
                   static_cast<uint32_t>(insideEnd - insideFirst), out + (insideFirst - first) * 3);
    for (int64_t x = first; x < end; ++x) {
        if (some && x == insideFirst)
            x = insideEnd;
        if (x < end)
            CopyAny(y, x, out + (x - first) * 3);
    }
    return out;
}

} // namespace tint
