// SPDX-License-Identifier: MIT
#include "image/Resample.h"

#include "image/DecodeLimits.h"
#include "image/IsImage.h"
#include "image/ResampleAxis.h"
#include "image/ResampleOps.h"
#include "image/ResampleSource.h"
#include "image/ResampleTarget.h"

#include <algorithm>
#include <new>

using namespace tint;

namespace {

constexpr uint32_t kStripColumns = 128;      // of the target: its rows of floats stay in cache
constexpr uint32_t kStripPixels = 4096;      // of the source, where it shrinks
constexpr uint32_t kBandRows = 65536;        // whose weights are kept
constexpr uint32_t kRowsAtOnce = 16;         // source rows summed in one go
constexpr uint32_t kOutputsAtOnce = 4;       // target rows from the same source rows
constexpr uint64_t kFloatBytesPerPixel = 20; // of a source strip: spaced floats, weights

/// A resampling in progress: vertical strips, one after another, each from the first row to the
/// last, so that what a row needs of the rows around it is still in the processor's cache.
class Resampler {
public:
    Resampler(const IsImage& source, IsImage& target, const ResampleMethod& method,
              const ResampleOps& ops)
        : m_ops(ops), m_source(source, method.overflow), m_target(target),
          m_indexed(source.BitCount() != 24) {
        m_columns = {source.Width(), target.Width(), nullptr};
        m_rows = {source.Height(), target.Height(), nullptr};
        const Kernel& kernel = KernelOf(method.interpolation);
        const bool averages = method.averaging && (m_columns.Shrinks() || m_rows.Shrinks());
        for (ResampleAxis* axis : {&m_columns, &m_rows}) {
            if (!averages || axis->source < axis->target)
                axis->kernel = &kernel;
        }
        m_bias = averages || kernel.normalized ? 0.5f : 0.0f;
    }

    /// Bytes of working memory, about.
    uint64_t WorkingBytes() const {
        const uint64_t span = (StripColumns() - uint64_t{1}) * m_columns.source / m_columns.target +
                              1 + m_columns.MaxTaps();
        // Rows of a picture with a palette become bytes first, as many as are summed at once.
        const uint32_t rowsAtOnce =
            m_indexed && m_rows.Shrinks() ? std::min(kRowsAtOnce, m_rows.MaxTaps()) : 1;
        const uint64_t bytesPerPixel = kFloatBytesPerPixel + 3 * rowsAtOnce;
        const uint64_t rows = std::min(kBandRows, m_rows.target);
        const uint64_t bytesPerRow = m_rows.MaxTaps() * uint64_t{sizeof(float)} + sizeof(int64_t);
        return span * bytesPerPixel + rows * bytesPerRow;
    }

    void Run() {
        const uint32_t width = m_columns.target;
        const uint32_t height = m_rows.target;
        for (uint32_t row = 0; row < height; row += std::min(kBandRows, height - row)) {
            m_band = row;
            m_bandWeights = WeightsOf(m_rows, row, std::min(kBandRows, height - row));
            m_rowsWithin = m_bandWeights.CountWithin(m_rows.source);
            const uint32_t step = StripColumns();
            for (uint32_t column = 0; column < width; column += std::min(step, width - column)) {
                m_strip = column;
                m_stripWeights = WeightsOf(m_columns, column, std::min(step, width - column));
                m_columnsWithin = m_stripWeights.CountWithin(m_columns.source);
                RunStrip();
            }
        }
    }

private:
    uint32_t StripColumns() const {
        if (!m_columns.Shrinks())
            return kStripColumns;
        const uint64_t columns =
            static_cast<uint64_t>(kStripPixels) * m_columns.target / m_columns.source;
        return static_cast<uint32_t>(std::max<uint64_t>(columns, 1));
    }

    uint32_t Columns() const { return static_cast<uint32_t>(m_stripWeights.starts.size()); }
    uint32_t Rows() const { return static_cast<uint32_t>(m_bandWeights.starts.size()); }

    /// What reduces the data comes first.
    void RunStrip() {
        if (m_rows.Shrinks())
            RunColumnsFirst();
        else
            RunRowsFirst();
    }

    /// Stores a row.  Pixels whose whole window lies outside the picture take the colour of there as
    /// it is, whatever their weights add up to.
    void CloseRow(uint32_t row, uint8_t* out, uint32_t slot) {
        size_t column = row < m_rowsWithin ? m_columnsWithin : 0;
        for (; m_source.IsPlainOutside() && column < Columns(); ++column)
            m_source.PutOutside(out + column * 3);
        m_target.Close(m_band + row, m_strip, Columns(), slot);
    }

    // Rows first: each source row is filtered along itself once, into a ring of as many rows as a
    // target row asks for; target rows that ask for the same ones are made together.

    void RunRowsFirst() {
        const uint32_t taps = m_bandWeights.taps;
        const size_t stride = static_cast<size_t>(Columns()) * 3 + kFloatSlack;
        m_spaced.assign(static_cast<size_t>(m_stripWeights.Span()) * 4 + kFloatSlack, 0.0f);
        m_ring.assign(stride * taps, 0.0f);
        std::vector<const float*> rows(taps);
        int64_t filtered = m_bandWeights.First(); // the next row that is not in the ring
        for (uint32_t row = 0; row < Rows();) {
            const int64_t start = m_bandWeights.starts[row];
            for (filtered = std::max(filtered, start); filtered < start + taps; ++filtered)
                FilterRow(filtered, RingRow(filtered, stride));
            for (uint32_t k = 0; k < taps; ++k)
                rows[k] = RingRow(start + k, stride);
            uint32_t outputs = 1;
            while (outputs < kOutputsAtOnce && row + outputs < Rows() &&
                   m_bandWeights.starts[row + outputs] == start)
                ++outputs;
            BlendRows(rows.data(), row, outputs);
            row += outputs;
        }
    }

