// SPDX-License-Identifier: MIT
#pragma once

namespace tint {

/// Whether the processor has AVX2 and FMA and the system saves their registers.
bool HasAvx2AndFma();

} // namespace tint
