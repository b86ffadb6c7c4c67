// SPDX-License-Identifier: MIT
#pragma once

#include "image/ResampleKernels.h"
#include "image/ResampleOps.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace tint {

/// One axis of a resampling: how many positions there are and how one becomes the other.
struct ResampleAxis {
    uint32_t source = 1; ///< pixels, at least 1
    uint32_t target = 1; ///< pixels, at least 1
    /// Null for the mean over the area that a target pixel covers.
    const Kernel* kernel = nullptr;

    bool Shrinks() const { return source > target; }
    /// Most source positions that one target position asks for.
    uint32_t MaxTaps() const;
};

/// The source positions and weights of consecutive target positions.
struct AxisWeights {
    uint32_t taps;               ///< source positions of each, in sequence
    std::vector<int64_t> starts; ///< the first of them; may lie outside the picture with a kernel
    std::vector<float> weights;  ///< `taps` of each target position

    const float* Of(size_t index) const { return weights.data() + index * taps; }
    /// First source position that any asks for; starts never fall.
    int64_t First() const { return starts.front(); }
    /// Source positions from First to the last one asked for.
    uint32_t Span() const { return static_cast<uint32_t>(starts.back() - starts.front()) + taps; }
    /// Positions that ask for a pixel below `size`; those that ask only for pixels beyond come last.
    /// The single-precision scale of a side of more than 2^24 pixels can carry points so far.
    size_t CountWithin(int64_t size) const {
        return static_cast<size_t>(std::lower_bound(starts.begin(), starts.end(), size) -
                                   starts.begin());
    }
    FilterTable Table() const { return {starts.data(), weights.data(), taps, starts.size()}; }
};

/// The weights of the target positions `first` to `first + count - 1`.
AxisWeights WeightsOf(const ResampleAxis& axis, uint32_t first, uint32_t count);

} // namespace tint
