// SPDX-License-Identifier: MIT
//
// The resampling loops in plain C++, and the choice among the variants.
#include "image/ResampleLoops.h"

namespace tint {

namespace {

uint8_t ToByte(float value) {
    return static_cast<uint8_t>(value <= 0 ? 0 : value >= 255 ? 255 : value);
}

struct Plain {
    using Vector = float;
    static constexpr size_t kLanes = 1;
    static float Load(const float* from) { return *from; }
    static void Store(float* to, float value) { *to = value; }
    static float Splat(float value) { return value; }
    static float MulAdd(float a, float b, float c) { return a * b + c; }
    static float Add(float a, float b) { return a + b; }
    static float LoadBytes(const uint8_t* from) { return *from; }
    static void StoreBytes(uint8_t* to, float a, float b) {
        to[0] = ToByte(a);
        to[1] = ToByte(b);
    }

    struct Pixel {
        float channels[3];
    };
    static Pixel ZeroPixel() { return {}; }
    static Pixel PixelFromBytes(const uint8_t* from) {
        return {{static_cast<float>(from[0]), static_cast<float>(from[1]),
                 static_cast<float>(from[2])}};
    }
    static Pixel AddPixel(Pixel a, const Pixel& b) {
        for (int c = 0; c < 3; ++c)
            a.channels[c] += b.channels[c];
        return a;
    }
    static Pixel BiasPixel(Pixel a, float bias) { return AddPixel(a, {{bias, bias, bias}}); }
    static void StorePixel(float* to, const Pixel& a) { memcpy(to, a.channels, sizeof(a)); }
    static void StoreSpaced(float* to, const Pixel& a) { StorePixel(to, a); }
    static void StorePixelBytes(uint8_t* to, const Pixel& a) {
        for (int c = 0; c < 3; ++c)
            to[c] = ToByte(a.channels[c]);
    }
    template <int Stride>
    static Pixel Filter(const float* pixels, const float* weights, uint32_t taps) {
        Pixel sum = {};
        for (uint32_t k = 0; k < taps; ++k, pixels += Stride) {
            for (int c = 0; c < 3; ++c)
                sum.channels[c] += pixels[c] * weights[k];
        }
        return sum;
    }
};

} // namespace

const ResampleOps& PlainResampleOps() {
    static constexpr ResampleOps ops = MakeResampleOps<Plain>("plain");
    return ops;
}

const ResampleOps& FastestResampleOps() {
    if (const ResampleOps* avx2 = Avx2ResampleOps())
        return *avx2;
    const ResampleOps* const sse2 = Sse2ResampleOps();
    return sse2 ? *sse2 : PlainResampleOps();
}

} // namespace tint
