// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() = default;

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- Text and selection -------------------------------------------------------------------------

DWORD CEdit::GetSel() const {
    return Send<DWORD>(*this, EM_GETSEL);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD start = 0;
    DWORD end = 0;
    Send(*this, EM_GETSEL, &start, &end);
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll) {
    SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)),
           bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    Send(*this, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll) {
        Send(*this, EM_SCROLLCARET);
    }
}

void CEdit::LimitText(int nChars) {
    Send(*this, EM_LIMITTEXT, nChars);
}

BOOL CEdit::SetCueBanner(LPCWSTR lpszText) {
    return Send<BOOL>(*this, EM_SETCUEBANNER, FALSE, lpszText);
}

// ---- Lines --------------------------------------------------------------------------------------

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const {
    return Send<int>(*this, EM_GETLINE, nIndex, lpszBuffer);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    ASSERT(nMaxLength >= static_cast<int>(sizeof(WORD)));
    if (nMaxLength < static_cast<int>(sizeof(WORD))) {
        return 0;
    }
    // The control finds the size of the buffer in its first word.
    const auto size = static_cast<WORD>(nMaxLength > 0xFFFF ? 0xFFFF : nMaxLength);
    memcpy(lpszBuffer, &size, sizeof(size));
    return GetLine(nIndex, lpszBuffer);
}

int CEdit::LineLength(int nLine) const {
    return Send<int>(*this, EM_LINELENGTH, nLine);
}

// ---- Layout -------------------------------------------------------------------------------------

void CEdit::GetRect(LPRECT lpRect) const {
    Send(*this, EM_GETRECT, 0, lpRect);
}

void CEdit::SetRect(LPCRECT lpRect) {
    Send(*this, EM_SETRECT, 0, lpRect);
}

void CEdit::SetTabStops() {
    Send(*this, EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(const int& cxEachStop) {
    return Send<BOOL>(*this, EM_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops) {
    return Send<BOOL>(*this, EM_SETTABSTOPS, nTabStops, rgTabStops);
}

// ---- Clipboard and undo -------------------------------------------------------------------------

void CEdit::Clear() {
    Send(*this, WM_CLEAR);
}

void CEdit::Copy() {
    Send(*this, WM_COPY);
}

void CEdit::Cut() {
    Send(*this, WM_CUT);
}

void CEdit::Paste() {
    Send(*this, WM_PASTE);
}

BOOL CEdit::Undo() {
    return Send<BOOL>(*this, EM_UNDO);
}
