// SPDX-License-Identifier: MIT
#pragma once

#include <richedit.h>

#include "afx/CWnd.h"

/// A rich edit control, version 2.0 or later. Character positions count from 0 at the start of the
/// text. Call AfxInitRichEdit2() before a dialog that has one.
class CRichEditCtrl : public CWnd {
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    CRichEditCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void GetSel(long& nStartChar, long& nEndChar) const;
    /// 0 and -1 select everything.
    void SetSel(long nStartChar, long nEndChar);
    CString GetSelText() const;
    /// @return which members of `cf` hold for the whole selection, as CFM_ flags.
    DWORD GetSelectionCharFormat(CHARFORMAT2& cf) const;
    /// Shows addresses in the text as links. @return zero on success.
    BOOL SetAutoURLDetect(BOOL bEnable = TRUE);
    /// Replaces the text, or with SFF_SELECTION the selection, by what the stream's callback gives.
    /// @param nFormat SF_ flags. @return the number of characters read.
    long StreamIn(int nFormat, EDITSTREAM& es);
};
