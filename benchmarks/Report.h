// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "benchmarks/Comparison.h"

/// The rows as a table for people, with a line of headings; peak memory only where it was measured.
std::string FormatTable(const std::vector<Row>& rows);

/// The rows as a JSON array of objects: what, against, oursMicroseconds, theirsMicroseconds, ratio, and
/// where it was measured peakMegabytes.
std::string FormatJson(const std::vector<Row>& rows);
