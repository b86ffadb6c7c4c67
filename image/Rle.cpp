// SPDX-License-Identifier: MIT
#include "image/Rle.h"

#include <algorithm>
#include <cstring>

namespace tint {

namespace {

/// Second byte of a pair whose first is 0; a value above these is the length of an absolute run.
enum Escape { kEndOfLine = 0, kEndOfBitmap = 1, kDelta = 2 };

/// Walks the pairs of run-length data; what a pair paints is the derived class's.
class RleDecoder {
public:
    RleDecoder(CxFile& stream, const DibRows& rows) : m_stream(stream), m_rows(rows) {}
    virtual ~RleDecoder() = default;

    void Decode() {
        while (m_row < m_rows.Height() && DecodePair()) {
        }
    }

protected:
    /// Paints `count` pixels (1 to 255) from `value`.  @return false to end the decode
    virtual bool EncodedRun(int count, uint8_t value) = 0;
    /// Paints `count` pixels (3 to 255) from the data.
    virtual bool AbsoluteRun(int count) = 0;
    /// Moves the column by a delta.
    virtual void MoveRight(uint8_t pixels) = 0;

    bool GetByte(uint8_t& byte) {
        const int32_t got = m_stream.GetC();
        byte = static_cast<uint8_t>(got);
        return got >= 0;
    }

    CxFile& m_stream;
    const DibRows& m_rows;
    // No more than 255 a pair are added to either: the data end long before 64 bits do.
    uint64_t m_column = 0; ///< in the unit of the derived class
    uint64_t m_row = 0;

private:
    bool DecodePair() {
        uint8_t count, value;
        if (!GetByte(count) || !GetByte(value))
            return false;
        if (count > 0)
            return EncodedRun(count, value);
        switch (value) {
        case kEndOfLine:
            m_column = 0;
            ++m_row;
            return true;
        case kEndOfBitmap:
            return false;
        case kDelta:
            return Delta();
        default:
            return AbsoluteRun(value);
        }
    }

    bool Delta() {
        uint8_t right, up;
        if (!GetByte(right) || !GetByte(up))
            return false;
        MoveRight(right);
        m_row += up;
        return true;
    }
};

/// Columns are bytes, which are pixels.
class Rle8Decoder : public RleDecoder {
public:
    using RleDecoder::RleDecoder;

private:
    bool EncodedRun(int count, uint8_t value) override {
        const uint64_t stride = m_rows.Stride();
        const uint64_t left = m_column < stride ? stride - m_column : 0;
        const uint64_t painted = std::min<uint64_t>(static_cast<uint64_t>(count), left);
        if (painted > 0)
            memset(m_rows.At(m_row, m_column), value, static_cast<size_t>(painted));
        m_column += painted;
        return painted == static_cast<uint64_t>(count);
    }

    bool AbsoluteRun(int count) override {
        uint8_t data[256]; // an odd run is padded to a 16-bit boundary
        const size_t wanted = static_cast<size_t>(count + (count & 1));
        const size_t got = m_stream.Read(data, 1, wanted);
        const size_t pixels = std::min(got, static_cast<size_t>(count));
        for (size_t i = 0; i < pixels; ++i) {
            if (uint8_t* target = m_rows.At(m_row, m_column + i))
                *target = data[i];
        }
        m_column += pixels;
        return got == wanted;
    }

    void MoveRight(uint8_t pixels) override { m_column += pixels; }
};

/// Columns are pixels, two to a byte, the left one in the high half.
class Rle4Decoder : public RleDecoder {
public:
    Rle4Decoder(CxFile& stream, const DibRows& rows, Rle4Reading reading)
        : RleDecoder(stream, rows), m_exact(reading == Rle4Reading::kExact) {}

private:
    bool EncodedRun(int count, uint8_t value) override {
        for (int i = 0; i < count; ++i)
            PaintPixel(TakesLowHalf(i), value);
        return true;
    }

    bool AbsoluteRun(int count) override {
        uint8_t data;
        if (!GetByte(data))
            return false;
        for (int i = 0; i < count; ++i) {
            const bool lowHalf = TakesLowHalf(i);
            PaintPixel(lowHalf, data);
            if (lowHalf && i + 1 < count && !GetByte(data))
                return false;
        }
        uint8_t padding; // to a 16-bit boundary
        return !((count + 1) & 2) || GetByte(padding);
    }

    void MoveRight(uint8_t pixels) override { m_column += m_exact ? pixels : pixels & ~1u; }

    bool TakesLowHalf(int indexInRun) const {
        return ((m_exact ? static_cast<uint64_t>(indexInRun) : m_column) & 1) != 0;
    }

    void PaintPixel(bool lowHalf, uint8_t data) {
        const int index = lowHalf ? data & 0x0F : data >> 4;
        if (uint8_t* target = m_rows.At(m_row, m_column / 2))
            *target = static_cast<uint8_t>(m_column & 1 ? *target | index : index << 4);
        ++m_column;
    }

    bool m_exact;
};

} // namespace

void DecodeRle8(CxFile& stream, const DibRows& rows) {
    Rle8Decoder(stream, rows).Decode();
}

void DecodeRle4(CxFile& stream, const DibRows& rows, Rle4Reading reading) {
    Rle4Decoder(stream, rows, reading).Decode();
}

} // namespace tint
