// SPDX-License-Identifier: MIT
// CWnd: the way of a message from the window procedure to its handler.
#include <afxwin.h>

#include <new>
#include <utility>

#include "ThreadState.h"
#include "WndAccess.h"
#include "afxpriv.h"

// ---- Window procedure ---------------------------------------------------------------------------

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    if (nMsg == WM_QUERYAFXWNDPROC) {
        return 1;
    }
    CWnd* const wnd = CWnd::FromHandlePermanent(hWnd);
    if (wnd == nullptr) {
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    }
    return AfxCallWndProc(wnd, hWnd, nMsg, wParam, lParam);
}

namespace {

/// Makes a message the current one of the thread while it is being handled.
class CurrentMessage {
public:
    explicit CurrentMessage(const MSG& msg)
        : m_outer(std::exchange(afx::CurrentThread().current, msg)) {}
    ~CurrentMessage() { afx::CurrentThread().current = m_outer; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

private:
    const MSG m_outer;
};

/// What happens to a message whose handler threw, when no thread object decides.
LRESULT AnswerByDefault(const MSG& msg) {
    if (msg.message == WM_CREATE) {
        return -1;
    }
    if (msg.message == WM_PAINT) {
        // Left invalid, the window would be painted again at once, for ever.
        ::ValidateRect(msg.hwnd, nullptr);
    }
    return 0;
}

} // namespace

CException* afx::MemoryException() {
    try {
        AfxThrowMemoryException();
    } catch (CException* e) {
        return e;
    }
}

LRESULT afx::AnswerException(CException* e, const MSG& msg) {
    CWinThread* const thread = AfxGetThread();
    LRESULT answer = 0;
    try {
        answer =
            thread != nullptr ? thread->ProcessWndProcException(e, &msg) : AnswerByDefault(msg);
    } catch (CException* second) {
        // Whoever answers for the first one failed, too: nobody is left to ask.
        if (second != e) {
            second->Delete();
        }
        answer = AnswerByDefault(msg);
    }
    e->Delete();
    return answer;
}

LRESULT CWinThread::ProcessWndProcException(CException*, const MSG* pMsg) {
    return AnswerByDefault(*pMsg);
}

LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    MSG msg = {};
    msg.hwnd = hWnd;
    msg.message = nMsg;
    msg.wParam = wParam;
    msg.lParam = lParam;
    const CurrentMessage current(msg);
    try {
        return afx::WndAccess::CallWindowProc(*pWnd, nMsg, wParam, lParam);
    } catch (CException* e) {
        return afx::AnswerException(e, msg);
    } catch (const std::bad_alloc&) {
        return afx::AnswerException(afx::MemoryException(), msg);
    }
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result)) {
        result = DefWindowProc(message, wParam, lParam);
    }
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_superProc != nullptr ? ::CallWindowProc(m_superProc, m_hWnd, message, wParam, lParam)
                                  : ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& msg = afx::CurrentThread().current;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage() {
    return &afx::CurrentThread().current;
}

// ---- Message map --------------------------------------------------------------------------------

