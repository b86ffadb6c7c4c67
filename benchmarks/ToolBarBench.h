// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// Painting a toolbar of 20 buttons with images, one checked and one disabled, against the system's own
/// toolbar and against a single blit, all of the same size.
std::vector<Row> BenchToolBar();
