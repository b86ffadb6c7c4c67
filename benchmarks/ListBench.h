// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// A list of 100,000 rows by 8 columns, a tenth of the cells with styles, against the system's own:
/// filling and emptying it (per row), repainting and scrolling by a page.
std::vector<Row> BenchList();
