// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// Repainting a dialog full of controls, background and all, against the same dialog of the system's own
/// controls: six push buttons, three combo boxes, a list of 20 rows, three links, a button made of
/// pictures and a picture.
std::vector<Row> BenchDialog();
