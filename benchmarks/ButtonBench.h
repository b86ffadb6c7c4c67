// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// Painting one push button on the screen, from invalidation to the finished picture, against the
/// system's own button and against a single blit, all of the same size.
std::vector<Row> BenchButton();
