// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- Items --------------------------------------------------------------------------------------

int CComboBox::AddString(LPCTSTR lpszString) {
    return Send<int>(*this, CB_ADDSTRING, 0, lpszString);
}

// ---- Selection ----------------------------------------------------------------------------------

int CComboBox::GetCurSel() const {
    return Send<int>(*this, CB_GETCURSEL);
}

int CComboBox::SetCurSel(int nSelect) {
    return Send<int>(*this, CB_SETCURSEL, nSelect);
}

// ---- Edit control -------------------------------------------------------------------------------

DWORD CComboBox::GetEditSel() const {
    return Send<DWORD>(*this, CB_GETEDITSEL);
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar) {
    return Send<BOOL>(*this, CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar));
}

// ---- List and layout ----------------------------------------------------------------------------

void CComboBox::ShowDropDown(BOOL bShowIt) {
    Send(*this, CB_SHOWDROPDOWN, bShowIt);
}

BOOL CComboBox::GetDroppedState() const {
    return Send<BOOL>(*this, CB_GETDROPPEDSTATE);
}

int CComboBox::GetItemHeight(int nIndex) const {
    return Send<int>(*this, CB_GETITEMHEIGHT, nIndex);
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return Send<int>(*this, CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const {
    pcbi->cbSize = sizeof(*pcbi);
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}

// ---- Self-drawing ------------------------------------------------------------------------------

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
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
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    return TRUE;
}
