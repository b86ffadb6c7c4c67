// SPDX-License-Identifier: MIT
#include "menus/MenuPaint.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "menus/PixelBlock.h"

namespace {

constexpr int kShadow = 4; // pixels

/// Whether a rectangle lies where GDI can draw at all (coordinates of 27 bits); what does not is not
/// worth calculating with.
bool IsDrawable(const RECT& rect) {
    constexpr LONG farthest = 1 << 26;
    const auto isNear = [](LONG side) { return side >= -farthest && side <= farthest; };
    return isNear(rect.left) && isNear(rect.top) && isNear(rect.right) && isNear(rect.bottom);
}

// --- The gradient -------------------------------------------------------------------------------

/// The steps of a gradient.
class Steps {
public:
    Steps(COLORREF start, COLORREF end, int width)
        : m_start(start), m_red(GetRValue(end) - GetRValue(start)),
          m_green(GetGValue(end) - GetGValue(start)), m_blue(GetBValue(end) - GetBValue(start)),
          m_count((std::max)({std::abs(m_red), std::abs(m_green), std::abs(m_blue)})),
          m_width(m_count == 0 ? 0.0F : static_cast<float>(width) / static_cast<float>(m_count)) {}

    int Count() const { return m_count; }

    /// Where a step begins, from the left edge of the gradient.
    int Left(int step) const { return static_cast<int>(static_cast<float>(step) * m_width); }

