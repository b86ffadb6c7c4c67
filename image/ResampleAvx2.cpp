// SPDX-License-Identifier: MIT
//
// The resampling loops with AVX2 and FMA.  The build turns them on for this file alone; nothing in
// it runs before the processor has been asked.
#include "image/CpuFeatures.h"
#include "image/ResampleLoops.h"

#if defined(__AVX2__)

#include <immintrin.h>

namespace tint {

namespace {

struct Avx2 {
    using Vector = __m256;
    static constexpr size_t kLanes = 8;
    static __m256 Load(const float* from) { return _mm256_loadu_ps(from); }
    static void Store(float* to, __m256 value) { _mm256_storeu_ps(to, value); }
    static __m256 Splat(float value) { return _mm256_set1_ps(value); }
    static __m256 MulAdd(__m256 a, __m256 b, __m256 c) { return _mm256_fmadd_ps(a, b, c); }
    static __m256 Add(__m256 a, __m256 b) { return _mm256_add_ps(a, b); }
    static __m256 LoadBytes(const uint8_t* from) {
        const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(from));
        return _mm256_cvtepi32_ps(_mm256_cvtepu8_epi32(bytes));
    }
    /// Both packings saturate, which is the clamp; they work on each half by itself.
    static void StoreBytes(uint8_t* to, __m256 a, __m256 b) {
        const __m256i mixed = _mm256_packs_epi32(_mm256_cvttps_epi32(a), _mm256_cvttps_epi32(b));
        const __m256i words = _mm256_permute4x64_epi64(mixed, _MM_SHUFFLE(3, 1, 2, 0));
        const __m128i bytes =
            _mm_packus_epi16(_mm256_castsi256_si128(words), _mm256_extracti128_si256(words, 1));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to), bytes);
    }

    using Pixel = __m128;
    static __m128 ZeroPixel() { return _mm_setzero_ps(); }
    static __m128 PixelFromBytes(const uint8_t* from) {
        int packed;
        memcpy(&packed, from, sizeof(packed));
        return _mm_cvtepi32_ps(_mm_cvtepu8_epi32(_mm_cvtsi32_si128(packed)));
    }
    static __m128 AddPixel(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
    static __m128 BiasPixel(__m128 a, float bias) { return _mm_add_ps(a, _mm_set1_ps(bias)); }
    static void StorePixel(float* to, __m128 a) { _mm_storeu_ps(to, a); }
    static void StoreSpaced(float* to, __m128 a) { _mm_storeu_ps(to, a); }
    static void StorePixelBytes(uint8_t* to, __m128 a) {
        const __m128i integers = _mm_cvttps_epi32(a);
        const __m128i words = _mm_packs_epi32(integers, integers);
        const int packed = _mm_cvtsi128_si32(_mm_packus_epi16(words, words));
        memcpy(to, &packed, 3);
    }

    /// Two spaced pixels fill a register: each gets its weight in its half.
    static __m256 AddPair(const float* pixels, const float* weights, __m256 sum) {
        double pair;
        memcpy(&pair, weights, sizeof(pair));
        const __m256 both = _mm256_castpd_ps(_mm256_set1_pd(pair));
        const __m256i halves = _mm256_setr_epi32(0, 0, 0, 0, 1, 1, 1, 1);
        return MulAdd(Load(pixels), _mm256_permutevar_ps(both, halves), sum);
    }
    static __m128 AddOne(const float* pixel, float weight, __m128 sum) {
        return _mm_fmadd_ps(_mm_loadu_ps(pixel), _mm_set1_ps(weight), sum);
    }
    static __m128 SumHalves(__m256 a) {
        return _mm_add_ps(_mm256_castps256_ps128(a), _mm256_extractf128_ps(a, 1));
    }
    template <int Stride>
    static __m128 Filter(const float* pixels, const float* weights, uint32_t taps) {
        uint32_t k = 0;
        __m128 sum = ZeroPixel();
        if constexpr (Stride == 4) {
            __m256 even = _mm256_setzero_ps();
            __m256 odd = _mm256_setzero_ps();
            for (; k + 4 <= taps; k += 4, pixels += 16) {
                even = AddPair(pixels, weights + k, even);
                odd = AddPair(pixels + 8, weights + k + 2, odd);
            }
            sum = SumHalves(_mm256_add_ps(even, odd));
        } else {
            __m128 odd = ZeroPixel();
            for (; k + 2 <= taps; k += 2, pixels += 2 * Stride) {
                sum = AddOne(pixels, weights[k], sum);
                odd = AddOne(pixels + Stride, weights[k + 1], odd);
            }
            sum = _mm_add_ps(sum, odd);
        }
        for (; k < taps; ++k, pixels += Stride)
            sum = AddOne(pixels, weights[k], sum);
        return sum;
    }
};

} // namespace

const ResampleOps* Avx2ResampleOps() {
    static constexpr ResampleOps ops = MakeResampleOps<Avx2>("avx2");
    return HasAvx2AndFma() ? &ops : nullptr;
}

} // namespace tint

#else

const tint::ResampleOps* tint::Avx2ResampleOps() {
    return nullptr;
}

#endif
