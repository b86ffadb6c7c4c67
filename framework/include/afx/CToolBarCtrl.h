// SPDX-License-Identifier: MIT
/// @file
/// CToolBarCtrl: the toolbar control of the common controls.
#pragma once

#include "afx/CWnd.h"

/// A toolbar control. A button is named by its position (index) or by its command (nID).
class CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    CToolBarCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetButtonCount() const;
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const;
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons);
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton);
    BOOL DeleteButton(int nIndex);
    UINT CommandToIndex(UINT nID) const;
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    BOOL GetRect(int nID, LPRECT lpRect) const;
    /// @return index of the button at the point, negative when it is none.
    int HitTest(LPPOINT lpPoint) const;
    int GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const;
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* ptbbi);
    BOOL SetCmdID(int nIndex, UINT nID);

    /// TBSTATE_ flags, -1 when there is no such button.
    int GetState(int nID) const;
    BOOL SetState(int nID, UINT nState);
    BOOL EnableButton(int nID, BOOL bEnable = TRUE);
    BOOL CheckButton(int nID, BOOL bCheck = TRUE);
    BOOL PressButton(int nID, BOOL bPress = TRUE);
    BOOL HideButton(int nID, BOOL bHide = TRUE);
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE);
    BOOL IsButtonEnabled(int nID) const;
    BOOL IsButtonChecked(int nID) const;
    BOOL IsButtonPressed(int nID) const;
    BOOL IsButtonHidden(int nID) const;
    BOOL IsButtonIndeterminate(int nID) const;

    /// Width in the low word, height in the high word.
    DWORD GetButtonSize() const;
    BOOL SetButtonSize(CSize size);
    BOOL SetBitmapSize(CSize size);
    void SetButtonStructSize(int nSize);
    DWORD GetStyle() const;
    void SetStyle(DWORD dwStyle);
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD dwExStyle);
    /// Index of the hot button, -1 for none.
    int GetHotItem() const;
    int SetHotItem(int nHot);
    void AutoSize();
};