    COLORREF Color(int step) const {
        const auto channel = [&](BYTE start, int change) {
            const float increment = static_cast<float>(change) / static_cast<float>(m_count);
            return static_cast<int>(static_cast<float>(start) +
                                    increment * static_cast<float>(step)) &
                   0xFF;
        };
        return RGB(channel(GetRValue(m_start), m_red), channel(GetGValue(m_start), m_green),
                   channel(GetBValue(m_start), m_blue));
    }

private:
    COLORREF m_start;
    int m_red;
    int m_green;
    int m_blue;
    int m_count;
    float m_width; ///< of a step; less than a pixel in a narrow rectangle
};

void FillSolid(HDC dc, const RECT& rect, COLORREF color) {
    const COLORREF previous = ::SetBkColor(dc, color);
    ::ExtTextOutA(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
    ::SetBkColor(dc, previous);
}

/// One row of a gradient, for the columns that show.
std::vector<DWORD> GradientRow(const Steps& steps, int left, int firstColumn, int lastColumn) {
    std::vector<DWORD> row(static_cast<std::size_t>(lastColumn - firstColumn));
    // The step after the last one fills what rounding has left over on the right.
    for (int step = 0; step <= steps.Count(); ++step) {
        const COLORREF color = steps.Color(step);
        const int begin = (std::max)(left + steps.Left(step), firstColumn);
        const int end = step == steps.Count() ? lastColumn
                                              : (std::min)(left + steps.Left(step + 1), lastColumn);
        for (int x = begin; x < end; ++x)
            row[x - firstColumn] = RGB(GetBValue(color), GetGValue(color), GetRValue(color));
    }
    return row;
}

// --- The shadow ---------------------------------------------------------------------------------

/// How far out a pixel of the shadow counts, 0 (outermost, lightest shade) to 3.
/// @param column  distance from the outer edge, 0 to 3
/// @param row     distance from where the edge starts: the first ones round the corner
int ShadowStep(int column, int row) {
    switch (row) {
    case 0:
        return 0;
    case 1:
        return column >= 2 ? 1 : 0;
    case 2:
        return (std::min)(column, 2);
    default:
        return column;
    }
}

/// @param pixel  in either order of red and blue
DWORD Darken(DWORD pixel, int step) {
    const DWORD percent = static_cast<DWORD>((3 - step) * 5 + 78);
    return (pixel >> 16 & 0xFF) * percent / 100 << 16 | (pixel >> 8 & 0xFF) * percent / 100 << 8 |
           (pixel & 0xFF) * percent / 100;
}

/// The part of the shadow along the bottom edge.
struct BottomEdge {
    RECT popup;

    RECT Area() const { return {kShadow, popup.bottom - kShadow, popup.right, popup.bottom}; }

    bool Covers(int x, int y) const {
        const int i = x - kShadow;
        const int j = popup.bottom - 1 - y;
        const int first = i < 2 ? 2 - i : (i > popup.right - 7 ? i - popup.right + 7 : 0);
        const int end = i > popup.right - 8 ? popup.right - 4 - i : kShadow;
        return i >= 0 && i < popup.right - 1 && j >= first && j < end;
    }

    int Step(int x, int y) const { return ShadowStep(popup.bottom - 1 - y, x - kShadow); }
};

/// The part along a right edge, four pixels below its top.
struct RightEdge {
    int right;
    int top;
    int rows; ///< before the corners are taken off

    RECT Area() const { return {right - kShadow, top + kShadow, right, top + kShadow + rows}; }

    bool Covers(int x, int y) const {
        const int column = right - 1 - x;
        const int row = y - top - kShadow;
        const int first = column < 2 ? 2 - column : 0;
        const int end = rows - column - (column < 1 ? 2 : 1);
        return row >= first && row < end;
    }

    int Step(int x, int y) const { return ShadowStep(right - 1 - x, y - top - kShadow); }
};

template <class Edge>
void Shade(const tint::PixelBlock& under, tint::PixelBlock& shown, const Edge& edge) {
    const RECT area = shown.Area();
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            if (edge.Covers(x, y))
                shown.At(x, y) = Darken(under.At(x, y), edge.Step(x, y));
}

template <class Edge>
void DarkenEdge(HDC source, HDC target, const Edge& edge) {
    tint::PixelBlock shown(target, edge.Area()); // also holds pixels that the shadow leaves alone
    shown.ReadFrom(target);
    if (source == target) {
        Shade(shown, shown, edge);
    } else {
        tint::PixelBlock under(target, edge.Area());
        under.ReadFrom(source);
        if (::EqualRect(&under.Area(), &shown.Area()))
            Shade(under, shown, edge);
    }
    shown.WriteTo(target);
}

} // namespace

void DrawGradient(HDC dc, COLORREF start, COLORREF end, const RECT& rect) {
    if (!IsDrawable(rect))
        return;
    const Steps steps(start, end, rect.right - rect.left);
    if (steps.Count() == 0) {
        FillSolid(dc, rect, start);
        return;
    }
    RECT clip = {};
    if (::GetClipBox(dc, &clip) == ERROR)
        return;
    const int firstColumn = (std::max)(rect.left, clip.left);
    const int lastColumn = (std::min)(rect.right, clip.right);
    const int bottom = (std::min)(rect.bottom, clip.bottom);
    if (firstColumn >= lastColumn || bottom <= 0)
        return;

    const auto row = GradientRow(steps, rect.left, firstColumn, lastColumn);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = lastColumn - firstColumn;
    info.bmiHeader.biHeight = 1;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    ::StretchDIBits(dc, firstColumn, 0, info.bmiHeader.biWidth, bottom, 0, 0,
                    info.bmiHeader.biWidth, 1, row.data(), &info, DIB_RGB_COLORS, SRCCOPY);
}

void DrawMenuShadow(HDC source, HDC target, const RECT& rect) {
    if (!IsDrawable(rect))
        return;
    // One after the other: where a tiny popup's edges meet, the second darkens the first's pixels.
    DarkenEdge(source, target, BottomEdge{rect});
    DarkenEdge(source, target, RightEdge{static_cast<int>(rect.right), 0, rect.bottom - kShadow});
}

namespace tint {

void DrawBarItemShadow(HDC dc, const RECT& strip) {
    if (!IsDrawable(strip))
        return;
    DarkenEdge(dc, dc,
               RightEdge{static_cast<int>(strip.right), static_cast<int>(strip.top),
                         static_cast<int>(strip.bottom - strip.top)});
}

} // namespace tint
