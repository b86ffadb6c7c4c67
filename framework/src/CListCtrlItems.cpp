// SPDX-License-Identifier: MIT
// CListCtrl: items, searching, sorting, selection.
#include <afxcmn.h>

#include "Send.h"

using afx::Send;

int CListCtrl::GetItemCount() const {
    return Send<int>(*this, LVM_GETITEMCOUNT);
}

void CListCtrl::SetItemCount(int nItems) {
    Send(*this, LVM_SETITEMCOUNT, nItems);
}

BOOL CListCtrl::GetItem(LVITEM* pItem) const {
    return Send<BOOL>(*this, LVM_GETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(const LVITEM* pItem) {
    return Send<BOOL>(*this, LVM_SETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam) {
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam, int nIndent) {
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

int CListCtrl::InsertItem(const LVITEM* pItem) {
    return Send<int>(*this, LVM_INSERTITEM, 0, pItem);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem) {
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask,
                          int nImage, LPARAM lParam) {
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::DeleteItem(int nItem) {
    return Send<BOOL>(*this, LVM_DELETEITEM, nItem);
}

BOOL CListCtrl::DeleteAllItems() {
    return Send<BOOL>(*this, LVM_DELETEALLITEMS);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const {
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData) {
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    return Send<int>(*this, LVM_GETITEMTEXT, nItem, &item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const {
    // The message does not say how long a text is; one that fills the buffer may go on.
    CString text;
    int length = 0;
    for (int size = 128;; size *= 2) {
        length = GetItemText(nItem, nSubItem, text.GetBufferSetLength(size), size);
        text.ReleaseBuffer(length);
        if (length < size - 1 || size > (1 << 28)) {
            return text;
        }
    }
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText) {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return Send<BOOL>(*this, LVM_SETITEMTEXT, nItem, &item);
}

UINT CListCtrl::GetItemState(int nItem, UINT nMask) const {
    return Send<UINT>(*this, LVM_GETITEMSTATE, nItem, nMask);
}

BOOL CListCtrl::SetItemState(int nItem, LVITEM* pItem) {
    return Send<BOOL>(*this, LVM_SETITEMSTATE, nItem, pItem);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask) {
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

// ---- Searching, sorting, selection --------------------------------------------------------------

int CListCtrl::FindItem(LVFINDINFO* pFindInfo, int nStart) const {
    return Send<int>(*this, LVM_FINDITEM, nStart, pFindInfo);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
    return Send<BOOL>(*this, LVM_SORTITEMS, dwData, pfnCompare);
}

UINT CListCtrl::GetSelectedCount() const {
    return Send<UINT>(*this, LVM_GETSELECTEDCOUNT);
}
