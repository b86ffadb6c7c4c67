// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

namespace tint {
class DrawButtonClick;
}

/// A small button that is not a window: an arrow, a spin pair, an ellipsis or a cross that some window,
/// the host, shows inside its client area or frame.  The host draws it from its own paint handler and
/// passes on mouse moves and clicks.
///
///     void CMyPanel::OnPaint() {
///         CPaintDC dc(this);
///         m_close.Draw(dc, 0);
///     }
///     void CMyPanel::OnMouseMove(UINT, CPoint point) { m_close.OnMouseMove(m_hWnd, point); }
///     void CMyPanel::OnLButtonDown(UINT, CPoint point) {
///         if (PtInRect(&m_close.GetRect(), point) && m_close.TrackClick(m_hWnd, point) != 0)
///             DestroyWindow();
///     }
///
/// The rectangle and all points are in client coordinates of the host, or with kNonClient in
/// coordinates whose origin is the upper left corner of the whole window.
///
/// Not destroyed through a pointer to this class: it holds nothing, and has no virtual destructor.
class CDrawButton {
public:
    // What the button shows.  A number not listed here shows the bare frame.
    static constexpr UINT kNoGlyph = 0;
    static constexpr UINT kUpArrow = 1;
    static constexpr UINT kDownArrow = 2;
    static constexpr UINT kSpinPair = 5; ///< an upper and a lower half, each a button of its own
    static constexpr UINT kEllipsis = 7;
    static constexpr UINT kCross = 8;

    // Flags beside the kind.
    static constexpr UINT kKindMask = 0x00FF;
    static constexpr UINT kDisabled = 0x0100;
    /// Sits outside a toolbar.  Classic look: a line above and to the left.  Flat look: the resting
    /// frame is visible (button shadow) and not of the window's colour.
    static constexpr UINT kOutsideToolbar = 0x0200;
    static constexpr UINT kNonClient = 0x0400;     ///< lives in the host's frame
    static constexpr UINT kFlat = 0x0800;          ///< flat tinted look; clear: classic 3-D look
    static constexpr UINT kPressed = 0x1000;       ///< of a spin pair: the upper half
    static constexpr UINT kSecondPressed = 0x2000; ///< of a spin pair: the lower half
    static constexpr UINT kAnyPressed = 0x3000;    ///< a mask
    static constexpr UINT kHot = 0x4000;           ///< under the mouse; shows in the flat look
    static constexpr UINT kNoRestingFrame =
        0x8000; ///< flat look: no frame or face but the hot ones

    CDrawButton() = default;

    /// @param flags  a kind and flags
    CDrawButton(UINT flags, const RECT& rect) : m_flags(flags), m_rect(rect) {}

    UINT GetFlags() const { return m_flags; }
    void SetFlags(UINT flags) { m_flags = flags; }
    const RECT& GetRect() const { return m_rect; }
    void SetRect(const RECT& rect) { m_rect = rect; }

    /// Draws frame and glyph.
    /// @param state  what to show instead of the own flags, whole: a kind and flags; 0: the own
    ///               flags.  Whether it sits outside a toolbar is always taken from the own flags.
    ///
    /// Of a spin pair with one half pressed the other half is left as it is on the device.  A rectangle
    /// that reaches farther than GDI's coordinates do is not drawn.
    virtual void Draw(HDC dc, UINT state) const;

    /// Follows the mouse (flat look only).  To be called for each mouse move in the host; becoming hot
    /// is drawn at once, ceasing to be hot invalidates the rectangle in the host.
    ///
    /// While hot it runs the host's timer kHoverTimer, which posts the host a WM_MOUSEMOVE when the
    /// mouse has gone to another window.  Without the timer it does not become hot.
    void OnMouseMove(HWND host, POINT point);

    static constexpr UINT_PTR kHoverTimer = 54321;

    /// The procedure of that timer.
    static void CALLBACK OnHoverTimer(HWND host, UINT message, UINT_PTR timer, DWORD time);

    /// Follows a click from the press, which the host has just received, to the release.  Runs a
    /// message loop of its own meanwhile, in which other windows go on working; the escape key, the
    /// right button or losing the mouse capture end it.
    /// @param point        where the mouse was pressed; tells the halves of a spin pair apart
    /// @param repeatTimer  a spin pair that repeats: the identifier of the timer that the host has
    ///                     started on itself, with one 16-bit code in the low half for "up" and one in
    ///                     the high half for "down".  The code of the pressed half is in RepeatCode()
    ///                     for the host's WM_TIMER, which arrives while the mouse is over that half.
    ///                     The timer is stopped at the end.  0: does not repeat.
    /// @return the kind and kPressed, or kSecondPressed for a lower half, when the button was released
    ///         inside; else 0.  Also 0, at once and with the timer untouched, when the button is
    ///         disabled or the mouse is captured already.
    ///
    /// The host may be destroyed in the loop, and this object with it.
    UINT TrackClick(HWND host, POINT point, UINT repeatTimer = 0);

    /// The code of the half that was pressed last, of any spin pair of the program.
    static WORD RepeatCode();

private:
    void DrawOn(HWND host, UINT state) const;
    void InvalidateIn(HWND host) const;

    UINT m_flags = 0;
    RECT m_rect = {};

    friend class tint::DrawButtonClick;
};
