// SPDX-License-Identifier: MIT
//
// Turning a picture by its orientation: each of the eight is a transposition or none, followed by a
// mirroring of the columns, of the rows, of both or none.
#include "image/IsImage.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

/// Pixels a side of the tiles a transposition goes by, so that both pictures stay in the cache.
constexpr uint32_t kTile = 32;

template <size_t N>
struct Pixel {
    uint8_t bytes[N];
};

template <size_t N>
Pixel<N>* PixelsOf(uint8_t* row) {
    static_assert(sizeof(Pixel<N>) == N, "pixels lie side by side");
    return reinterpret_cast<Pixel<N>*>(row);
}

template <size_t N>
void CopyPixel(IsImage& target, uint32_t targetX, uint32_t targetY, IsImage& source, uint32_t x,
               uint32_t y) {
    memcpy(target.RowPointer(targetY) + size_t{targetX} * N, source.RowPointer(y) + size_t{x} * N,
           N);
}

void CopyIndex(IsImage& target, uint32_t targetX, uint32_t targetY, IsImage& source, uint32_t x,
               uint32_t y) {
    target.SetPixelIndex(targetX, targetY, source.GetPixelIndex(x, y));
}

/// Mirrors at the diagonal from the upper left corner.  Rows count from below, so columns and rows
/// are exchanged from their far ends.
template <class Copy>
void Transpose(IsImage& target, IsImage& source, Copy copy) {
    const uint32_t width = source.Width();
    const uint32_t height = source.Height();
    for (uint32_t top = 0; top < height; top += kTile) {
        for (uint32_t left = 0; left < width; left += kTile) {
            for (uint32_t y = top; y < std::min(top + kTile, height); ++y) {
                for (uint32_t x = left; x < std::min(left + kTile, width); ++x)
                    copy(target, height - 1 - y, width - 1 - x, source, x, y);
            }
        }
    }
}

void MirrorColumns(IsImage& image) {
    const uint32_t width = image.Width();
    for (uint32_t y = 0; y < image.Height(); ++y) {
        uint8_t* row = image.RowPointer(y);
        switch (image.BitCount()) {
        case 24:
            std::reverse(PixelsOf<3>(row), PixelsOf<3>(row) + width);
            break;
        case 8:
            std::reverse(row, row + width);
            break;
        default:
            for (uint32_t left = 0, right = width - 1; left < right; ++left, --right) {
                const uint8_t index = image.GetPixelIndex(left, y);
                image.SetPixelIndex(left, y, image.GetPixelIndex(right, y));
                image.SetPixelIndex(right, y, index);
            }
            break;
        }
    }
}

} // namespace

bool IsImage::TransposePixels() {
    IsImage turned;
    if (!turned.CreateLike(*this, Height(), Width())) {
        SetErrorText(turned.LastErrorText());
        return false;
    }
    std::swap(turned.header.biXPelsPerMeter, turned.header.biYPelsPerMeter);
    std::swap(turned.info.xDpi, turned.info.yDpi);
    turned.StoreHeader();
    switch (BitCount()) {
    case 24:
        Transpose(turned, *this, CopyPixel<3>);
        break;
    case 8:
        Transpose(turned, *this, CopyPixel<1>);
        break;
    default:
        Transpose(turned, *this, CopyIndex);
        break;
    }
    return Transfer(turned);
}

bool IsImage::ApplyOrientation() {
    if (info.ghostOf) {
        SetErrorText("image is a view of another");
        return false;
    }
    const unsigned orientation = info.orientation;
    if (!dib || orientation > 8)
        return false;
    if (orientation >= 5 && !TransposePixels())
        return false;
    const unsigned mirrored = orientation > 4 ? orientation - 4 : orientation;
    // 1 to 4, and 5 to 8 after the transposition: as it is, columns, both, rows.
    if (mirrored == 2 || mirrored == 3)
        MirrorColumns(*this);
    if (mirrored == 3 || mirrored == 4)
        FlipRows();
    if (orientation != 0)
        info.orientation = 1;
    return true;
}
