// SPDX-License-Identifier: MIT
#include <afxcmn.h>

#include <vector>

#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

CRichEditCtrl::CRichEditCtrl() = default;

BOOL AFXAPI AfxInitRichEdit2() {
    // Loaded until the program ends: the window class goes with the library.
    static const HMODULE library = ::LoadLibrary("RICHED20.DLL");
    return library != nullptr;
}

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return AfxInitRichEdit2() &&
           CWnd::Create(RICHEDIT_CLASSA, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const {
    CHARRANGE range = {};
    Send(*this, EM_EXGETSEL, 0, &range);
    nStartChar = range.cpMin;
    nEndChar = range.cpMax;
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar) {
    CHARRANGE range = {nStartChar, nEndChar};
    Send(*this, EM_EXSETSEL, 0, &range);
}

CString CRichEditCtrl::GetSelText() const {
    long start = 0;
    long end = 0;
    GetSel(start, end);
    // Two bytes a character at most, and the end.
    std::vector<char> text(static_cast<std::size_t>(end - start) * 2 + 1);
    Send(*this, EM_GETSELTEXT, 0, text.data());
    return text.data();
}

DWORD CRichEditCtrl::GetSelectionCharFormat(CHARFORMAT2& cf) const {
    cf.cbSize = sizeof(cf);
    return Send<DWORD>(*this, EM_GETCHARFORMAT, SCF_SELECTION, &cf);
}

BOOL CRichEditCtrl::SetAutoURLDetect(BOOL bEnable) {
    return Send<BOOL>(*this, EM_AUTOURLDETECT, bEnable);
}

long CRichEditCtrl::StreamIn(int nFormat, EDITSTREAM& es) {
    return Send<long>(*this, EM_STREAMIN, nFormat, &es);
}
