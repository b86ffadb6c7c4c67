// SPDX-License-Identifier: MIT
#include <afxcmn.h>

#include <algorithm>

#include "Handles.h"
#include "ThreadState.h"
#include "WndAccess.h"
#include "afxpriv.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

CWinThread::CWinThread() : m_pMainWnd(nullptr), m_pActiveWnd(nullptr), m_lastMouseMessage(0) {}

CWinThread::~CWinThread() {
    if (afx::CurrentThread().thread == this) {
        afx::CurrentThread().thread = nullptr;
    }
}

CWinThread* AfxGetThread() {
    return afx::CurrentThread().thread;
}

// ---- Starting and ending ------------------------------------------------------------------------

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::ExitInstance() {
    return static_cast<int>(afx::CurrentThread().pumped.wParam);
}

// ---- Message loop -------------------------------------------------------------------------------

int CWinThread::Run() {
    bool idle = true;
    LONG idleCount = 0;
    for (;;) {
        MSG next;
        while (idle && !::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE)) {
            idle = OnIdle(idleCount++) != FALSE;
        }
        do {
            if (!PumpMessage()) {
                return ExitInstance();
            }
            MSG handled = afx::CurrentThread().pumped;
            if (IsIdleMessage(&handled)) {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE));
    }
}

namespace {

/// Fetches a message, offers it to `preTranslate` and dispatches it. Zero for WM_QUIT.
template <class PreTranslate>
BOOL Pump(PreTranslate preTranslate) {
    MSG msg;
    const BOOL fetched = ::GetMessage(&msg, nullptr, 0, 0);
    afx::CurrentThread().pumped = msg;
    // -1 stands for an error: without messages the loop has to end, too.
    if (fetched == 0 || fetched == -1) {
        return FALSE;
    }
    if (msg.message != WM_KICKIDLE && !preTranslate(&msg)) {
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
    return TRUE;
}

bool IsMouseMove(UINT message) {
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
}

bool IsNeverIdleMessage(UINT message) {
    constexpr UINT caretBlink = 0x0118;
    return message == WM_PAINT || message == caretBlink;
}

} // namespace

BOOL CWinThread::PumpMessage() {
    return Pump([this](MSG* msg) { return PreTranslateMessage(msg); });
}

BOOL afx::PumpMessage() {
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->PumpMessage()
                             : Pump([](MSG* msg) { return WalkPreTranslateTree(nullptr, msg); });
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    if (!IsMouseMove(pMsg->message)) {
        return !IsNeverIdleMessage(pMsg->message);
    }
    // Windows also sends mouse moves when something else than the mouse has moved.
    if (m_lastMousePos == pMsg->pt && m_lastMouseMessage == pMsg->message) {
        return FALSE;
    }
    m_lastMousePos = pMsg->pt;
    m_lastMouseMessage = pMsg->message;
    return TRUE;
}

bool afx::IsIdleMessage(MSG* msg) {
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->IsIdleMessage(msg) != FALSE
                             : !IsNeverIdleMessage(msg->message);
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == nullptr && DispatchThreadMessage(pMsg)) {
        return TRUE;
    }
    CWnd* const main = AfxGetMainWnd();
    const HWND mainHandle = afx::WindowOf(main);
    if (afx::WalkPreTranslateTree(mainHandle, pMsg)) {
        return TRUE;
    }
    // A window beside the main window leaves the main window's accelerators to it.
    if (mainHandle == nullptr || pMsg->hwnd == nullptr) {
        return FALSE;
    }
    const CWnd* const top = CWnd::FromHandle(pMsg->hwnd)->GetTopLevelParent();
    return top != main && main->PreTranslateMessage(pMsg);
}

BOOL CWinThread::DispatchThreadMessage(MSG* msg) {
    const AFX_MSGMAP_ENTRY* const entry = afx::FindEntry(GetMessageMap(), msg->message, 0, 0);
    if (entry == nullptr) {
        return FALSE;
    }
    LRESULT unused = 0;
    afx::MapCall call;
    call.message = msg->message;
    call.wParam = msg->wParam;
    call.lParam = msg->lParam;
    call.result = &unused;
    return entry->pfn(this, call);
}

CWnd* CWinThread::GetMainWnd() {
    return m_pActiveWnd != nullptr ? m_pActiveWnd : m_pMainWnd;
}

// ---- Idle ---------------------------------------------------------------------------------------

namespace {

void DeleteTemporaryObjects() {
    CWnd::DeleteTempMap();
    CMenu::DeleteTempMap();
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CImageList::DeleteTempMap();
}

void UpdateCommandItems(CWnd* wnd) {
    if (wnd == nullptr || wnd->m_hWnd == nullptr || !wnd->IsWindowVisible()) {
        return;
    }
    // The message goes to the object: it is one for bars and frames of this framework only.
    const HWND window = wnd->m_hWnd;
    ::SendMessage(window, WM_IDLEUPDATECMDUI, TRUE, 0);
    if (!::IsWindow(window)) {
        return; // and the object may be gone with it
    }
    wnd->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
}

/// Whether the frame, if it still exists, is not updated together with the main window.
bool IsOtherTopFrame(CFrameWnd* frame, const CWnd* main) {
    const std::vector<CFrameWnd*>& frames = afx::CurrentThread().frames;
    const bool exists = std::find(frames.begin(), frames.end(), frame) != frames.end();
    return exists && frame != main && frame->m_hWnd != nullptr &&
           (frame->GetStyle() & WS_CHILD) == 0;
}

} // namespace

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount <= 0) {
        UpdateCommandItems(m_pMainWnd);
        // A copy: a handler may create and end frames.
        const std::vector<CFrameWnd*> frames = afx::CurrentThread().frames;
        for (CFrameWnd* const frame : frames) {
            if (IsOtherTopFrame(frame, m_pMainWnd)) {
                UpdateCommandItems(frame);
            }
        }
        return TRUE;
    }
    // The second time nothing is left that a handler could still hold on to.
    DeleteTemporaryObjects();
    return FALSE;
}
