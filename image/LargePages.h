// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace tint {

/// Asks the system to back a large fresh block with large pages, where it offers that on request:
/// most of what a first write to a large block costs is then saved.  A hint without other effect.
void PreferLargePages(void* block, size_t bytes);

} // namespace tint
