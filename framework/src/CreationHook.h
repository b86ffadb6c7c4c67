// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

namespace afx {

/// Attaches an object to the next window that the thread creates, before the window's first
/// message. The windows hook behind it exists as long as this object does.
class CreationHook {
public:
    explicit CreationHook(CWnd* wnd);
    ~CreationHook();
    CreationHook(const CreationHook&) = delete;
    CreationHook& operator=(const CreationHook&) = delete;

    /// To be asked once the system has answered. Where it created no window the object is detached
    /// and told so by PostNcDestroy(), unless WM_NCDESTROY has done that already.
    BOOL Finish(HWND created) const;

private:
    static LRESULT CALLBACK HookProc(int code, WPARAM wParam, LPARAM lParam);
    bool AttachTo(HWND window);

    CWnd* const m_object;
    /// The object while it still has to be attached.
    CWnd* m_wnd;
    /// The window the object was attached to.
    HWND m_window;
    HHOOK m_hook;
    /// The creation this one takes place in: windows are created while others are.
    CreationHook* m_outer;
};

/// Makes AfxWndProc the procedure of the object's window and keeps the previous one.
void InstallWndProc(CWnd& wnd);

} // namespace afx
