// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "benchmarks/Comparison.h"

/// Painting a link, a button made of pictures and a static that shows a picture file, each against the
/// control of the system's that a user would take for it: a text, a button and a static with a bitmap.
std::vector<Row> BenchDecorations();
