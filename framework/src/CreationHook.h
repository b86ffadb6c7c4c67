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

    /// The window the object was attached to; null when none was created.
    HWND Window() const { return m_window; }

private:
    static LRESULT CALLBACK HookProc(int code, WPARAM wParam, LPARAM lParam);
    bool AttachTo(HWND window);

    /// Null as soon as the object is attached.
    CWnd* m_wnd;
    HWND m_window;
    HHOOK m_hook;
    /// The creation this one takes place in: windows are created while others are.
    CreationHook* m_outer;
};

/// Makes AfxWndProc the procedure of the object's window and keeps the previous one.
void InstallWndProc(CWnd& wnd);

} // namespace afx
