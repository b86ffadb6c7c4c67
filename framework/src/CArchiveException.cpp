// SPDX-License-Identifier: MIT
#include "afx/CArchiveException.h"

#include "MessageBuffer.h"
#include "afx/CDumpContext.h"

IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

const char* describe(int cause) {
    static constexpr const char* texts[] = {
        "no error occurred",
        "an unspecified error occurred",
        "nothing can be written while it is read",
        "it ended too early",
        "nothing can be read while it is written",
        "its format is invalid",
        "it holds an object of an unexpected kind",
        "it was written by another version",
    };
    const bool known = cause >= 0 && cause < static_cast<int>(ARRAYSIZE(texts));
    return texts[known ? cause : CArchiveException::genericException];
}

} // namespace

CArchiveException::CArchiveException(int cause, LPCTSTR lpszArchiveName)
    : CException(TRUE), m_cause(cause), m_strFileName(lpszArchiveName) {}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                                        PUINT pnHelpContext) const {
    const CString name = m_strFileName.IsEmpty() ? CString("The document") : m_strFileName;
    const CString message = name + ": " + describe(m_cause) + ".";
    return afx::CopyMessage(message, lpszError, nMaxError, pnHelpContext);
}

void CArchiveException::Dump(CDumpContext& dc) const {
    CException::Dump(dc);
    dc << "m_cause = " << describe(m_cause) << "\nm_strFileName = " << m_strFileName.GetString()
       << "\n";
}

void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName) {
    throw new CArchiveException(cause, lpszArchiveName);
}
