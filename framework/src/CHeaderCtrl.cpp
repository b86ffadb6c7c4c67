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

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const {
    return Send<BOOL>(*this, HDM_GETITEM, nPos, pHeaderItem);
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEM* pHeaderItem) {
    return Send<BOOL>(*this, HDM_SETITEM, nPos, pHeaderItem);
}

int CHeaderCtrl::InsertItem(int nPos, HDITEM* phdi) {
    return Send<int>(*this, HDM_INSERTITEM, nPos, phdi);
}

BOOL CHeaderCtrl::DeleteItem(int nPos) {
    return Send<BOOL>(*this, HDM_DELETEITEM, nPos);
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const {
    return Send<BOOL>(*this, HDM_GETITEMRECT, nIndex, lpRect);
}

int CHeaderCtrl::OrderToIndex(int nOrder) const {
    return Send<int>(*this, HDM_ORDERTOINDEX, nOrder);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount) {
    return Send<BOOL>(*this, HDM_GETORDERARRAY, iCount, piArray);
}

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray) {
    return Send<BOOL>(*this, HDM_SETORDERARRAY, iCount, piArray);
}
