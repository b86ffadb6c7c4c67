// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "draw/Selectors.h"

namespace tint {

/// One drawing of a glyph button: what CDrawButton::Draw does, a step a function.
class GlyphPainter {
public:
    /// Whether a rectangle stays within what GDI can draw on.  For others nothing here may be used:
    /// sums of their coordinates could overflow.
    static bool CanDraw(const RECT& rect);

    /// @param ownFlags  the button's flags
    /// @param state     what to show: a kind and flags
    GlyphPainter(HDC dc, UINT ownFlags, UINT state, const RECT& rect);

    void Draw();

private:
    bool Has(UINT flag) const { return (m_state & flag) != 0; }
    bool IsPressed() const;
    bool IsFlat() const;
    /// The classic look moves the glyph of a pressed button; the flat look never does.
    bool IsSunken() const { return !IsFlat() && IsPressed(); }
    bool IsRaised() const { return !IsFlat() && !IsPressed(); }

    void DrawClassicBorder();
    void DrawFrame(const RECT& rect, bool pushed);
    void DrawFlatFrame(const RECT& rect);
    COLORREF GlyphColor(POINT probe) const;

    void DrawSingle(UINT kind);
    void DrawArrow(bool down);
    void DrawEllipsis();
    void DrawCross();
    void DrawSpinPair();
    RECT UpperHalf() const;
    RECT LowerHalf() const;

    HDC m_dc;
    UINT m_ownFlags;
    UINT m_state;
    RECT m_rect;
    COLORREF m_pressedFace; ///< flat look only
    COLORREF m_hotFace;     ///< flat look only
    CPenSelector m_pen;
    CBrushSelector m_brush;
};

} // namespace tint
