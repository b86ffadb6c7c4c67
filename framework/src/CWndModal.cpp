// SPDX-License-Identifier: MIT
// CWnd: modal loops, and what a message loop does with a message before it is dispatched.
#include <afxwin.h>

#include "ThreadState.h"
#include "WndAccess.h"
#include "afxpriv.h"

namespace {

constexpr UINT CaretBlinkMessage = 0x0118; // the system's own timer message

/// Runs one modal loop.
class ModalLoop {
public:
    ModalLoop(CWnd& wnd, DWORD flags)
        : m_wnd(wnd), m_parent(::GetParent(wnd.m_hWnd)), m_flags(flags),
          m_showPending((flags & MLF_SHOWONIDLE) != 0 && !wnd.IsWindowVisible()) {}

    /// False when the program is to end.
    bool Run() {
        for (;;) {
            WaitIdle();
            do {
                if (!afx::PumpMessage()) {
                    // The loop around this one has to end, too.
                    ::PostQuitMessage(static_cast<int>(afx::CurrentThread().pumped.wParam));
                    return false;
                }
                AfterMessage(afx::CurrentThread().pumped);
                if (!m_wnd.ContinueModal()) {
                    return true;
                }
            } while (MessageWaits());
        }
    }

private:
    static bool MessageWaits() {
        MSG msg;
        return ::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE) != FALSE;
    }

    void Show() {
        m_showPending = false;
        m_wnd.ShowWindow(SW_SHOWNORMAL);
        m_wnd.UpdateWindow();
    }

    void WaitIdle() {
        while (m_idle && !MessageWaits()) {
            if (m_showPending) {
                Show();
            }
            if ((m_flags & MLF_NOIDLEMSG) == 0 && m_parent != nullptr && m_idleCount == 0) {
                ::SendMessage(m_parent, WM_ENTERIDLE, MSGF_DIALOGBOX,
                              reinterpret_cast<LPARAM>(m_wnd.m_hWnd));
            }
            m_idle = (m_flags & MLF_NOKICKIDLE) == 0 &&
                     m_wnd.SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, m_idleCount++) != 0;
        }
    }

    void AfterMessage(MSG msg) {
        // A program that is never idle shows its dialog no later than at the first key or blink.
        if (m_showPending && (msg.message == CaretBlinkMessage || msg.message == WM_SYSKEYDOWN)) {
            Show();
        }
        if (afx::IsIdleMessage(&msg)) {
            m_idle = true;
            m_idleCount = 0;
        }
    }

    CWnd& m_wnd;
    const HWND m_parent;
    const DWORD m_flags;
    bool m_showPending;
    bool m_idle = true;
    LPARAM m_idleCount = 0;
};

} // namespace

int CWnd::RunModalLoop(DWORD dwFlags) {
    ASSERT(::IsWindow(m_hWnd));
    m_modal = true;
    const bool ended = ModalLoop(*this, dwFlags).Run();
    m_modal = false;
    return ended ? m_modalResult : -1;
}

BOOL CWnd::ContinueModal() {
    return m_modal;
}

void CWnd::EndModalLoop(int nResult) {
    m_modalResult = nResult;
    if (m_modal) {
        m_modal = false;
        // Wakes a loop that waits for a message.
        PostMessage(WM_NULL);
    }
}

void CWnd::BeginModalState() {
    ::EnableWindow(m_hWnd, FALSE);
}

void CWnd::EndModalState() {
    ::EnableWindow(m_hWnd, TRUE);
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL afx::WalkPreTranslateTree(HWND stop, MSG* msg) {
    for (HWND hWnd = msg->hwnd; hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        CWnd* const wnd = CWnd::FromHandlePermanent(hWnd);
        if (wnd != nullptr && wnd->PreTranslateMessage(msg)) {
            return TRUE;
        }
        if (hWnd == stop) {
            return FALSE;
        }
    }
    return FALSE;
}
