// SPDX-License-Identifier: MIT
/// @file
/// CFile: unbuffered binary input and output on a file of the system.
///
///     CFile file("settings.dat", CFile::modeRead | CFile::shareDenyWrite);
///     BYTE header[16];
///     if (file.Read(header, sizeof(header)) == sizeof(header)) { ... }
#pragma once

#include "afx/CFileException.h"
#include "afx/CObject.h"
#include "afx/CString.h"

/// A file, closed with the object. Functions throw CFileException unless they say otherwise.
class CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum SeekPosition { begin = 0x0, current = 0x1, end = 0x2 };

    static const HANDLE hFileNull;

    CFile();
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CFile() override;

    /// The handle of the open file, otherwise hFileNull.
    HANDLE m_hFile;
    operator HANDLE() const;

    /// Opens a file, closing none before: the object must not have one open.
    /// @param pError receives the reason of a failure; may be null. @return nonzero on success.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    virtual void Close();
    /// Closes without reporting errors; may be called when no file is open.
    virtual void Abort();
    virtual void Flush();

    /// @return the number of bytes read; less than nCount only at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);

    virtual ULONGLONG GetPosition() const;
    /// @param nFrom begin, current or end. @return the new position, which may lie behind the end.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    void SeekToBegin();
    virtual ULONGLONG GetLength() const;
    /// Cuts off or extends the file, and leaves the position at its new end.
    virtual void SetLength(ULONGLONG dwNewLen);

    /// Name with extension, without folders.
    virtual CString GetFileName() const;
    virtual CString GetFilePath() const;
    /// The name as the system displays it, which may leave out the extension.
    virtual CString GetFileTitle() const;
    /// Names the file; nothing is opened or renamed.
    virtual void SetFilePath(LPCTSTR lpszNewName);

    void Dump(CDumpContext& dc) const override;

private:
    [[noreturn]] void throwLastError() const;
    void requireOpen() const;

    CString m_filePath;
    bool m_closeOnDelete = false;
};
