// SPDX-License-Identifier: MIT
/// @file
/// CArchiveException: objects could not be stored or loaded.
#pragma once

#include "afx/CException.h"
#include "afx/CString.h"

class CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum { none, genericException, readOnly, endOfFile, writeOnly, badIndex, badClass, badSchema };

    CArchiveException(int cause = CArchiveException::none, LPCTSTR lpszArchiveName = nullptr);

    /// One of the causes above.
    int m_cause;
    CString m_strFileName;

    void Dump(CDumpContext& dc) const override;

private:
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                         PUINT pnHelpContext = nullptr) const override;
};

[[noreturn]] void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName = nullptr);
