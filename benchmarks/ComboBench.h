// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// Painting one combo box on the screen, from invalidation to the finished picture, against the
/// system's own and against a single blit, all of the same size.
std::vector<Row> BenchCombo();
