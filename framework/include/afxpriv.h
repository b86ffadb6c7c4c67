// SPDX-License-Identifier: MIT
/// @file
/// Messages the framework sends its own windows. Programs handle them with ON_MESSAGE, if at all.
#pragma once

#include <afxwin.h>

#include "afx/CDockBar.h"

/// Answered with 1 by every window with a permanent object.
#define WM_QUERYAFXWNDPROC 0x0360
/// From a frame to its children: take your part of the client area. lParam: AFX_SIZEPARENTPARAMS*.
#define WM_SIZEPARENT 0x0361
/// To a frame: show a text in the status bar. wParam: string identifier, or lParam: text.
#define WM_SETMESSAGESTRING 0x0362
/// Update the items of a bar. wParam: disable items without a handler.
#define WM_IDLEUPDATECMDUI 0x0363
/// Sent to the descendants of a frame once they may update themselves.
#define WM_INITIALUPDATE 0x0364
/// Sent to a window in a modal loop when it is idle. wParam: MSGF_ code, lParam: count.
#define WM_KICKIDLE 0x036A
/// To the popups of a frame that enters a modal state: nonzero to stay enabled.
#define WM_DISABLEMODAL 0x036C
/// To a top-level window when one of its group is activated. wParam: WA_ state.
#define WM_ACTIVATETOPLEVEL 0x036E

/// What WM_SIZEPARENT carries.
struct AFX_SIZEPARENTPARAMS {
    /// Collects the moves; null when nothing is to be moved.
    HDWP hDWP;
    /// The part of the parent's client area that is left.
    RECT rect;
    /// The bars' size so far: their sum across, the largest along.
    SIZE sizeTotal;
    /// Bars fill the side they lie at.
    BOOL bStretch;
};
