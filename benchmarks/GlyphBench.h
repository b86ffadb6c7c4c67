// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// Drawing one flat arrow button into memory, against the arrow button that the system draws and
/// against a single blit, all of the same size.
std::vector<Row> BenchGlyph();
