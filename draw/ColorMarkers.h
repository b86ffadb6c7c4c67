// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace tint {

/// Stands where a colour is expected and means "none": a hollow brush, a text colour that was not
/// saved, a colour to be derived from the system.  Not a colour any device can show (the top byte of
/// a real COLORREF is zero).
inline constexpr COLORREF kNoColor = 0xFFFFFFFF;

/// Stands where a text colour is expected and means "leave the device context's text colour alone".
inline constexpr COLORREF kKeepTextColor = 0xFF000000;

} // namespace tint
