// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxFile.h"
#include "image/IsImage.h"

#include <cstddef>
#include <cstdint>

namespace tint {

/// The rows of an image in the order in which a bitmap's data give them, bottom-up or top-down.
///
/// Rows go straight to where they are stored: no picture is turned over afterwards and no second
/// copy of it is made.  Reading ends with the data; what they did not reach stays zero and untouched,
/// so a short file costs what it holds and not what it claims.
class DibRows {
public:
    /// @param image    created; outlives this object
    /// @param topDown  whether the first row of the data is the highest
    DibRows(IsImage& image, bool topDown)
        : m_image(image), m_first(image.RowPointer(0)), m_stride(image.EffectiveWidth()),
          m_height(image.Height()), m_topDown(topDown) {}

    uint32_t Stride() const { return m_stride; }
    uint32_t Height() const { return m_height; }

    /// Row `row` of the data.
    uint8_t* Row(uint32_t row) const {
        return m_first + static_cast<size_t>(m_stride) * (m_topDown ? m_height - 1 - row : row);
    }

    /// Byte `column` of row `row` of the data; columns beyond the row's end are in the rows that
    /// follow.  Null beyond the last row.
    uint8_t* At(uint64_t row, uint64_t column) const {
        if (column >= m_stride) {
            row += column / m_stride;
            column %= m_stride;
        }
        return row < m_height ? Row(static_cast<uint32_t>(row)) + column : nullptr;
    }

    /// Reads rows that are stored as the image stores them.
    void Read(CxFile& stream) const;

    /// Reads rows of `BytesPerPixel` bytes a pixel, padded to 4 bytes, into a 24-bit image.  A pixel
    /// that the data cut in two counts as missing.
    /// @param convert  (target, source, pixels): writes `pixels` x 3 bytes
    template <size_t BytesPerPixel, class Convert>
    void ReadConverted(CxFile& stream, Convert convert) const;

private:
    IsImage& m_image;
    uint8_t* m_first;
    uint32_t m_stride;
    uint32_t m_height;
    bool m_topDown;
};

inline void DibRows::Read(CxFile& stream) const {
    if (!m_topDown) {
        stream.Read(m_first, 1, static_cast<size_t>(m_stride) * m_height);
        return;
    }
    for (uint32_t row = 0; row < m_height; ++row) {
        if (stream.Read(Row(row), 1, m_stride) < m_stride)
            return;
    }
}

template <size_t BytesPerPixel, class Convert>
void DibRows::ReadConverted(CxFile& stream, Convert convert) const {
    constexpr size_t kPiecePixels = 4096; // a piece fits the first cache and needs no allocation
    uint8_t piece[kPiecePixels * BytesPerPixel];
    const size_t width = m_image.Width();
    for (uint32_t row = 0; row < m_height; ++row) {
        for (size_t x = 0; x < width;) {
            const size_t pixels = width - x < kPiecePixels ? width - x : kPiecePixels;
            const bool rowEnds = x + pixels == width;
            // Only a row's last piece can be of an odd size, and then it has room for the padding.
            const size_t bytes = rowEnds ? (pixels * BytesPerPixel + 3) / 4 * 4 : sizeof(piece);
            const size_t got = stream.Read(piece, 1, bytes);
            const size_t whole = got / BytesPerPixel < pixels ? got / BytesPerPixel : pixels;
            convert(Row(row) + x * 3, static_cast<const uint8_t*>(piece), whole);
            if (got < bytes)
                return;
            x += pixels;
        }
    }
}

} // namespace tint
