// SPDX-License-Identifier: MIT
// CWnd: the layout of control bars among the children of a window.
#include <afxext.h>

#include "afxpriv.h"

namespace {

constexpr int BarsExpected = 8;

UINT IdOf(HWND child) {
    return static_cast<UINT>(::GetDlgCtrlID(child));
}

} // namespace

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag,
                          LPRECT lpRectParam, LPCRECT lpRectClient, BOOL bStretch) {
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = bStretch;
    if (lpRectClient != nullptr) {
        layout.rect = *lpRectClient;
    } else {
        GetClientRect(&layout.rect);
    }
    const bool query = nFlag == reposQuery;
    layout.hDWP = query ? nullptr : ::BeginDeferWindowPos(BarsExpected);
    HWND leftOver = nullptr;
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        const UINT id = IdOf(child);
        if (id == nIDLeftOver) {
            leftOver = child;
        } else if (id >= nIDFirst && id <= nIDLast && FromHandlePermanent(child) != nullptr) {
            ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
        }
    }
    if (query) {
        if (bStretch) {
            *lpRectParam = layout.rect;
        } else {
            *lpRectParam = {0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy};
        }
        return;
    }
    if (nIDLeftOver != 0 && leftOver != nullptr) {
        CRect rest = layout.rect;
        if (nFlag == reposExtra && lpRectParam != nullptr) {
            rest.DeflateRect(lpRectParam);
        }
        FromHandle(leftOver)->CalcWindowRect(rest);
        rest.right = (std::max)(rest.right, rest.left);
        rest.bottom = (std::max)(rest.bottom, rest.top);
        if (layout.hDWP != nullptr) {
            layout.hDWP =
                ::DeferWindowPos(layout.hDWP, leftOver, nullptr, rest.left, rest.top, rest.Width(),
                                 rest.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
    if (layout.hDWP != nullptr) {
        ::EndDeferWindowPos(layout.hDWP);
    }
}
