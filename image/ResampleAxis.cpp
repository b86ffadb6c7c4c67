// SPDX-License-Identifier: MIT
#include "image/ResampleAxis.h"

#include <algorithm>
#include <cmath>

namespace tint {

namespace {

/// Weights of one target position from a kernel.  @return its first source position
int64_t KernelWeights(const ResampleAxis& axis, uint32_t at, float* weights) {
    const Kernel& kernel = *axis.kernel;
    const float scale = static_cast<float>(axis.source) / static_cast<float>(axis.target);
    const double point = (at + 0.5) * static_cast<double>(scale) - 0.5;
    const auto start = static_cast<int64_t>(std::floor(point)) - kernel.taps / 2 + 1;
    double sum = 0;
    for (uint32_t i = 0; i < kernel.taps; ++i) {
        const double weight = kernel.weight(static_cast<double>(start + i) - point);
        weights[i] = static_cast<float>(weight);
        sum += weight;
    }
    if (kernel.normalized) {
        for (uint32_t i = 0; i < kernel.taps; ++i)
            weights[i] = static_cast<float>(weights[i] / sum);
    }
    return start;
}

/// Weights of one target position by the area it covers, in whole numbers: the shares of a source
/// pixel add up, so that the mean brightness stays.  @return its first source position
int64_t CoverageWeights(const ResampleAxis& axis, uint32_t at, uint32_t taps, float* weights) {
    const uint64_t from = static_cast<uint64_t>(at) * axis.source;
    const uint64_t to = from + axis.source;
    const uint64_t start = std::min<uint64_t>(from / axis.target, axis.source - taps);
    for (uint32_t i = 0; i < taps; ++i) {
        const uint64_t left = std::max(from, (start + i) * axis.target);
        const uint64_t right = std::min(to, (start + i + 1) * axis.target);
        weights[i] = right > left ? static_cast<float>(static_cast<double>(right - left) /
                                                       static_cast<double>(axis.source))
                                  : 0;
    }
    return static_cast<int64_t>(start);
}

} // namespace

uint32_t ResampleAxis::MaxTaps() const {
    if (kernel)
        return kernel->taps;
    // An area of whole pixels starts at one; any other may touch one pixel more on both sides.
    const uint32_t whole = source / target;
    return std::min(source, source % target ? whole + 2 : whole);
}

AxisWeights WeightsOf(const ResampleAxis& axis, uint32_t first, uint32_t count) {
    AxisWeights all;
    all.taps = axis.MaxTaps();
    all.starts.resize(count);
    all.weights.resize(static_cast<size_t>(count) * all.taps);
    for (uint32_t i = 0; i < count; ++i) {
        float* weights = all.weights.data() + static_cast<size_t>(i) * all.taps;
        all.starts[i] = axis.kernel ? KernelWeights(axis, first + i, weights)
                                    : CoverageWeights(axis, first + i, all.taps, weights);
    }
    return all;
}

} // namespace tint
