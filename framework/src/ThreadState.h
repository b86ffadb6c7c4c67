// SPDX-License-Identifier: MIT
#pragma once

#include "afx/Platform.h"

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
};

/// The state of the calling thread; made at the first call, freed when the thread ends.
ThreadState& CurrentThread();

} // namespace afx
