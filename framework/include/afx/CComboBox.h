// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// A combo box. Items count from 0; CB_ERR stands for a failure, CB_ERRSPACE for lack of memory.
class CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// @name Items
    /// @{
    int GetCount() const;
    int AddString(LPCTSTR lpszString);
    int InsertString(int nIndex, LPCTSTR lpszString);
    int DeleteString(UINT nIndex);
    void ResetContent();
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int InitStorage(int nItems, UINT nBytes);
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const;
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    /// @}

    /// @name Selection
    /// @{
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    int SelectString(int nStartAfter, LPCTSTR lpszString);
    /// @}

    /// @name Edit control
    /// @{
    /// The start in the low word, the end in the high word.
    DWORD GetEditSel() const;
    BOOL SetEditSel(int nStartChar, int nEndChar);
    BOOL LimitText(int nMaxChars);
    BOOL SetCueBanner(LPCTSTR lpszText);
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    /// @}

    /// @name List and layout
    /// @{
    void ShowDropDown(BOOL bShowIt = TRUE);
    BOOL GetDroppedState() const;
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    /// @param nIndex -1 for the field itself.
    int GetItemHeight(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    UINT GetHorizontalExtent() const;
    void SetHorizontalExtent(UINT nExtent);
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;
    /// @}

    /// @name An owner-draw combo box draws itself through these
    /// @{
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    /// @return -1, 0 or 1: the first item comes before, with or after the second.
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    /// @}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
