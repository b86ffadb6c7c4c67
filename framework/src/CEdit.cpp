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

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo) {
    Send(*this, EM_REPLACESEL, bCanUndo, lpszNewText);
}

BOOL CEdit::GetModify() const {
    return Send<BOOL>(*this, EM_GETMODIFY);
}

void CEdit::SetModify(BOOL bModified) {
    Send(*this, EM_SETMODIFY, bModified);
}

UINT CEdit::GetLimitText() const {
    return Send<UINT>(*this, EM_GETLIMITTEXT);
}

void CEdit::SetLimitText(UINT nMax) {
    Send(*this, EM_SETLIMITTEXT, nMax);
}

void CEdit::LimitText(int nChars) {
    Send(*this, EM_LIMITTEXT, nChars);
}

TCHAR CEdit::GetPasswordChar() const {
    return Send<TCHAR>(*this, EM_GETPASSWORDCHAR);
}

void CEdit::SetPasswordChar(TCHAR ch) {
    Send(*this, EM_SETPASSWORDCHAR, static_cast<BYTE>(ch));
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly) {
    return Send<BOOL>(*this, EM_SETREADONLY, bReadOnly);
}

BOOL CEdit::SetCueBanner(LPCWSTR lpszText) {
    return Send<BOOL>(*this, EM_SETCUEBANNER, FALSE, lpszText);
}

// ---- Lines --------------------------------------------------------------------------------------

int CEdit::GetLineCount() const {
    return Send<int>(*this, EM_GETLINECOUNT);
}

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

int CEdit::LineIndex(int nLine) const {
    return Send<int>(*this, EM_LINEINDEX, nLine);
}

int CEdit::LineLength(int nLine) const {
    return Send<int>(*this, EM_LINELENGTH, nLine);
}

int CEdit::LineFromChar(int nIndex) const {
    return Send<int>(*this, EM_LINEFROMCHAR, nIndex);
}

void CEdit::LineScroll(int nLines, int nChars) {
    Send(*this, EM_LINESCROLL, nChars, nLines);
}

int CEdit::GetFirstVisibleLine() const {
    return Send<int>(*this, EM_GETFIRSTVISIBLELINE);
}

BOOL CEdit::FmtLines(BOOL bAddEOL) {
    return Send<BOOL>(*this, EM_FMTLINES, bAddEOL);
}

// ---- Layout -------------------------------------------------------------------------------------

void CEdit::GetRect(LPRECT lpRect) const {
    Send(*this, EM_GETRECT, 0, lpRect);
}

void CEdit::SetRect(LPCRECT lpRect) {
    Send(*this, EM_SETRECT, 0, lpRect);
}

void CEdit::SetRectNP(LPCRECT lpRect) {
    Send(*this, EM_SETRECTNP, 0, lpRect);
}

DWORD CEdit::GetMargins() const {
    return Send<DWORD>(*this, EM_GETMARGINS);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight) {
    Send(*this, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
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

int CEdit::CharFromPos(CPoint pt) const {
    return Send<int>(*this, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y));
}

CPoint CEdit::PosFromChar(UINT nChar) const {
    return CPoint(Send<LPARAM>(*this, EM_POSFROMCHAR, nChar));
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

BOOL CEdit::CanUndo() const {
    return Send<BOOL>(*this, EM_CANUNDO);
}

BOOL CEdit::Undo() {
    return Send<BOOL>(*this, EM_UNDO);
}

void CEdit::EmptyUndoBuffer() {
    Send(*this, EM_EMPTYUNDOBUFFER);
}
