// SPDX-License-Identifier: MIT
// CWnd: tool tips. All windows of a thread share one tool tip control with at most one tool.
#include <afxwin.h>

#include "Handles.h"
#include "ThreadState.h"

namespace {

HWND TheToolTip() {
    afx::ThreadState& thread = afx::CurrentThread();
    if (thread.toolTip != nullptr && ::IsWindow(thread.toolTip)) {
        return thread.toolTip;
    }
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    thread.toolTip = ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr,
                                      WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                                      CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                      afx::WindowOf(AfxGetMainWnd()), nullptr, nullptr, nullptr);
    return thread.toolTip;
}

void SendTool(UINT message, TOOLINFO& tool) {
    ::SendMessage(afx::CurrentThread().toolTip, message, 0, reinterpret_cast<LPARAM>(&tool));
}

TOOLINFO NewTool() {
    TOOLINFO tool = {};
    // The oldest layout is understood by every version of the control.
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    return tool;
}

/// Takes out the one tool the control may have.
void RemoveTool() {
    const HWND toolTip = afx::CurrentThread().toolTip;
    TOOLINFO tool = NewTool();
    if (toolTip != nullptr &&
        ::SendMessage(toolTip, TTM_ENUMTOOLS, 0, reinterpret_cast<LPARAM>(&tool)) != 0) {
        SendTool(TTM_DELTOOL, tool);
    }
}

bool IsMouseMessage(UINT message) {
    return (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
           (message >= WM_NCMOUSEMOVE && message <= WM_NCXBUTTONDBLCLK);
}

bool IsKeyOrButton(UINT message) {
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN ||
           (IsMouseMessage(message) && message != WM_MOUSEMOVE && message != WM_NCMOUSEMOVE);
}

} // namespace

void PASCAL CWnd::CancelToolTips(BOOL bKeys) {
    afx::ThreadState& thread = afx::CurrentThread();
    CWnd* const over = FromHandlePermanent(thread.toolTipOver);
    thread.toolTipOver = nullptr;
    thread.toolTipTool = -1;
    if (thread.toolTip != nullptr && ::IsWindow(thread.toolTip)) {
        ::SendMessage(thread.toolTip, TTM_POP, 0, 0);
        RemoveTool();
    }
    if (bKeys && over != nullptr) {
        over->ShowStatusTextOfTool(-1);
    }
}

void CWnd::FilterToolTipMessage(MSG* pMsg) {
    if (IsKeyOrButton(pMsg->message)) {
        CancelToolTips(TRUE);
        return;
    }
    const bool ours = pMsg->hwnd == m_hWnd || ::IsChild(m_hWnd, pMsg->hwnd);
    if (!ours || pMsg->message != WM_MOUSEMOVE) {
        return;
    }
    afx::ThreadState& thread = afx::CurrentThread();
    const bool inner = thread.toolTipTool != -1 && ::IsChild(m_hWnd, thread.toolTipOver);
    if (inner && (pMsg->hwnd == thread.toolTipOver || ::IsChild(thread.toolTipOver, pMsg->hwnd))) {
        return; // a window inside has found a tool of its own
    }
    CPoint point = pMsg->pt;
    ScreenToClient(&point);
    TOOLINFO tool = NewTool();
    const INT_PTR hit = OnToolHitTest(point, &tool);
    if (hit != thread.toolTipTool || m_hWnd != thread.toolTipOver) {
        if (TheToolTip() == nullptr) {
            return;
        }
        CancelToolTips(thread.toolTipOver != m_hWnd);
        thread.toolTipOver = m_hWnd;
        thread.toolTipTool = hit;
        if (hit != -1) {
            tool.hwnd = m_hWnd;
            SendTool(TTM_ADDTOOL, tool);
            ::SetWindowPos(thread.toolTip, HWND_TOP, 0, 0, 0, 0,
                           SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOOWNERZORDER);
        }
        ShowStatusTextOfTool(hit);
    }
    if (hit != -1) {
        // A tool without a window is known to the control by a place in ours.
        MSG relayed = *pMsg;
        if ((tool.uFlags & TTF_IDISHWND) == 0) {
            relayed.hwnd = m_hWnd;
            relayed.lParam = MAKELPARAM(point.x, point.y);
        }
        ::SendMessage(thread.toolTip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
    }
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (child == nullptr || child == m_hWnd) {
        return -1;
    }
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOA_V1_SIZE) {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    const auto id = static_cast<WORD>(::GetDlgCtrlID(child));
    return id == 0xFFFF ? -1 : id;
}
