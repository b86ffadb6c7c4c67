// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Megabytes (2^20 bytes) by which the resident memory of this program grows at most while `run`
/// runs; 0 where the system does not tell.
double PeakMegabytes(const std::function<void()>& run);
