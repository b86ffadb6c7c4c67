// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// Opening a popup of 12 items and closing it again, from the call to its return, with skinned menus and
/// with plain ones.
std::vector<Row> BenchMenuOpen();
