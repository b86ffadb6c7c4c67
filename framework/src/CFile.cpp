// SPDX-License-Identifier: MIT
#include "afx/CFile.h"

#include "afx/CDumpContext.h"
#include "afx/Diagnostics.h"

#include <algorithm>
#include <climits>
#include <commdlg.h>

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace {

DWORD accessOf(UINT openFlags) {
    switch (openFlags & 0x3) {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD shareOf(UINT openFlags) {
    switch (openFlags & 0x70) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD dispositionOf(UINT openFlags) {
    if ((openFlags & CFile::modeCreate) == 0) {
        return OPEN_EXISTING;
    }
    return (openFlags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD cachingOf(UINT openFlags) {
    DWORD flags = FILE_ATTRIBUTE_NORMAL;
    if ((openFlags & CFile::osNoBuffer) != 0) {
        flags |= FILE_FLAG_NO_BUFFERING;
    }
    if ((openFlags & CFile::osWriteThrough) != 0) {
        flags |= FILE_FLAG_WRITE_THROUGH;
    }
    if ((openFlags & CFile::osRandomAccess) != 0) {
        flags |= FILE_FLAG_RANDOM_ACCESS;
    }
    if ((openFlags & CFile::osSequentialScan) != 0) {
        flags |= FILE_FLAG_SEQUENTIAL_SCAN;
    }
    return flags;
}

HANDLE open(const char* path, UINT openFlags) {
    SECURITY_ATTRIBUTES attributes = {sizeof(attributes), nullptr,
                                      (openFlags & CFile::modeNoInherit) == 0};
    return ::CreateFileA(path, accessOf(openFlags), shareOf(openFlags), &attributes,
                         dispositionOf(openFlags), cachingOf(openFlags), nullptr);
}

/// The absolute form of a path; the path itself where it has none.
CString absolutePath(const char* path) {
    CString full;
    const DWORD size = ::GetFullPathNameA(path, 0, nullptr, nullptr);
    if (size == 0 || size > INT_MAX) {
        return CString(path, CString::StringLength(path));
    }
    char* const buffer = full.GetBuffer(static_cast<int>(size));
    const DWORD length = ::GetFullPathNameA(path, size, buffer, nullptr);
    full.ReleaseBuffer(length < size ? static_cast<int>(length) : 0);
    return full;
}

} // namespace

CFile::CFile() : m_hFile(hFileNull) {}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) : m_hFile(hFileNull) {
    CFileException failure;
    if (!CFile::Open(lpszFileName, nOpenFlags, &failure)) {
        AfxThrowFileException(failure.m_cause, failure.m_lOsError, failure.m_strFileName);
    }
}

CFile::~CFile() {
    if (m_closeOnDelete) {
        CFile::Abort();
    }
}

CFile::operator HANDLE() const {
    return m_hFile;
}

void CFile::throwLastError() const {
    const LONG error = static_cast<LONG>(::GetLastError());
    CFileException::ThrowOsError(error, m_filePath);
}

void CFile::requireOpen() const {
    if (m_hFile == hFileNull) {
        AfxThrowFileException(CFileException::invalidFile, ERROR_INVALID_HANDLE, m_filePath);
    }
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    const bool usable = lpszFileName != nullptr && m_hFile == hFileNull;
    if (usable) {
        m_hFile = open(lpszFileName, nOpenFlags);
    }
    if (usable && m_hFile != hFileNull) {
        m_filePath = absolutePath(lpszFileName);
        m_closeOnDelete = true;
        return TRUE;
    }
    const LONG error = usable ? static_cast<LONG>(::GetLastError()) : ERROR_INVALID_PARAMETER;
    if (pError != nullptr) {
        pError->m_lOsError = error;
        pError->m_cause = CFileException::OsErrorToException(error);
        pError->m_strFileName.SetString(lpszFileName);
    }
    return FALSE;
}

void CFile::Close() {
    requireOpen();
    const BOOL closed = ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_closeOnDelete = false;
    if (!closed) {
        throwLastError();
    }
    m_filePath.Empty();
}

void CFile::Abort() {
    if (m_hFile != hFileNull) {
        ::CloseHandle(m_hFile);
        m_hFile = hFileNull;
    }
    m_closeOnDelete = false;
    m_filePath.Empty();
}

void CFile::Flush() {
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile)) {
        throwLastError();
    }
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    requireOpen();
    DWORD done = 0;
    if (nCount > 0 && !::ReadFile(m_hFile, lpBuf, nCount, &done, nullptr)) {
        throwLastError();
    }
    return done;
}

void CFile::Write(const void* lpBuf, UINT nCount) {
    requireOpen();
    DWORD done = 0;
    if (nCount > 0 && !::WriteFile(m_hFile, lpBuf, nCount, &done, nullptr)) {
        throwLastError();
    }
    if (done != nCount) {
        AfxThrowFileException(CFileException::diskFull, -1, m_filePath);
    }
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom) {
    requireOpen();
    if (nFrom > end) {
        AfxThrowInvalidArgException();
    }
    LARGE_INTEGER offset;
    LARGE_INTEGER position;
    offset.QuadPart = lOff;
    if (!::SetFilePointerEx(m_hFile, offset, &position, nFrom)) {
        throwLastError();
    }
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const {
    requireOpen();
    LARGE_INTEGER position;
    if (!::SetFilePointerEx(m_hFile, LARGE_INTEGER{}, &position, FILE_CURRENT)) {
        throwLastError();
    }
    return static_cast<ULONGLONG>(position.QuadPart);
}

void CFile::SeekToBegin() {
    Seek(0, begin);
}

ULONGLONG CFile::GetLength() const {
    requireOpen();
    LARGE_INTEGER length;
    if (!::GetFileSizeEx(m_hFile, &length)) {
        throwLastError();
    }
    return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::SetLength(ULONGLONG dwNewLen) {
    requireOpen();
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
    if (!::SetEndOfFile(m_hFile)) {
        throwLastError();
    }
}

CString CFile::GetFilePath() const {
    return m_filePath;
}

CString CFile::GetFileName() const {
    const int folder = (std::max)(m_filePath.ReverseFind('\\'), m_filePath.ReverseFind('/'));
    const int start = (std::max)(folder, m_filePath.ReverseFind(':')) + 1;
    return m_filePath.Mid(start);
}

CString CFile::GetFileTitle() const {
    char title[_MAX_PATH];
    if (!m_filePath.IsEmpty() && ::GetFileTitleA(m_filePath, title, sizeof(title)) == 0) {
        return CString(title);
    }
    return GetFileName();
}

void CFile::SetFilePath(LPCTSTR lpszNewName) {
    m_filePath = lpszNewName;
}

void CFile::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "with handle " << static_cast<const void*>(m_hFile) << " and name "
       << m_filePath.GetString() << "\n";
}
