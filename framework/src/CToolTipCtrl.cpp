// SPDX-License-Identifier: MIT
#include <afxcmn.h>

#include "Handles.h"
#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

CToolTipCtrl::CToolTipCtrl() = default;

namespace {

/// What names a tool to the control.
TOOLINFO ToolOf(const CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOA_V2_SIZE; // understood by every version of the common controls
    const HWND window = afx::WindowOf(pWnd);
    if (nIDTool == 0) {
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = ::GetParent(window);
        tool.uId = reinterpret_cast<UINT_PTR>(window);
    } else {
        tool.hwnd = window;
        tool.uId = nIDTool;
    }
    return tool;
}

} // namespace

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&classes);
    return CWnd::CreateEx(WS_EX_TOOLWINDOW, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle,
                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                          afx::WindowOf(pParentWnd), nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    ASSERT((lpRectTool == nullptr) == (nIDTool == 0));
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    if (lpRectTool != nullptr) {
        tool.rect = *lpRectTool;
    }
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    return Send<BOOL>(*this, TTM_ADDTOOL, 0, &tool);
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    tool.rect = *lpRect;
    Send(*this, TTM_NEWTOOLRECT, 0, &tool);
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    Send(*this, TTM_UPDATETIPTEXT, 0, &tool);
}

void CToolTipCtrl::RelayEvent(LPMSG lpMsg) {
    Send(*this, TTM_RELAYEVENT, 0, lpMsg);
}
