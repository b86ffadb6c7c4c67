// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// The shadow of one popup against the same shadow written pixel by pixel; one menu item against a
/// plain buffered fill of its size.
std::vector<Row> BenchMenus();
