// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// A list box. Items count from 0; LB_ERR stands for a failure, LB_ERRSPACE for lack of memory.
class CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int AddString(LPCTSTR lpszItem);
    int GetCurSel() const;
    int SetCurSel(int nSelect);

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
