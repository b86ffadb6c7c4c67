// SPDX-License-Identifier: MIT
#include "afx/CFileException.h"

#include "MessageBuffer.h"
#include "afx/CDumpContext.h"

IMPLEMENT_DYNAMIC(CFileException, CException)

namespace {

struct CauseOfError {
    LONG error;
    int cause;
};

constexpr CauseOfError causesOfOsErrors[] = {
    {NO_ERROR, CFileException::none},
    {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
    {ERROR_PATH_NOT_FOUND, CFileException::badPath},
    {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
    {ERROR_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_INVALID_HANDLE, CFileException::invalidFile},
    {ERROR_INVALID_DRIVE, CFileException::badPath},
    {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
    {ERROR_WRITE_PROTECT, CFileException::accessDenied},
    {ERROR_BAD_UNIT, CFileException::hardIO},
    {ERROR_NOT_READY, CFileException::hardIO},
    {ERROR_CRC, CFileException::hardIO},
    {ERROR_SEEK, CFileException::badSeek},
    {ERROR_SECTOR_NOT_FOUND, CFileException::hardIO},
    {ERROR_WRITE_FAULT, CFileException::hardIO},
    {ERROR_READ_FAULT, CFileException::hardIO},
    {ERROR_GEN_FAILURE, CFileException::hardIO},
    {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
    {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
    {ERROR_HANDLE_EOF, CFileException::endOfFile},
    {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
    {ERROR_BAD_NETPATH, CFileException::badPath},
    {ERROR_FILE_EXISTS, CFileException::accessDenied},
    {ERROR_CANNOT_MAKE, CFileException::directoryFull},
    {ERROR_DISK_FULL, CFileException::diskFull},
    {ERROR_INVALID_NAME, CFileException::badPath},
    {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
    {ERROR_SEEK_ON_DEVICE, CFileException::badSeek},
    {ERROR_BAD_PATHNAME, CFileException::badPath},
    {ERROR_NOT_LOCKED, CFileException::lockViolation},
    {ERROR_ALREADY_EXISTS, CFileException::accessDenied},
    {ERROR_FILENAME_EXCED_RANGE, CFileException::badPath},
    {ERROR_DIRECTORY, CFileException::badPath},
};

template <size_t SIZE>
int causeOf(const CauseOfError (&table)[SIZE], LONG error) {
    for (const CauseOfError& entry : table) {
        if (entry.error == error) {
            return entry.cause;
        }
    }
    return CFileException::genericException;
}

const char* describe(int cause) {
    static constexpr const char* texts[] = {
        "no error occurred",
        "an unspecified error occurred",
        "the file could not be found",
        "the path is invalid",
        "too many files are open",
        "access was denied",
        "the file handle is invalid",
        "the current folder cannot be removed",
        "the folder is full",
        "the file position could not be set",
        "the hardware reported an error",
        "the file is in use",
        "a part of the file is locked",
        "the disk is full",
        "the file ended too early",
    };
    const bool known = cause >= 0 && cause < static_cast<int>(ARRAYSIZE(texts));
    return texts[known ? cause : CFileException::genericException];
}

} // namespace

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : CException(TRUE), m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName) {}

int PASCAL CFileException::OsErrorToException(LONG lOsError) {
    return causeOf(causesOfOsErrors, lOsError);
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName) {
    AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    const CString name = m_strFileName.IsEmpty() ? CString("A file") : m_strFileName;
    const CString message = name + ": " + describe(m_cause) + ".";
    return afx::CopyMessage(message, lpszError, nMaxError, pnHelpContext);
}

void CFileException::Dump(CDumpContext& dc) const {
    CException::Dump(dc);
    dc << "m_cause = " << describe(m_cause) << "\nm_lOsError = " << m_lOsError
       << "\nm_strFileName = " << m_strFileName.GetString() << "\n";
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName) {
    throw new CFileException(cause, lOsError, lpszFileName);
}
