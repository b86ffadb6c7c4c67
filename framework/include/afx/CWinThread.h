// SPDX-License-Identifier: MIT
/// @file
/// CWinThread: a thread with a message loop.
#pragma once

#include "afx/CCmdTarget.h"
#include "afx/CException.h"
#include "afx/CWnd.h"

/// Controlling function of a worker thread.
typedef UINT(AFX_CDECL* AFX_THREADPROC)(LPVOID);

/// A thread with a message loop, or a worker thread with a function instead.
class CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    /// Closes the thread's handle.
    ~CWinThread() override;

    /// The main window; when it is destroyed the loop ends. Not owned.
    CWnd* m_pMainWnd;
    /// The active main window of an in-place container; normally null.
    CWnd* m_pActiveWnd;
    /// The object deletes itself when the thread ends.
    BOOL m_bAutoDelete;
    HANDLE m_hThread;
    DWORD m_nThreadID;

    operator HANDLE() const { return m_hThread; }

    /// Starts the thread. @return zero when it could not be started.
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
    int GetThreadPriority();
    BOOL SetThreadPriority(int nPriority);
    DWORD SuspendThread();
    DWORD ResumeThread();
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

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
    /// Called for the messages of dialogs, message boxes and menus. @param code MSGF_ code.
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
    /// Answers a message whose handler has thrown.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd();

    DECLARE_MESSAGE_MAP()

private:
    friend struct afx::WndAccess;
    friend CWinThread* AfxBeginThread(AFX_THREADPROC, LPVOID, int, UINT, DWORD,
                                      LPSECURITY_ATTRIBUTES);
    friend void AFXAPI AfxEndThread(UINT, BOOL);

    static unsigned __stdcall ThreadMain(void* thread);
    int RunThread();
    BOOL DispatchThreadMessage(MSG* msg);

    /// Function and parameter of a worker thread; null for a thread with a message loop.
    AFX_THREADPROC m_threadProc;
    LPVOID m_threadParam;
    /// Where the mouse was at the last mouse message, in screen coordinates.
    CPoint m_lastMousePos;
    UINT m_lastMouseMessage;
};

/// The thread object of the calling thread; null when it has none.
CWinThread* AfxGetThread();
/// Starts a worker thread. Null when it could not be started.
CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                           int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                           DWORD dwCreateFlags = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
/// Starts a thread with a message loop, an object of a class derived from CWinThread.
CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                           UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                           LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
/// Ends the calling thread.
void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);
