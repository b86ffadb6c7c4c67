// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include "draw/Hls.h"

/// @file
/// What menus and bars are painted in: the system's colours of the moment, lighter or darker.

namespace tint {

/// @param index  COLOR_BTNFACE and so on
/// @param luminance, saturation  percentages, as AdjustColorLS() takes them
inline COLORREF SystemTint(int index, int luminance, int saturation) {
    return AdjustColorLS(::GetSysColor(index), luminance, saturation);
}

/// The button face.
inline COLORREF FaceTint(int luminance) {
    return SystemTint(COLOR_BTNFACE, luminance, 0);
}

/// The highlight of selections.
inline COLORREF HighlightTint(int luminance, int saturation) {
    return SystemTint(COLOR_HIGHLIGHT, luminance, saturation);
}

/// Whether the user asks for high contrast: for the system's colours as they are, which tints are not.
inline bool IsHighContrast() {
    HIGHCONTRASTA contrast = {};
    contrast.cbSize = sizeof contrast;
    return ::SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace tint
