// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/// Turns the mouse messages of a window into a hot and a not-hot state, and makes the window show it.
///
/// A control keeps one as a member, attaches it when its window is there, and passes on WM_MOUSEMOVE
/// and WM_MOUSELEAVE; WM_MOUSELEAVE arrives because the tracker asks for it (TrackMouseEvent).  A child
/// window such as a combo box's edit field may pass on its messages too: moving between the windows of
/// one tracker keeps the hot state.
class CMouseHoverTracker {
public:
    /// How the owner shows a change of the hot state; bits for Attach.
    enum Option : WORD {
        kRepaint = 1,     ///< invalidate the owner, without erasing
        kRecalcFrame = 2, ///< make the owner recalculate and repaint its non-client frame
    };

    /// Begins with a window, which is not hot.
    /// @param owner    the window whose state this is; not owned
    /// @param options  bits of Option
    void Attach(HWND owner, WORD options);

    bool IsHover() const { return m_hover; }

    /// Takes a mouse move.
    /// @param window  the window that received it; null stands for the owner
    /// @return true when the state became hot by this move
    bool OnMouseMove(HWND window = nullptr);

    /// Takes a mouse leave.
    /// @param window  the window that received it; null stands for the owner
    /// @return true when the state ended; false when `window` is not the one being tracked, as for the
    ///         late notification of a window that the mouse left for another one of the same tracker
    bool OnMouseLeave(HWND window = nullptr);

private:
    void Track(HWND window);
    void ShowChange() const;

    HWND m_owner = nullptr;
    HWND m_tracked = nullptr; ///< the window that was asked for its WM_MOUSELEAVE
    WORD m_options = 0;
    bool m_hover = false;
};
