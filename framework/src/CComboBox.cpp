// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include <vector>

#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- Items --------------------------------------------------------------------------------------

int CComboBox::GetCount() const {
    return Send<int>(*this, CB_GETCOUNT);
}

int CComboBox::AddString(LPCTSTR lpszString) {
    return Send<int>(*this, CB_ADDSTRING, 0, lpszString);
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString) {
    return Send<int>(*this, CB_INSERTSTRING, nIndex, lpszString);
}

int CComboBox::DeleteString(UINT nIndex) {
    return Send<int>(*this, CB_DELETESTRING, nIndex);
}

void CComboBox::ResetContent() {
    Send(*this, CB_RESETCONTENT);
}

int CComboBox::Dir(UINT attr, LPCTSTR lpszWildCard) {
    return Send<int>(*this, CB_DIR, attr, lpszWildCard);
}

int CComboBox::InitStorage(int nItems, UINT nBytes) {
    return Send<int>(*this, CB_INITSTORAGE, nItems, nBytes);
}

int CComboBox::GetLBText(int nIndex, LPTSTR lpszText) const {
    return Send<int>(*this, CB_GETLBTEXT, nIndex, lpszText);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetLBTextLen(nIndex);
    if (length > 0) {
        GetLBText(nIndex, rString.GetBufferSetLength(length));
        rString.ReleaseBuffer();
    }
}

int CComboBox::GetLBTextLen(int nIndex) const {
    return Send<int>(*this, CB_GETLBTEXTLEN, nIndex);
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const {
    return Send<DWORD_PTR>(*this, CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return Send<int>(*this, CB_SETITEMDATA, nIndex, dwItemData);
}

void* CComboBox::GetItemDataPtr(int nIndex) const {
    return Send<void*>(*this, CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemDataPtr(int nIndex, void* pData) {
    return Send<int>(*this, CB_SETITEMDATA, nIndex, pData);
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const {
    return Send<int>(*this, CB_FINDSTRING, nStartAfter, lpszString);
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return Send<int>(*this, CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

LCID CComboBox::GetLocale() const {
    return Send<LCID>(*this, CB_GETLOCALE);
}

LCID CComboBox::SetLocale(LCID nNewLocale) {
    return Send<LCID>(*this, CB_SETLOCALE, nNewLocale);
}

// ---- Selection ----------------------------------------------------------------------------------

int CComboBox::GetCurSel() const {
    return Send<int>(*this, CB_GETCURSEL);
}

int CComboBox::SetCurSel(int nSelect) {
    return Send<int>(*this, CB_SETCURSEL, nSelect);
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString) {
    return Send<int>(*this, CB_SELECTSTRING, nStartAfter, lpszString);
}

// ---- Edit control -------------------------------------------------------------------------------

DWORD CComboBox::GetEditSel() const {
    return Send<DWORD>(*this, CB_GETEDITSEL);
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar) {
    return Send<BOOL>(*this, CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar));
}

BOOL CComboBox::LimitText(int nMaxChars) {
    return Send<BOOL>(*this, CB_LIMITTEXT, nMaxChars);
}

BOOL CComboBox::SetCueBanner(LPCTSTR lpszText) {
    // The message takes wide characters only.
    const int length = ::MultiByteToWideChar(CP_ACP, 0, lpszText, -1, nullptr, 0);
    if (length <= 0) {
        return FALSE;
    }
    std::vector<wchar_t> wide(static_cast<size_t>(length));
    ::MultiByteToWideChar(CP_ACP, 0, lpszText, -1, wide.data(), length);
    return Send<BOOL>(*this, CB_SETCUEBANNER, 0, wide.data());
}

void CComboBox::Clear() {
    Send(*this, WM_CLEAR);
}

void CComboBox::Copy() {
    Send(*this, WM_COPY);
}

void CComboBox::Cut() {
    Send(*this, WM_CUT);
}

void CComboBox::Paste() {
    Send(*this, WM_PASTE);
}

// ---- List and layout ----------------------------------------------------------------------------

void CComboBox::ShowDropDown(BOOL bShowIt) {
    Send(*this, CB_SHOWDROPDOWN, bShowIt);
}

BOOL CComboBox::GetDroppedState() const {
    return Send<BOOL>(*this, CB_GETDROPPEDSTATE);
}

int CComboBox::GetTopIndex() const {
    return Send<int>(*this, CB_GETTOPINDEX);
}

int CComboBox::SetTopIndex(int nIndex) {
    return Send<int>(*this, CB_SETTOPINDEX, nIndex);
}

int CComboBox::GetItemHeight(int nIndex) const {
    return Send<int>(*this, CB_GETITEMHEIGHT, nIndex);
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return Send<int>(*this, CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

UINT CComboBox::GetHorizontalExtent() const {
    return Send<UINT>(*this, CB_GETHORIZONTALEXTENT);
}

void CComboBox::SetHorizontalExtent(UINT nExtent) {
    Send(*this, CB_SETHORIZONTALEXTENT, nExtent);
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
