// SPDX-License-Identifier: MIT
//
// The interpolation kernels: values worked out by hand, symmetry and extent.
#include "image/ResampleAxis.h"
#include "image/ResampleKernels.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tint;

namespace {

TEST(KernelsTest, HaveTheValuesOfTheirFormulas) {
    const struct {
        const char* name;
        int32_t method;
        uint32_t taps;
        double at0, atHalf, at1, at3Halves; ///< weights at 0, 1/2, 1 and 3/2
        double reach;                       ///< the weight is 0 beyond
    } cases[] = {
        {"Nearest", 0, 2, 1, 1, 0, 0, 0.5},
        {"Bilinear", 1, 2, 1, 0.5, 0, 0, 1},
        {"CubicSoft", 2, 4, 1, 0.59375, 0, -0.09375, 2},
        {"CubicSharp", 3, 4, 1, 0.625, 0, -0.125, 2},
        {"BSpline", 4, 4, 2.0 / 3, 23.0 / 48, 1.0 / 6, 1.0 / 48, 2},
        {"Lanczos", 5, 12, 1, 0.6293724, 0, -0.1910531, 6},
        {"Box", 6, 4, 1, 1, 0, 0, 0.5},
        {"Hermite", 7, 4, 1, 0.5, 0, 0, 1},
        {"Hamming", 8, 4, 1, 0.54, 0, 0, 1},
        {"Sinc", 9, 4, 1, 0.6366198, 0, -0.2122066, 2},
        {"Blackman", 10, 4, 1, 0.4924594, 0, -0.0141004, 2},
        {"Bessel", 11, 4, 0.7853982, 0.5668241, 0.1423077, -0.0938860, 2},
        {"Gaussian", 12, 4, 1, 0.6065307, 0.1353353, 0.0111090, 2},
        {"Quadratic", 13, 4, 0.75, 0.5, 0.125, 0, 1.5},
        {"Mitchell", 14, 4, 8.0 / 9, 77.0 / 144, 1.0 / 18, -5.0 / 144, 2},
        {"CatmullRom", 15, 4, 1, 0.5625, 0, -0.0625, 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const Kernel& kernel = KernelOf(c.method);
        EXPECT_EQ(kernel.taps, c.taps);
        EXPECT_EQ(kernel.normalized, c.method != kLanczos);
        EXPECT_NEAR(kernel.weight(0), c.at0, 1e-6);
        EXPECT_NEAR(kernel.weight(0.5), c.atHalf, 1e-6);
        EXPECT_NEAR(kernel.weight(1), c.at1, 1e-6);
        EXPECT_NEAR(kernel.weight(1.5), c.at3Halves, 1e-6);
        for (double t = 0.01; t < 8; t += 0.01) {
            EXPECT_DOUBLE_EQ(kernel.weight(t), kernel.weight(-t)) << t;
            EXPECT_TRUE(t <= c.reach || kernel.weight(t) == 0) << t;
        }
    }
}

TEST(KernelsTest, AreChosenByMethodAndNearestTakesOneOfTwo) {
    EXPECT_EQ(NearestWeight(0.5) + NearestWeight(-0.5), 1);
    EXPECT_EQ(&KernelOf(16), &KernelOf(kLanczos));
    EXPECT_EQ(&KernelOf(-1), &KernelOf(kLanczos));
}

/// In single precision 400000017 / 200000000 is a little too much, and the last windows lie outside.
TEST(KernelsTest, WindowsBeyondAVeryLongSideAreCountedOut) {
    const int64_t side = 400000017;
    const AxisWeights axis = WeightsOf({side, 200000000, &KernelOf(kLanczos)}, 200000000 - 40, 40);
    const size_t within = axis.CountWithin(side);
    ASSERT_TRUE(within > 0 && within < 40) << within;
    EXPECT_LT(axis.starts[within - 1], side);
    EXPECT_GE(axis.starts[within], side);
}

/// Positions whose products do not fit 32 bits.
TEST(CoverageTest, HoldsAtTheLargestSizes) {
    const AxisWeights axis = WeightsOf({INT32_MAX, INT32_MAX - 1, nullptr}, INT32_MAX - 3, 2);
    ASSERT_EQ(axis.taps, 3u);
    EXPECT_EQ(axis.starts[1], INT32_MAX - 3);
    EXPECT_NEAR(axis.Of(1)[1], 0, 1e-6);
    EXPECT_NEAR(axis.Of(1)[2], 1, 1e-6);
}

} // namespace
