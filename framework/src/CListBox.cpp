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

int CListBox::AddString(LPCTSTR lpszItem) {
    return Send<int>(*this, LB_ADDSTRING, 0, lpszItem);
}

// ---- Selection ----------------------------------------------------------------------------------

int CListBox::GetCurSel() const {
    return Send<int>(*this, LB_GETCURSEL);
}

int CListBox::SetCurSel(int nSelect) {
    return Send<int>(*this, LB_SETCURSEL, nSelect);
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
