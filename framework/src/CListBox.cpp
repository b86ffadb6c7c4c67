// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::CListBox() = default;

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- Items --------------------------------------------------------------------------------------

int CListBox::GetCount() const {
    return Send<int>(*this, LB_GETCOUNT);
}

int CListBox::AddString(LPCTSTR lpszItem) {
    return Send<int>(*this, LB_ADDSTRING, 0, lpszItem);
}

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem) {
    return Send<int>(*this, LB_INSERTSTRING, nIndex, lpszItem);
}

int CListBox::DeleteString(UINT nIndex) {
    return Send<int>(*this, LB_DELETESTRING, nIndex);
}

void CListBox::ResetContent() {
    Send(*this, LB_RESETCONTENT);
}

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard) {
    return Send<int>(*this, LB_DIR, attr, lpszWildCard);
}

int CListBox::InitStorage(int nItems, UINT nBytes) {
    return Send<int>(*this, LB_INITSTORAGE, nItems, nBytes);
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const {
    return Send<int>(*this, LB_GETTEXT, nIndex, lpszBuffer);
}

void CListBox::GetText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetTextLen(nIndex);
    if (length > 0) {
        GetText(nIndex, rString.GetBufferSetLength(length));
        rString.ReleaseBuffer();
    }
}

int CListBox::GetTextLen(int nIndex) const {
    return Send<int>(*this, LB_GETTEXTLEN, nIndex);
}

DWORD_PTR CListBox::GetItemData(int nIndex) const {
    return Send<DWORD_PTR>(*this, LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return Send<int>(*this, LB_SETITEMDATA, nIndex, dwItemData);
}

void* CListBox::GetItemDataPtr(int nIndex) const {
    return Send<void*>(*this, LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemDataPtr(int nIndex, void* pData) {
    return Send<int>(*this, LB_SETITEMDATA, nIndex, pData);
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const {
    return Send<int>(*this, LB_FINDSTRING, nStartAfter, lpszItem);
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return Send<int>(*this, LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

LCID CListBox::GetLocale() const {
    return Send<LCID>(*this, LB_GETLOCALE);
}

LCID CListBox::SetLocale(LCID nNewLocale) {
    return Send<LCID>(*this, LB_SETLOCALE, nNewLocale);
}

// ---- Selection ----------------------------------------------------------------------------------

int CListBox::GetCurSel() const {
    return Send<int>(*this, LB_GETCURSEL);
}

int CListBox::SetCurSel(int nSelect) {
    return Send<int>(*this, LB_SETCURSEL, nSelect);
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem) {
    return Send<int>(*this, LB_SELECTSTRING, nStartAfter, lpszItem);
}

int CListBox::GetSel(int nIndex) const {
    return Send<int>(*this, LB_GETSEL, nIndex);
}

int CListBox::SetSel(int nIndex, BOOL bSelect) {
    return Send<int>(*this, LB_SETSEL, bSelect, nIndex);
}

// ---- Layout -------------------------------------------------------------------------------------

int CListBox::GetTopIndex() const {
    return Send<int>(*this, LB_GETTOPINDEX);
}

int CListBox::SetTopIndex(int nIndex) {
    return Send<int>(*this, LB_SETTOPINDEX, nIndex);
}

int CListBox::GetItemHeight(int nIndex) const {
    return Send<int>(*this, LB_GETITEMHEIGHT, nIndex);
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return Send<int>(*this, LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const {
    return Send<int>(*this, LB_GETITEMRECT, nIndex, lpRect);
}

int CListBox::GetHorizontalExtent() const {
    return Send<int>(*this, LB_GETHORIZONTALEXTENT);
}

void CListBox::SetHorizontalExtent(int cxExtent) {
    Send(*this, LB_SETHORIZONTALEXTENT, cxExtent);
}

void CListBox::SetColumnWidth(int cxWidth) {
    Send(*this, LB_SETCOLUMNWIDTH, cxWidth);
}

void CListBox::SetTabStops() {
    Send(*this, LB_SETTABSTOPS);
}

BOOL CListBox::SetTabStops(const int& cxEachStop) {
    return Send<BOOL>(*this, LB_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops) {
    return Send<BOOL>(*this, LB_SETTABSTOPS, nTabStops, rgTabStops);
}

// ---- Self-drawing ------------------------------------------------------------------------------

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}

int CListBox::VKeyToItem(UINT, UINT) {
    return -1; // the list box does what it always does
}

int CListBox::CharToItem(UINT, UINT) {
    return -1;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT unused = 0;
    LRESULT& result = pResult != nullptr ? *pResult : unused;
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        result = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    case WM_VKEYTOITEM:
        result = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    case WM_CHARTOITEM:
        result = CharToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    return TRUE;
}
