// SPDX-License-Identifier: MIT
#pragma once

#include "afx/Platform.h"

#include <vector>

class CFrameWnd;
class CWinThread;

namespace afx {

class CreationHook;

/// What the framework remembers for the calling thread.
struct ThreadState {
    CWinThread* thread = nullptr;
    /// The message that a window procedure is handling.
    MSG current = {};
    /// The message that the message loop has fetched last.
    MSG pumped = {};
    /// The window creation that is going on; see CreationHook.
    CreationHook* creation = nullptr;
    /// The window that exchanges data with its controls; their notifications are ignored.
    HWND exchanging = nullptr;
    /// The menu that was opened last.
    HMENU openMenu = nullptr;
    /// All frame window objects, with or without a window.
    std::vector<CFrameWnd*> frames;
    /// The tool tip control of all windows; null until it is first needed.
    HWND toolTip = nullptr;
    /// The window whose tool the tool tip is for, and that tool; -1 for none.
    HWND toolTipOver = nullptr;
    INT_PTR toolTipTool = -1;
};

/// The state of the calling thread; made at the first call, freed when the thread ends.
ThreadState& CurrentThread();

} // namespace afx
