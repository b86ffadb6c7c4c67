// SPDX-License-Identifier: MIT
/// @file
/// CStatusBarCtrl: the status bar control of the common controls.
#pragma once

#include "afx/CWnd.h"

/// A status bar control. A pane is named by its position from zero.
class CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    CStatusBarCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetParts(int nParts, int* pWidths);
    int GetParts(int nParts, int* pParts) const;
    BOOL GetRect(int nPane, LPRECT lpRect) const;
    /// @param nType SBT_ style of the pane.
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType);
    CString GetText(int nPane, int* pType = NULL) const;
    void SetMinHeight(int nMin);
    COLORREF SetBkColor(COLORREF cr);
};
