// SPDX-License-Identifier: MIT
#include "image/ResampleKernels.h"

#include <cmath>

namespace tint {

namespace {

constexpr double kPi = 3.14159265358979323846;

double Sinc(double t, double pi = kPi) {
    return t == 0 ? 1 : std::sin(pi * t) / (pi * t);
}

double CubicConvolution(double t, double a) {
    t = std::fabs(t);
    if (t < 1)
        return ((a + 2) * t - (a + 3)) * t * t + 1;
    return t < 2 ? a * (((t - 5) * t + 8) * t - 4) : 0;
}

double CubicBC(double t, double b, double c) {
    t = std::fabs(t);
    if (t < 1)
        return ((12 - 9 * b - 6 * c) * t * t * t + (-18 + 12 * b + 6 * c) * t * t + 6 - 2 * b) / 6;
    if (t < 2)
        return ((-b - 6 * c) * t * t * t + (6 * b + 30 * c) * t * t + (-12 * b - 48 * c) * t +
                8 * b + 24 * c) /
               6;
    return 0;
}

/// J1 by its power series, which is good to the last digits for the |x| <= 2 pi used here.
double BesselJ1(double x) {
    double term = x / 2;
    double sum = term;
    for (int m = 1; m <= 25; ++m) {
        term *= -(x * x / 4) / (m * (m + 1.0));
        sum += term;
    }
    return sum;
}

} // namespace

double NearestWeight(double t) {
    return t > -0.5 && t <= 0.5 ? 1 : 0;
}

double BilinearWeight(double t) {
    t = std::fabs(t);
    return t < 1 ? std::floor((1 - t) * 256 + 0.5) / 256 : 0;
}

double CubicSoftWeight(double t) {
    return CubicConvolution(t, -0.75);
}

double CubicSharpWeight(double t) {
    return CubicConvolution(t, -1);
}

double BSplineWeight(double t) {
    return CubicBC(t, 1, 0);
}

double LanczosWeight(double t) {
    constexpr double pi = 3.1415927f;
    return std::fabs(t) > 6 ? 0 : Sinc(t, pi) * Sinc(t / 6, pi);
}

double BoxWeight(double t) {
    return std::fabs(t) <= 0.5 ? 1 : 0;
}

double HermiteWeight(double t) {
    t = std::fabs(t);
    return t < 1 ? (2 * t - 3) * t * t + 1 : 0;
}

double HammingWeight(double t) {
    return std::fabs(t) < 1 ? 0.54 + 0.46 * std::cos(kPi * t) : 0;
}

double SincWeight(double t) {
    return std::fabs(t) <= 2 ? Sinc(t) : 0;
}

double BlackmanWeight(double t) {
    if (std::fabs(t) >= 2)
        return 0;
    return Sinc(t) * (0.42 + 0.5 * std::cos(kPi * t / 2) + 0.08 * std::cos(kPi * t));
}

double BesselWeight(double t) {
    if (t == 0)
        return kPi / 4;
    return std::fabs(t) <= 2 ? BesselJ1(kPi * t) / (2 * t) : 0;
}

double GaussianWeight(double t) {
    return std::fabs(t) <= 2 ? std::exp(-2 * t * t) : 0;
}

double QuadraticWeight(double t) {
    t = std::fabs(t);
    if (t < 0.5)
        return 0.75 - t * t;
    return t < 1.5 ? (t - 1.5) * (t - 1.5) / 2 : 0;
}

double MitchellWeight(double t) {
    return CubicBC(t, 1.0 / 3, 1.0 / 3);
}

double CatmullRomWeight(double t) {
    return CubicBC(t, 0, 0.5);
}

const Kernel& KernelOf(int32_t interpolation) {
    static const Kernel kernels[] = {
        {NearestWeight, 2, true},    {BilinearWeight, 2, true},  {CubicSoftWeight, 4, true},
        {CubicSharpWeight, 4, true}, {BSplineWeight, 4, true},   {LanczosWeight, 12, false},
        {BoxWeight, 4, true},        {HermiteWeight, 4, true},   {HammingWeight, 4, true},
        {SincWeight, 4, true},       {BlackmanWeight, 4, true},  {BesselWeight, 4, true},
        {GaussianWeight, 4, true},   {QuadraticWeight, 4, true}, {MitchellWeight, 4, true},
        {CatmullRomWeight, 4, true},
    };
    static_assert(sizeof(kernels) / sizeof(kernels[0]) == kCatmullRom + 1, "one for each method");
    return kernels[interpolation < kNearest || interpolation > kCatmullRom ? kLanczos
                                                                           : interpolation];
}

} // namespace tint
