// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CControlBar.h"
#include "afx/CFrameWnd.h"

namespace afx {

/// Gives the framework's own sources access to the private part of control bars.
struct BarAccess {
    /// Sides the bar may be docked to.
    static DWORD DockStyle(const CControlBar& bar) { return bar.m_dockStyle; }
    /// Gives the bar the styles of another place.
    static void ChangeStyle(CControlBar& bar, DWORD style) {
        bar.m_dwStyle = style;
        bar.FrameChanged();
    }
    static void ShowLater(CControlBar& bar, bool show) {
        bar.m_pending = show ? CControlBar::Pending::Show : CControlBar::Pending::Hide;
    }
    /// Shows or hides the bar at once, without a new layout.
    static void Show(CControlBar& bar, bool show);
    /// Does what ShowLater() has put off.
    static void ShowPending(CControlBar& bar);
    /// Whether the bar is shown or will be.
    static bool IsShown(const CControlBar& bar);
};

/// Gives the framework's own sources access to the private part of frame windows.
struct FrameAccess {
    static DWORD DockSides(const CFrameWnd& frame) { return frame.m_dockSides; }
    static CDockBar* DockBarOfSide(const CFrameWnd& frame, std::size_t side) {
        return frame.DockBarOfSide(side);
    }
};

/// One side of a frame where bars can be docked.
struct DockSide {
    DWORD align;
    UINT id;
};

/// The sides in the order in which they are tried.
constexpr DockSide DockSides[] = {
    {CBRS_ALIGN_TOP, AFX_IDW_DOCKBAR_TOP},
    {CBRS_ALIGN_BOTTOM, AFX_IDW_DOCKBAR_BOTTOM},
    {CBRS_ALIGN_LEFT, AFX_IDW_DOCKBAR_LEFT},
    {CBRS_ALIGN_RIGHT, AFX_IDW_DOCKBAR_RIGHT},
};

/// The modes of layout for a bar that lies (or stands) at a side.
constexpr DWORD DockedMode(bool horizontal) {
    return horizontal ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK;
}

/// Follows the mouse with a bar until the button is released and docks or floats it there. Escape,
/// the other button and the loss of the mouse capture leave the bar where it was.
/// @param start where the button was pressed, in screen coordinates.
void DragBar(CControlBar& bar, CPoint start);

} // namespace afx
