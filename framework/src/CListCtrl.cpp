// SPDX-License-Identifier: MIT
// CListCtrl: creation, columns, look and layout.
#include <afxcmn.h>

#include "CommonControls.h"
#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

void afx::RegisterListViewClasses() {
    static const BOOL registered = [] {
        INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_LISTVIEW_CLASSES};
        return ::InitCommonControlsEx(&classes);
    }();
    UNUSED_ALWAYS(registered);
}

CListCtrl::CListCtrl() = default;

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    afx::RegisterListViewClasses();
    return CWnd::Create(WC_LISTVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- Columns ------------------------------------------------------------------------------------

int CListCtrl::InsertColumn(int nCol, const LVCOLUMN* pColumn) {
    return Send<int>(*this, LVM_INSERTCOLUMN, nCol, pColumn);
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth,
                            int nSubItem) {
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    if (nFormat != -1) {
        column.mask |= LVCF_FMT;
        column.fmt = nFormat;
    }
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::DeleteColumn(int nCol) {
    return Send<BOOL>(*this, LVM_DELETECOLUMN, nCol);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) {
    if (iCount == -1) {
        CHeaderCtrl* const header = GetHeaderCtrl();
        iCount = header == nullptr ? -1 : header->GetItemCount();
    }
    return iCount >= 0 && Send<BOOL>(*this, LVM_GETCOLUMNORDERARRAY, iCount, piArray);
}

BOOL CListCtrl::SetColumnOrderArray(int iCount, LPINT piArray) {
    return Send<BOOL>(*this, LVM_SETCOLUMNORDERARRAY, iCount, piArray);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() {
    return afx::HeaderFromHandle(Send<HWND>(*this, LVM_GETHEADER));
}

// ---- Look ---------------------------------------------------------------------------------------

COLORREF CListCtrl::GetBkColor() const {
    return Send<COLORREF>(*this, LVM_GETBKCOLOR);
}

BOOL CListCtrl::SetBkColor(COLORREF cr) {
    return Send<BOOL>(*this, LVM_SETBKCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextColor() const {
    return Send<COLORREF>(*this, LVM_GETTEXTCOLOR);
}

BOOL CListCtrl::SetTextColor(COLORREF cr) {
    return Send<BOOL>(*this, LVM_SETTEXTCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextBkColor() const {
    return Send<COLORREF>(*this, LVM_GETTEXTBKCOLOR);
}

BOOL CListCtrl::SetTextBkColor(COLORREF cr) {
    return Send<BOOL>(*this, LVM_SETTEXTBKCOLOR, 0, cr);
}

DWORD CListCtrl::GetExtendedStyle() {
    return Send<DWORD>(*this, LVM_GETEXTENDEDLISTVIEWSTYLE);
}

DWORD CListCtrl::SetExtendedStyle(DWORD dwNewStyle) {
    return Send<DWORD>(*this, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
}

// ---- Layout -------------------------------------------------------------------------------------

int CListCtrl::GetTopIndex() const {
    return Send<int>(*this, LVM_GETTOPINDEX);
}

int CListCtrl::GetCountPerPage() const {
    return Send<int>(*this, LVM_GETCOUNTPERPAGE);
}

BOOL CListCtrl::EnsureVisible(int nItem, BOOL bPartialOK) {
    return Send<BOOL>(*this, LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0));
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const {
    lpRect->left = static_cast<LONG>(nCode); // where the message expects what is asked for
    return Send<BOOL>(*this, LVM_GETITEMRECT, nItem, lpRect);
}

int CListCtrl::HitTest(LVHITTESTINFO* pHitTestInfo) const {
    return Send<int>(*this, LVM_HITTEST, 0, pHitTestInfo);
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    LVHITTESTINFO info = {};
    info.pt = pt;
    const int item = HitTest(&info);
    if (pFlags != nullptr) {
        *pFlags = info.flags;
    }
    return item;
}

BOOL CListCtrl::RedrawItems(int nFirst, int nLast) {
    return Send<BOOL>(*this, LVM_REDRAWITEMS, nFirst, nLast);
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
