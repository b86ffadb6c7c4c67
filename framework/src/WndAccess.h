// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

namespace afx {

/// Gives the framework's own sources access to the private part of CWnd.
struct WndAccess {
    static CFrameWnd* AsFrameWnd(CWnd& wnd) { return wnd.AsFrameWnd(); }
    static WNDPROC& SuperProc(CWnd& wnd) { return wnd.m_superProc; }
    static LRESULT CallWindowProc(CWnd& wnd, UINT message, WPARAM wParam, LPARAM lParam) {
        return wnd.WindowProc(message, wParam, lParam);
    }
    static void PostNcDestroy(CWnd& wnd) { wnd.PostNcDestroy(); }
};

/// The window's PreTranslateMessage(), then that of its parents and owners, up to and including
/// `stop`. Nonzero as soon as one of them is done with the message.
BOOL WalkPreTranslateTree(HWND stop, MSG* msg);
/// Fetches and handles one message, through the thread object if there is one. Zero for WM_QUIT.
BOOL PumpMessage();
/// CWinThread::IsIdleMessage of the thread object; without one, what it does by default.
bool IsIdleMessage(MSG* msg);
/// The answer to a message whose handler threw `e`, which is deleted.
LRESULT AnswerException(CException* e, const MSG& msg);
/// What the framework throws for lack of memory, in the place of std::bad_alloc.
CException* MemoryException();

} // namespace afx
