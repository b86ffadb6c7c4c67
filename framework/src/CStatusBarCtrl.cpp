// SPDX-License-Identifier: MIT
#include <afxcmn.h>

#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

CStatusBarCtrl::CStatusBarCtrl() = default;

BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(STATUSCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::SetParts(int nParts, int* pWidths) {
    return Send<BOOL>(*this, SB_SETPARTS, nParts, pWidths);
}

int CStatusBarCtrl::GetParts(int nParts, int* pParts) const {
    return Send<int>(*this, SB_GETPARTS, nParts, pParts);
}

BOOL CStatusBarCtrl::GetRect(int nPane, LPRECT lpRect) const {
    return Send<BOOL>(*this, SB_GETRECT, nPane, lpRect);
}

BOOL CStatusBarCtrl::SetText(LPCTSTR lpszText, int nPane, int nType) {
    return Send<BOOL>(*this, SB_SETTEXT, nPane | nType, lpszText);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const {
    const auto length = Send<DWORD>(*this, SB_GETTEXTLENGTH, nPane);
    if (pType != nullptr) {
        *pType = HIWORD(length);
    }
    CString text;
    Send(*this, SB_GETTEXT, nPane, text.GetBuffer(LOWORD(length) + 1));
    text.ReleaseBuffer();
    return text;
}

void CStatusBarCtrl::SetMinHeight(int nMin) {
    Send(*this, SB_SETMINHEIGHT, nMin);
}

COLORREF CStatusBarCtrl::SetBkColor(COLORREF cr) {
    return Send<COLORREF>(*this, SB_SETBKCOLOR, 0, cr);
}