    float* RingRow(int64_t row, size_t stride) {
        const int64_t taps = m_bandWeights.taps;
        return m_ring.data() + static_cast<size_t>((row % taps + taps) % taps) * stride;
    }

    void FilterRow(int64_t row, float* out) {
        const uint32_t span = m_stripWeights.Span();
        m_ops.space(m_source.Row(row, m_stripWeights.First(), span, m_bytes[0]), m_spaced.data(),
                    span);
        m_ops.filterToFloats(m_spaced.data(), m_stripWeights.Table(), out);
    }

    void BlendRows(const float* const* rows, uint32_t row, uint32_t outputs) {
        uint8_t* out[kOutputsAtOnce];
        for (uint32_t o = 0; o < outputs; ++o)
            out[o] = m_target.Open(m_band + row + o, m_strip, Columns(), o);
        m_ops.blendRows(rows, m_bandWeights.taps, m_bandWeights.Of(row), m_bias,
                        static_cast<size_t>(Columns()) * 3, out, outputs);
        for (uint32_t o = 0; o < outputs; ++o)
            CloseRow(row + o, out[o], o);
    }

    // Columns first: the source rows of a target row are summed, and the sum is filtered along
    // itself.

    void RunColumnsFirst() {
        m_sums.assign(static_cast<size_t>(m_stripWeights.Span()) * 3 + kFloatSlack, 0.0f);
        for (uint32_t row = 0; row < Rows(); ++row) {
            for (uint32_t done = 0; done < m_bandWeights.taps; done += kRowsAtOnce)
                SumRows(row, done, std::min(kRowsAtOnce, m_bandWeights.taps - done));
            uint8_t* const out = m_target.Open(m_band + row, m_strip, Columns(), 0);
            m_ops.filterToBytes(m_sums.data(), m_stripWeights.Table(), m_bias, out);
            CloseRow(row, out, 0);
        }
    }

    void SumRows(uint32_t row, uint32_t first, uint32_t count) {
        const uint32_t span = m_stripWeights.Span();
        const uint8_t* rows[kRowsAtOnce];
        for (uint32_t k = 0; k < count; ++k)
            rows[k] = m_source.Row(m_bandWeights.starts[row] + first + k, m_stripWeights.First(),
                                   span, m_bytes[k]);
        m_ops.sumRows(rows, count, m_bandWeights.Of(row) + first, static_cast<size_t>(span) * 3,
                      first == 0, m_sums.data());
    }

    const ResampleOps& m_ops;
    const ResampleSource m_source;
    ResampleTarget m_target;
    bool m_indexed;
    ResampleAxis m_columns;
    ResampleAxis m_rows;
    float m_bias; ///< added before the sums are cut to whole numbers

    uint32_t m_band = 0;  ///< first target row of the band
    uint32_t m_strip = 0; ///< first target column of the strip
    AxisWeights m_bandWeights;
    AxisWeights m_stripWeights;
    size_t m_rowsWithin = 0; ///< of the band: the first ones, not wholly outside
    size_t m_columnsWithin = 0;

    std::vector<uint8_t> m_bytes[kRowsAtOnce];
    std::vector<float> m_spaced; ///< one source row
    std::vector<float> m_ring;   ///< filtered source rows
    std::vector<float> m_sums;   ///< summed source rows
};

} // namespace

const char* tint::ResamplePixels(const IsImage& source, IsImage& target,
                                 const ResampleMethod& method, const ResampleOps& ops) {
    Resampler resampler(source, target, method, ops);
    if (resampler.WorkingBytes() > GetDecodeLimits().maxBlockBytes)
        return "resampling exceeds the limit maxBlockBytes";
    resampler.Run();
    return nullptr;
}

bool IsImage::Resample(int32_t newWidth, int32_t newHeight, int32_t interpolation, int32_t overflow,
                       IsImage* target, bool disableAveraging) {
    const char* refusal = nullptr;
    if (newWidth < 1 || newHeight < 1)
        refusal = "new width or height is below 1";
    else if (IsEmpty())
        refusal = "image is empty";
    if (refusal) {
        SetErrorText(refusal);
        return false;
    }
    SetErrorText(nullptr);
    if (newWidth == header.biWidth && newHeight == header.biHeight) {
        if (!target || target->Copy(*this))
            return true;
        SetErrorText(target->LastErrorText());
        return false;
    }

    IsImage resized;
    if (!resized.CreateLike(*this, static_cast<uint32_t>(newWidth),
                            static_cast<uint32_t>(newHeight))) {
        SetErrorText(resized.LastErrorText());
        return false;
    }
    try {
        refusal = ResamplePixels(*this, resized, {interpolation, overflow, !disableAveraging},
                                 FastestResampleOps());
    } catch (const std::bad_alloc&) {
        refusal = "out of memory";
    }
    if (!refusal && !(target ? target : this)->Transfer(resized))
        refusal = "image is a view of another";
    SetErrorText(refusal);
    return !refusal;
}
