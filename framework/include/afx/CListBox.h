// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// A list box. Items count from 0; LB_ERR stands for a failure, LB_ERRSPACE for lack of memory.
class CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// @name Items
    /// @{
    int GetCount() const;
    int AddString(LPCTSTR lpszItem);
    int InsertString(int nIndex, LPCTSTR lpszItem);
    int DeleteString(UINT nIndex);
    void ResetContent();
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int InitStorage(int nItems, UINT nBytes);
    int GetText(int nIndex, LPTSTR lpszBuffer) const;
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const;
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int FindString(int nStartAfter, LPCTSTR lpszItem) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    /// @}

    /// @name Selection
    /// @{
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    int SelectString(int nStartAfter, LPCTSTR lpszItem);
    int GetSel(int nIndex) const;
    int SetSel(int nIndex, BOOL bSelect = TRUE);
    /// @}

    /// @name Layout
    /// @{
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    int GetItemHeight(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemRect(int nIndex, LPRECT lpRect) const;
    int GetHorizontalExtent() const;
    void SetHorizontalExtent(int cxExtent);
    void SetColumnWidth(int cxWidth);
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    /// @}

    /// @name An owner-draw list box draws itself through these
    /// @{
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    /// @return -1, 0 or 1: the first item comes before, with or after the second.
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);
    /// @}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
