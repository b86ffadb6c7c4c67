// SPDX-License-Identifier: MIT
// The rules of the look, worked out apart from the code under test.
#pragma once

#include <windows.h>

#include <algorithm>

#include "draw/Hls.h"

inline COLORREF System(int index) {
    return ::GetSysColor(index);
}

inline COLORREF Face(int luminance) {
    return AdjustColorLS(System(COLOR_BTNFACE), luminance, 0);
}

inline COLORREF Highlight(int luminance, int saturation) {
    return AdjustColorLS(System(COLOR_HIGHLIGHT), luminance, saturation);
}

/// A pixel of the shadow, `row` along its edge and `column` from the outside.
inline COLORREF Shaded(COLORREF color, int row, int column) {
    constexpr int rounded[3][4] = {{0, 0, 0, 0}, {0, 0, 1, 1}, {0, 1, 2, 2}};
    const int p = (3 - (row < 3 ? rounded[row][column] : column)) * 5 + 78;
    return RGB(GetRValue(color) * p / 100, GetGValue(color) * p / 100, GetBValue(color) * p / 100);
}

/// Calls shade(x, y, row, column) for each pixel of a right edge.
template <class Shade>
void ForRightEdge(int right, int top, int rows, Shade shade) {
    for (int c = 0; c < 4; ++c)
        for (int j = c < 2 ? 2 - c : 0; j < rows - c - (c < 1 ? 2 : 1); ++j)
            shade(right - c - 1, top + j + 4, j, c);
}

/// The same for both edges of a popup of that size.
template <class Shade>
void ForShadow(int right, int bottom, Shade shade) {
    for (int i = 0; i < right - 1; ++i)
        for (int j = i >= 2 ? std::max(i - right + 7, 0) : 2 - i;
             j < (i > right - 8 ? right - 4 - i : 4); ++j)
            shade(i + 4, bottom - j - 1, i, j);
    ForRightEdge(right, 0, bottom - 4, shade);
}
