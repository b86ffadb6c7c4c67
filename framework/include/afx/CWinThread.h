// SPDX-License-Identifier: MIT
/// @file
/// CWinThread: a thread with a message loop.
#pragma once

#include "afx/CCmdTarget.h"
#include "afx/CException.h"
#include "afx/CWnd.h"

/// A thread with a message loop. There is one, the application's; the toolkit starts none.
class CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    /// The main window; when it is destroyed the loop ends. Not owned.
    CWnd* m_pMainWnd;
    /// The active main window of an in-place container; normally null.
    CWnd* m_pActiveWnd;

    /// Called at the start of the thread; FALSE ends it at once.
    virtual BOOL InitInstance();
    /// Called at the end of the thread. @return its exit code.
    virtual int ExitInstance();
    /// Handles messages until WM_QUIT, calling OnIdle() when there are none.
    virtual int Run();
    /// Waits for one message and handles it. @return zero for WM_QUIT.
    virtual BOOL PumpMessage();
    /// Sees a message before it is dispatched. Nonzero when the message is done with.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Called when the message queue is empty.
    /// @param lCount counts up from 0 until the next message.
    /// @return zero when there is nothing more to do.
    virtual BOOL OnIdle(LONG lCount);
    /// FALSE for messages after which OnIdle() need not be called.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// Answers a message whose handler has thrown.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd();

    DECLARE_MESSAGE_MAP()

private:
    BOOL DispatchThreadMessage(MSG* msg);

    /// Where the mouse was at the last mouse message, in screen coordinates.
    CPoint m_lastMousePos;
    UINT m_lastMouseMessage;
};

/// The thread object of the calling thread; null when it has none.
CWinThread* AfxGetThread();
