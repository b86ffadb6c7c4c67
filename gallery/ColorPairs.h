// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <array>

/// A text colour and what lies under it, as the toolkit paints them somewhere.
struct ColorPair {
    const char* name; ///< what is painted so
    COLORREF text;
    COLORREF background;
    bool disabled; ///< of something that cannot be used: it may be pale
};

/// The pairs under the system colours of this moment.
std::array<ColorPair, 22> ColorPairs();

/// How well a text can be read: from 1 (not at all) to 21 (black on white).
///
/// The contrast ratio of the Web Content Accessibility Guidelines 2.1, which ask for 4.5 at least.
double ContrastRatio(COLORREF text, COLORREF background);
