// SPDX-License-Identifier: MIT
#include <afxcmn.h>

#include "CommonControls.h"
#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

CHeaderCtrl::CHeaderCtrl() = default;

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    afx::RegisterListViewClasses();
    return CWnd::Create(WC_HEADER, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CHeaderCtrl::GetItemCount() const {
    return Send<int>(*this, HDM_GETITEMCOUNT);
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const {
    return Send<BOOL>(*this, HDM_GETITEMRECT, nIndex, lpRect);
}
