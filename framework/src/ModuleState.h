// SPDX-License-Identifier: MIT
#pragma once

#include "afx/Platform.h"

namespace afx {

/// Module of the program; the executable's unless set otherwise.
HINSTANCE InstanceHandle() noexcept;
void SetInstanceHandle(HINSTANCE instance) noexcept;

/// Module that strings, dialogs and other resources are loaded from; InstanceHandle() unless set.
HINSTANCE ResourceHandle() noexcept;
/// @param resources module to load resources from, null for InstanceHandle().
void SetResourceHandle(HINSTANCE resources) noexcept;

} // namespace afx
