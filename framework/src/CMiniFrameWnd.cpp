// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include "Handles.h"

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)

CMiniFrameWnd::CMiniFrameWnd() = default;

BOOL CMiniFrameWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName,
                             DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    SetTitle(lpWindowName);
    return CWnd::CreateEx(dwExStyle, lpClassName, lpWindowName, dwStyle, rect.left, rect.top,
                          rect.right - rect.left, rect.bottom - rect.top, afx::WindowOf(pParentWnd),
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)));
}

BOOL CMiniFrameWnd::Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                           const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(WS_EX_TOOLWINDOW, lpClassName, lpWindowName, dwStyle, rect, pParentWnd, nID);
}
