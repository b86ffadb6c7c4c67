// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The loops of ResampleOps over the vector type `V` of an instruction set, which has
///
///     Vector, kLanes           floats in a register
///     Load, Store, Splat       from, to unaligned memory
///     MulAdd(a, b, c)          a * b + c
///     Add(a, b)
///     LoadBytes(bytes)         kLanes bytes as floats
///     StoreBytes(out, a, b)    2 * kLanes bytes, clamped and cut
///     Pixel                    blue, green, red in a register
///     PixelFromBytes(bytes)    may read a fourth byte
///     ZeroPixel, AddPixel, BiasPixel
///     StorePixel               three floats, perhaps a fourth
///     StoreSpaced, StorePixelBytes
///     Filter<Stride>(pixels, weights, taps)   the weighted sum of pixels `Stride` floats apart
///
/// Each source file that includes this is compiled for its own instruction set: everything here is
/// local to it, and nothing of the standard library is called that another file could share.

#include "image/ResampleOps.h"

#include <cstring>

namespace tint {
namespace {

template <class V>
void Space(const uint8_t* bytes, float* spaced, size_t pixels) {
    for (size_t i = 0; i + 1 < pixels; ++i)
        V::StoreSpaced(spaced + i * 4, V::PixelFromBytes(bytes + i * 3));
    // The last one has no byte behind it.
    for (size_t i = pixels - (pixels > 0); i < pixels; ++i) {
        uint8_t last[4] = {};
        memcpy(last, bytes + i * 3, 3);
        V::StoreSpaced(spaced + i * 4, V::PixelFromBytes(last));
    }
}

/// A long sum in parts, so that what each addition rounds away stays small.
template <class V, int Stride>
typename V::Pixel FilterPixel(const float* pixels, const float* weights, uint32_t taps) {
    constexpr uint32_t part = 256;
    if (taps <= part)
        return V::template Filter<Stride>(pixels, weights, taps);
    auto sum = V::ZeroPixel();
    for (uint32_t done = 0; done < taps; done += part) {
        const uint32_t now = taps - done < part ? taps - done : part;
        sum =
            V::AddPixel(sum, V::template Filter<Stride>(pixels + static_cast<size_t>(done) * Stride,
                                                        weights + done, now));
    }
    return sum;
}

template <class V, int Stride>
typename V::Pixel FilterAt(const float* row, const FilterTable& table, size_t index) {
    const int64_t start = table.starts[index] - table.starts[0];
    return FilterPixel<V, Stride>(row + start * Stride, table.weights + index * table.taps,
                                  table.taps);
}

template <class V>
void FilterToFloats(const float* spaced, const FilterTable& table, float* out) {
    for (size_t i = 0; i < table.count; ++i)
        V::StorePixel(out + i * 3, FilterAt<V, 4>(spaced, table, i));
}

template <class V>
void FilterToBytes(const float* row, const FilterTable& table, float bias, uint8_t* out) {
    for (size_t i = 0; i < table.count; ++i)
        V::StorePixelBytes(out + i * 3, V::BiasPixel(FilterAt<V, 3>(row, table, i), bias));
}

/// Two registers of each of `Outputs` rows, so that a loaded source serves all of them.
template <class V, int Outputs>
void BlendBlock(const float* const* rows, uint32_t taps, const float* weights, float bias,
                size_t at, uint8_t* const* out) {
    typename V::Vector low[Outputs];
    typename V::Vector high[Outputs];
    for (int o = 0; o < Outputs; ++o)
        low[o] = high[o] = V::Splat(bias);
    for (uint32_t k = 0; k < taps; ++k) {
        const auto sourceLow = V::Load(rows[k] + at);
        const auto sourceHigh = V::Load(rows[k] + at + V::kLanes);
        for (int o = 0; o < Outputs; ++o) {
            const auto weight = V::Splat(weights[static_cast<size_t>(o) * taps + k]);
            low[o] = V::MulAdd(sourceLow, weight, low[o]);
            high[o] = V::MulAdd(sourceHigh, weight, high[o]);
        }
    }
    for (int o = 0; o < Outputs; ++o)
        V::StoreBytes(out[o], low[o], high[o]);
}

template <class V, int Outputs>
void BlendOutputs(const float* const* rows, uint32_t taps, const float* weights, float bias,
                  size_t count, uint8_t* const* out) {
    constexpr size_t block = 2 * V::kLanes;
    static_assert(block <= kFloatSlack, "the last block reads behind the rows");
    uint8_t* at[Outputs];
    size_t done = 0;
    for (; done + block <= count; done += block) {
        for (int o = 0; o < Outputs; ++o)
            at[o] = out[o] + done;
        BlendBlock<V, Outputs>(rows, taps, weights, bias, done, at);
    }
    if (done == count)
        return;
    uint8_t rest[Outputs][block];
    for (int o = 0; o < Outputs; ++o)
        at[o] = rest[o];
    BlendBlock<V, Outputs>(rows, taps, weights, bias, done, at);
    for (int o = 0; o < Outputs; ++o)
        memcpy(out[o] + done, rest[o], count - done);
}

template <class V>
void BlendRows(const float* const* rows, uint32_t taps, const float* weights, float bias,
               size_t count, uint8_t* const* out, uint32_t outputs) {
    switch (outputs) {
    case 1:
        return BlendOutputs<V, 1>(rows, taps, weights, bias, count, out);
    case 2:
        return BlendOutputs<V, 2>(rows, taps, weights, bias, count, out);
    case 3:
        return BlendOutputs<V, 3>(rows, taps, weights, bias, count, out);
    default:
        return BlendOutputs<V, 4>(rows, taps, weights, bias, count, out);
    }
}

/// `Vectors` registers of sums.
template <class V, int Vectors>
void SumBlock(const uint8_t* const* rows, uint32_t taps, const float* weights, size_t at,
              bool start, float* sums) {
    typename V::Vector sum[Vectors];
    for (int i = 0; i < Vectors; ++i)
        sum[i] = V::Splat(0);
    for (uint32_t k = 0; k < taps; ++k) {
        const auto weight = V::Splat(weights[k]);
        for (int i = 0; i < Vectors; ++i)
            sum[i] = V::MulAdd(V::LoadBytes(rows[k] + at + i * V::kLanes), weight, sum[i]);
    }
    for (int i = 0; i < Vectors; ++i) {
        float* const target = sums + at + i * V::kLanes;
        V::Store(target, start ? sum[i] : V::Add(sum[i], V::Load(target)));
    }
}

template <class V>
void SumRows(const uint8_t* const* rows, uint32_t taps, const float* weights, size_t count,
             bool start, float* sums) {
    constexpr size_t block = 4 * V::kLanes;
    size_t done = 0;
    for (; done + block <= count; done += block)
        SumBlock<V, 4>(rows, taps, weights, done, start, sums);
    for (; done < count; ++done) {
        float sum = 0;
        for (uint32_t k = 0; k < taps; ++k)
            sum += static_cast<float>(rows[k][done]) * weights[k];
        sums[done] = start ? sum : sums[done] + sum;
    }
}

template <class V>
constexpr ResampleOps MakeResampleOps(const char* name) {
    return {name, Space<V>, FilterToFloats<V>, FilterToBytes<V>, BlendRows<V>, SumRows<V>};
}

} // namespace
} // namespace tint
