// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// An edit control. Character positions count from 0 at the start of the text.
class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// @name Text and selection
    /// @{
    /// The start in the low word, the end in the high word.
    DWORD GetSel() const;
    void GetSel(int& nStartChar, int& nEndChar) const;
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    /// 0 and -1 select everything; -1 as the start selects nothing.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void LimitText(int nChars = 0);
    BOOL SetCueBanner(LPCWSTR lpszText);
    /// @}

    /// @name Lines
    /// @{
    /// Copies a line without a terminating null. The first word of the buffer holds its size.
    /// @return the number of characters copied.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int LineLength(int nLine = -1) const;
    /// @}

    /// @name Layout
    /// @{
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    /// @}

    /// @name Clipboard and undo
    /// @{
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    BOOL Undo();
    /// @}
};
