// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

class CEdit;
class CHeaderCtrl;
class CImageList;

/// A list view. Items and columns count from 0; an item's text in column 0 is its own, those of the
/// other columns belong to its subitems. Functions that return an index give -1 on failure.
class CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// @name Items
    /// @{
    int GetItemCount() const;
    /// Reserves memory for so many items; in a virtual list it sets their number.
    void SetItemCount(int nItems);
    BOOL GetItem(LVITEM* pItem) const;
    BOOL SetItem(const LVITEM* pItem);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam, int nIndent);
    int InsertItem(const LVITEM* pItem);
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask,
                   int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    /// @param nLen  size of the buffer. @return length of the text that was copied.
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    CString GetItemText(int nItem, int nSubItem) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    UINT GetItemState(int nItem, UINT nMask) const;
    BOOL SetItemState(int nItem, LVITEM* pItem);
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    /// @}

    /// @name Searching, sorting, selection
    /// @{
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const;
    /// The comparison is given the items' parameters.
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    UINT GetSelectedCount() const;
    /// @}

    /// @name Columns
    /// @{
    int InsertColumn(int nCol, const LVCOLUMN* pColumn);
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT,
                     int nWidth = -1, int nSubItem = -1);
    BOOL DeleteColumn(int nCol);
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray);
    /// May be temporary. Null when there is no header.
    CHeaderCtrl* GetHeaderCtrl();
    /// @}

    /// @name Look
    /// @{
    COLORREF GetBkColor() const;
    BOOL SetBkColor(COLORREF cr);
    COLORREF GetTextColor() const;
    BOOL SetTextColor(COLORREF cr);
    COLORREF GetTextBkColor() const;
    BOOL SetTextBkColor(COLORREF cr);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD dwNewStyle);
    /// @}

    /// @name Layout
    /// @{
    int GetTopIndex() const;
    int GetCountPerPage() const;
    BOOL EnsureVisible(int nItem, BOOL bPartialOK);
    /// @param nCode  LVIR_BOUNDS, LVIR_LABEL ...
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    int HitTest(LVHITTESTINFO* pHitTestInfo) const;
    int HitTest(CPoint pt, UINT* pFlags = NULL) const;
    BOOL RedrawItems(int nFirst, int nLast);
    /// @}

    /// Draws a list with LVS_OWNERDRAWFIXED. Override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
