// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace automation {

/// One system colour of a scheme.
struct SystemColor {
    int index; ///< COLOR_BTNFACE ...
    COLORREF color;
};

/// A named set of system colours; those it leaves out stay as they are.
struct ColorScheme {
    const char* name; ///< lower case with hyphens, as it appears in file names
    std::vector<SystemColor> colors;
};

/// The schemes that the gallery and the tests show: "default" (changes nothing), "high-contrast-dark",
/// "warm", "high-contrast-black", "high-contrast-white", "slate".
const std::vector<ColorScheme>& ColorSchemes();

/// The scheme of that name; null when there is none.
const ColorScheme* FindColorScheme(std::string_view name);

/// Sets system colours for the life of the object and puts the former ones back.
///
/// System colours are shared by every program of the desktop: each window is told and repaints.
class SystemColorGuard {
public:
    explicit SystemColorGuard(const std::vector<SystemColor>& colors);
    ~SystemColorGuard();

    SystemColorGuard(const SystemColorGuard&) = delete;
    SystemColorGuard& operator=(const SystemColorGuard&) = delete;

private:
    std::vector<SystemColor> m_former;
};

} // namespace automation
