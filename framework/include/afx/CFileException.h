// SPDX-License-Identifier: MIT
/// @file
/// CFileException: an operation on a file failed.
#pragma once

#include "afx/CException.h"
#include "afx/CString.h"

class CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    CFileException(int cause = CFileException::none, LONG lOsError = -1,
                   LPCTSTR lpszArchiveName = nullptr);

    /// One of the causes above.
    int m_cause;
    /// Error code of the operating system, -1 when there is none.
    LONG m_lOsError;
    CString m_strFileName;

    /// The cause that an error code of the operating system stands for.
    static int PASCAL OsErrorToException(LONG lOsError);
    [[noreturn]] static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = nullptr);

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                         PUINT pnHelpContext = nullptr) const override;
    void Dump(CDumpContext& dc) const override;
};

[[noreturn]] void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                               LPCTSTR lpszFileName = nullptr);
