// SPDX-License-Identifier: MIT
#pragma once

#include "afx/Platform.h"

namespace afx {

/// Copies a message into a buffer of `size` characters, cut off where that ends and always
/// terminated. Answers false when there is no message or no buffer.
BOOL CopyMessage(const char* message, char* buffer, UINT size, UINT* helpContext) noexcept;

} // namespace afx
