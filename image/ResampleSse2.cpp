// SPDX-License-Identifier: MIT
//
// The resampling loops with SSE2, which every 64-bit x86 processor has.
#include "image/ResampleLoops.h"

#if defined(__SSE2__) || defined(_M_X64)

#include <emmintrin.h>

namespace tint {

namespace {

struct Sse2 {
    using Vector = __m128;
    static constexpr size_t kLanes = 4;
    static __m128 Load(const float* from) { return _mm_loadu_ps(from); }
    static void Store(float* to, __m128 value) { _mm_storeu_ps(to, value); }
    static __m128 Splat(float value) { return _mm_set1_ps(value); }
    static __m128 MulAdd(__m128 a, __m128 b, __m128 c) { return _mm_add_ps(_mm_mul_ps(a, b), c); }
    static __m128 Add(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
    static __m128 LoadBytes(const uint8_t* from) {
        int packed;
        memcpy(&packed, from, sizeof(packed));
        const __m128i zero = _mm_setzero_si128();
        const __m128i words = _mm_unpacklo_epi8(_mm_cvtsi32_si128(packed), zero);
        return _mm_cvtepi32_ps(_mm_unpacklo_epi16(words, zero));
    }
    /// Both packings saturate, which is the clamp.
    static __m128i Pack(__m128 a, __m128 b) {
        const __m128i words = _mm_packs_epi32(_mm_cvttps_epi32(a), _mm_cvttps_epi32(b));
        return _mm_packus_epi16(words, words);
    }
    static void StoreBytes(uint8_t* to, __m128 a, __m128 b) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(to), Pack(a, b));
    }

    using Pixel = __m128;
    static __m128 ZeroPixel() { return _mm_setzero_ps(); }
    static __m128 PixelFromBytes(const uint8_t* from) { return LoadBytes(from); }
    static __m128 AddPixel(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
    static __m128 BiasPixel(__m128 a, float bias) { return _mm_add_ps(a, Splat(bias)); }
    static void StorePixel(float* to, __m128 a) { Store(to, a); }
    static void StoreSpaced(float* to, __m128 a) { Store(to, a); }
    static void StorePixelBytes(uint8_t* to, __m128 a) {
        const int packed = _mm_cvtsi128_si32(Pack(a, a));
        memcpy(to, &packed, 3);
    }
    template <int Stride>
    static __m128 Filter(const float* pixels, const float* weights, uint32_t taps) {
        __m128 even = ZeroPixel();
        __m128 odd = ZeroPixel();
        uint32_t k = 0;
        for (; k + 2 <= taps; k += 2, pixels += 2 * Stride) {
            even = MulAdd(Load(pixels), Splat(weights[k]), even);
            odd = MulAdd(Load(pixels + Stride), Splat(weights[k + 1]), odd);
        }
        if (k < taps)
            even = MulAdd(Load(pixels), Splat(weights[k]), even);
        return _mm_add_ps(even, odd);
    }
};

} // namespace

const ResampleOps* Sse2ResampleOps() {
    static constexpr ResampleOps ops = MakeResampleOps<Sse2>("sse2");
    return &ops;
}

} // namespace tint

#else

const tint::ResampleOps* tint::Sse2ResampleOps() {
    return nullptr;
}

#endif
