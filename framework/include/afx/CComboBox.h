// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// A combo box. Items count from 0; CB_ERR stands for a failure, CB_ERRSPACE for lack of memory.
class CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int AddString(LPCTSTR lpszString);
    int GetCurSel() const;
    int SetCurSel(int nSelect);

    /// @name Edit control
    /// @{
    /// The start in the low word, the end in the high word.
    DWORD GetEditSel() const;
    BOOL SetEditSel(int nStartChar, int nEndChar);
    /// @}

    /// @name List and layout
    /// @{
    void ShowDropDown(BOOL bShowIt = TRUE);
    BOOL GetDroppedState() const;
    /// @param nIndex -1 for the field itself.
    int GetItemHeight(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);
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
