// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// Decoding a 24-bit BMP against allocating and copying, or reading, the same bytes.
std::vector<Row> BenchBmp();
/// Decoding JPEG against the bare library loop with the same settings.
std::vector<Row> BenchJpeg();
/// Decoding PNG against the bare library loop with the same transformations.
std::vector<Row> BenchPng();
/// Enlarging and shrinking against our plain loops, and against Pillow where there is one.
std::vector<Row> BenchResample();

/// What every subject measures with: 12 megapixels, few rounds.
inline constexpr unsigned kBenchWidth = 4000;
inline constexpr unsigned kBenchHeight = 3000;
inline constexpr int kImageRounds = 11;

/// Compare for one run between two looks at the clock, with the peak memory of the first contender.
std::vector<Row> CompareImages(const std::string& what, const std::vector<Contender>& contenders);
