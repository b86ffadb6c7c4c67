// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The interpolation methods of IsImage::Resample and the kernels behind them.
///
/// A kernel says how much a source pixel counts at the signed distance `t`, in source pixels, from
/// the point asked for; it is applied along each axis by itself.  Only pixels of the kernel's window
/// are asked: `taps` of them, half on either side of the point.

#include <cstdint>

namespace tint {

/// How Resample finds a colour between pixels; any other value behaves as kLanczos.
enum Interpolation : int32_t {
    kNearest = 0,    ///< the pixel nearest to the point
    kBilinear = 1,   ///< a straight line between two pixels
    kCubicSoft = 2,  ///< cubic convolution, a = -3/4
    kCubicSharp = 3, ///< cubic convolution, a = -1
    kBSpline = 4,    ///< cubic B-spline: soft, never overshoots
    kLanczos = 5,    ///< sinc in a window of 12 pixels: the sharpest, and the slowest
    kBox = 6,        ///< the nearest pixel; the mean where two are as near
    kHermite = 7,    ///< a smooth step between two pixels
    kHamming = 8,    ///< the Hamming window as a kernel
    kSinc = 9,       ///< the ideal low-pass, cut off after two pixels
    kBlackman = 10,  ///< sinc under a Blackman window
    kBessel = 11,    ///< the circular low-pass, cut off after two pixels
    kGaussian = 12,  ///< a bell curve, sigma 1/2
    kQuadratic = 13, ///< quadratic B-spline
    kMitchell = 14,  ///< cubic with B = C = 1/3: between blur and ringing
    kCatmullRom = 15 ///< cubic with B = 0, C = 1/2: passes through the pixels
};

/// One interpolation method.
struct Kernel {
    double (*weight)(double t); ///< the formula, not normalised
    uint32_t taps;              ///< pixels of the window, even: floor(point) - taps / 2 + 1 and on
    bool normalized;            ///< whether weights are divided by their sum
};

/// The kernel of a method.  The Lanczos kernel alone is used as it is: its sums are not divided by
/// the sum of the weights, which strays from 1 by less than 1/100.
const Kernel& KernelOf(int32_t interpolation);

// The formulas.  sinc(t) = sin(pi t) / (pi t), 1 at 0.  All are 0 where nothing else is said.

/// 1 for -1/2 < t <= 1/2.
double NearestWeight(double t);
/// 1 - |t| for |t| < 1, rounded to a multiple of 1/256.
double BilinearWeight(double t);
/// Cubic convolution: (a+2)|t|^3 - (a+3)|t|^2 + 1 for |t| < 1 and a|t|^3 - 5a|t|^2 + 8a|t| - 4a for
/// |t| < 2, with a = -3/4.
double CubicSoftWeight(double t);
/// As CubicSoftWeight with a = -1.
double CubicSharpWeight(double t);
/// 2/3 - |t|^2 + |t|^3 / 2 for |t| < 1, (2 - |t|)^3 / 6 for |t| < 2.
double BSplineWeight(double t);
/// sinc(t) sinc(t / 6) for |t| <= 6, with pi taken as 3.1415927 in single precision.
double LanczosWeight(double t);
/// 1 for |t| <= 1/2.
double BoxWeight(double t);
/// 2|t|^3 - 3|t|^2 + 1 for |t| < 1.
double HermiteWeight(double t);
/// 0.54 + 0.46 cos(pi t) for |t| < 1.
double HammingWeight(double t);
/// sinc(t) for |t| <= 2.
double SincWeight(double t);
/// sinc(t) (0.42 + 0.5 cos(pi t / 2) + 0.08 cos(pi t)) for |t| < 2.
double BlackmanWeight(double t);
/// J1(pi t) / (2 t) for |t| <= 2, pi / 4 at 0; J1 is the Bessel function of the first kind.
double BesselWeight(double t);
/// exp(-2 t^2) for |t| <= 2.
double GaussianWeight(double t);
/// 3/4 - t^2 for |t| < 1/2, (|t| - 3/2)^2 / 2 for |t| < 3/2.
double QuadraticWeight(double t);
/// The cubic with B and C: ((12 - 9B - 6C)|t|^3 + (-18 + 12B + 6C)|t|^2 + 6 - 2B) / 6 for |t| < 1
/// and ((-B - 6C)|t|^3 + (6B + 30C)|t|^2 + (-12B - 48C)|t| + 8B + 24C) / 6 for |t| < 2, with
/// B = C = 1/3.
double MitchellWeight(double t);
/// As MitchellWeight with B = 0, C = 1/2, which is cubic convolution with a = -1/2.
double CatmullRomWeight(double t);

} // namespace tint