namespace {

bool IsControlColor(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

const AFX_MSGMAP_ENTRY* FindWindowEntry(const AFX_MSGMAP* map, UINT message, bool reflected) {
    const UINT base = reflected ? afx::ReflectBase : 0;
    const AFX_MSGMAP_ENTRY* const entry = afx::FindEntry(map, base + message, 0, 0);
    if (entry != nullptr || !IsControlColor(message)) {
        return entry;
    }
    return afx::FindEntry(map, base + WM_CTLCOLOR, 0, 0);
}

/// The result Windows expects from a message whose handler has none.
bool ExpectsTrue(UINT message) {
    return message == WM_DRAWITEM || message == WM_MEASUREITEM || message == WM_DELETEITEM ||
           message == WM_APPCOMMAND;
}

/// Tells the top-level windows that the activation moves from one of their groups to another.
void NotifyTopLevel(CWnd& wnd, WPARAM state, HWND otherHandle) {
    if ((wnd.GetStyle() & WS_CHILD) != 0) {
        return;
    }
    CWnd* const top = wnd.GetTopLevelOwner();
    CWnd* const other = CWnd::FromHandle(otherHandle);
    if (top != nullptr && (other == nullptr || other->GetTopLevelOwner() != top)) {
        top->SendMessage(WM_ACTIVATETOPLEVEL, state);
    }
}

} // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT unused = 0;
    LRESULT* const result = pResult != nullptr ? pResult : &unused;
    switch (message) {
    case WM_COMMAND:
        *result = 1;
        return OnCommand(wParam, lParam);
    case WM_NOTIFY:
        *result = 0;
        return lParam != 0 && OnNotify(wParam, lParam, result);
    case WM_ACTIVATE:
        NotifyTopLevel(*this, LOWORD(wParam), reinterpret_cast<HWND>(lParam));
        break;
    case WM_INITMENU:
    case WM_INITMENUPOPUP:
        afx::CurrentThread().openMenu = reinterpret_cast<HMENU>(wParam);
        break;
    default:
        break;
    }
    const bool reflected = message >= afx::ReflectBase;
    const UINT number = reflected ? message - afx::ReflectBase : message;
    const AFX_MSGMAP_ENTRY* const entry = FindWindowEntry(GetMessageMap(), number, reflected);
    if (entry == nullptr) {
        return FALSE;
    }
    afx::MapCall call;
    call.message = number;
    call.wParam = wParam;
    call.lParam = lParam;
    call.result = result;
    const BOOL handled = entry->pfn(this, call);
    if (handled && ExpectsTrue(number)) {
        *result = TRUE;
    }
    return handled;
}

// ---- Commands and notifications -----------------------------------------------------------------

namespace {

/// Finds out whether a command is enabled, without an item to show it.
class EnabledProbe : public CCmdUI {
public:
    explicit EnabledProbe(UINT id) { m_nID = id; }
    void Enable(BOOL on) override { m_enabled = on != FALSE; }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}
    bool Enabled() const { return m_enabled; }

private:
    bool m_enabled = true;
};

} // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (control == nullptr) {
        if (id == 0) {
            return FALSE;
        }
        // Its item may have been disabled since the menu was shown; an accelerator shows none.
        EnabledProbe probe(id);
        OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &probe, nullptr);
        return !probe.Enabled() || OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
    }
    if (afx::CurrentThread().exchanging == m_hWnd) {
        return TRUE;
    }
    if (ReflectLastMsg(control)) {
        return TRUE;
    }
    return id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    if (afx::CurrentThread().exchanging == m_hWnd) {
        return TRUE;
    }
    if (ReflectLastMsg(header->hwndFrom, pResult)) {
        return TRUE;
    }
    // Not idFrom: a tool tip puts the handle of its tool there.
    const auto id = static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom));
    LRESULT unused = 0;
    AFX_NOTIFY notify = {pResult != nullptr ? pResult : &unused, header};
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

// ---- Reflection ---------------------------------------------------------------------------------

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* const child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG& msg = afx::CurrentThread().current;
    return OnChildNotify(msg.message, msg.wParam, msg.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return OnWndMsg(afx::ReflectBase + message, wParam, lParam, pResult);
    case WM_COMMAND: {
        const int code = static_cast<int>(
            MAKELONG(HIWORD(wParam), afx::ReflectFlag | static_cast<WORD>(WM_COMMAND)));
        const BOOL handled = OnCmdMsg(0, code, nullptr, nullptr);
        if (handled && pResult != nullptr) {
            *pResult = 1;
        }
        return handled;
    }
    case WM_NOTIFY: {
        LRESULT unused = 0;
        AFX_NOTIFY notify = {pResult != nullptr ? pResult : &unused,
                             reinterpret_cast<NMHDR*>(lParam)};
        const int code = static_cast<int>(
            MAKELONG(notify.pNMHDR->code, afx::ReflectFlag | static_cast<WORD>(WM_NOTIFY)));
        return OnCmdMsg(0, code, &notify, nullptr);
    }
    default:
        return IsControlColor(message) &&
               OnWndMsg(afx::ReflectBase + message, wParam, lParam, pResult);
    }
}
