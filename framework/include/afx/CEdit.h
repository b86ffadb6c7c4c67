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
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    UINT GetLimitText() const;
    void SetLimitText(UINT nMax);
    void LimitText(int nChars = 0);
    TCHAR GetPasswordChar() const;
    void SetPasswordChar(TCHAR ch);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    BOOL SetCueBanner(LPCWSTR lpszText);
    /// @}

    /// @name Lines
    /// @{
    int GetLineCount() const;
    /// Copies a line without a terminating null. The first word of the buffer holds its size.
    /// @return the number of characters copied.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    int LineFromChar(int nIndex = -1) const;
    void LineScroll(int nLines, int nChars = 0);
    int GetFirstVisibleLine() const;
    BOOL FmtLines(BOOL bAddEOL);
    /// @}

    /// @name Layout
    /// @{
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    void SetRectNP(LPCRECT lpRect);
    DWORD GetMargins() const;
    void SetMargins(UINT nLeft, UINT nRight);
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    int CharFromPos(CPoint pt) const;
    CPoint PosFromChar(UINT nChar) const;
    /// @}

    /// @name Clipboard and undo
    /// @{
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    BOOL CanUndo() const;
    BOOL Undo();
    void EmptyUndoBuffer();
    /// @}
};
