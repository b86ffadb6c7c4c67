// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

// Each against the control of the system's that a user would take for it.

/// Painting a link against a static text.
std::vector<Row> BenchLink();

/// Painting a button made of pictures against a button with a bitmap.
std::vector<Row> BenchBitmapButton();

/// Painting a static that shows a picture file against one with a bitmap.
std::vector<Row> BenchPicture();
