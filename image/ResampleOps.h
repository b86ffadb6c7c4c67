// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The inner loops of a resampling, once for each instruction set.
///
/// Rows are blue, green, red: as bytes, as floats, or as floats with a fourth one of no meaning
/// behind each pixel ("spaced").  Sums are made in single precision; variants differ in rounding
/// only, so that a result may differ by 1.

#include <cstddef>
#include <cstdint>

namespace tint {

/// Floats that may be read or written behind the end of a row of floats.
inline constexpr size_t kFloatSlack = 16;

/// The weights of consecutive pixels of a row.
struct FilterTable {
    const int64_t* starts; ///< the first source pixel of each; they never fall
    const float* weights;  ///< `taps` of each
    uint32_t taps;         ///< source pixels of each, in sequence
    size_t count;          ///< pixels
};

/// The loops of one instruction set.
struct ResampleOps {
    const char* name;

    /// Turns `pixels` pixels of bytes into spaced floats.
    void (*space)(const uint8_t* bytes, float* spaced, size_t pixels);

    /// Filters a spaced row, which begins at the first start of `table`, along itself.
    void (*filterToFloats)(const float* spaced, const FilterTable& table, float* out);

    /// Filters a row of floats in the same way into bytes, clamped and, with `bias` added, cut.
    void (*filterToBytes)(const float* row, const FilterTable& table, float bias, uint8_t* out);

    /// Blends rows of `count` floats into bytes, clamped and, with `bias` added, cut.
    /// @param rows     `taps` rows
    /// @param weights  `taps` weights of the first output, then those of the next, and so on
    /// @param out      `outputs` rows of bytes, 1 to 4
    void (*blendRows)(const float* const* rows, uint32_t taps, const float* weights, float bias,
                      size_t count, uint8_t* const* out, uint32_t outputs);

    /// Adds `count` weighted bytes of each of `taps` rows to `sums`; starts them when `start`.
    void (*sumRows)(const uint8_t* const* rows, uint32_t taps, const float* weights, size_t count,
                    bool start, float* sums);
};

/// Plain C++, for any processor.
const ResampleOps& PlainResampleOps();
/// Null on a processor, or in a build, that has no SSE2.
const ResampleOps* Sse2ResampleOps();
/// Null on a processor, or in a build, that has no AVX2 and FMA.
const ResampleOps* Avx2ResampleOps();

/// The best of them here.
const ResampleOps& FastestResampleOps();

} // namespace tint
