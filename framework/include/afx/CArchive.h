// SPDX-License-Identifier: MIT
/// @file
/// CArchive: stores values to a file and loads them again.
///
///     CArchive archive(&file, CArchive::store);
///     archive << count << name << place;
///     archive.Close();
#pragma once

#include "afx/CArchiveException.h"
#include "afx/CFile.h"

#include <vector>

class CDocument;

namespace afx {
class ArchiveCount;
}

/// One pass of storing or loading over a file. Values are little-endian.
///
/// Loading trusts nothing it reads: a damaged or hostile file ends in CArchiveException, and no
/// length or count makes it allocate memory that the file cannot fill. Functions throw
/// CArchiveException, and CFileException where the file fails.
class CArchive {
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2 };

    /// @param pFile file to work on, open for the whole life of the archive.
    /// @param nMode store or load, combined with bNoFlushOnDelete where the destructor shall not
    ///              write what is buffered.
    /// @param lpBuf buffer of nBufSize bytes, null to have one made.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = nullptr);
    /// Closes the archive. An error then is lost: call Close() to learn of it.
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const;
    BOOL IsStoring() const;

    /// Any document that the objects shall know of; the archive does not use it.
    CDocument* m_pDocument;

    /// Writes what is buffered and parts from the file.
    void Close();
    /// Storing: writes what is buffered. Loading: moves the file back to the archive's place.
    void Flush();

    /// @return the number of bytes read; less than nMax only at the end of the file.
    UINT Read(void* lpBuf, UINT nMax);
    void Write(const void* lpBuf, INT nMax);

    CArchive& operator<<(BYTE by);
    CArchive& operator<<(WORD w);
    CArchive& operator<<(LONG l);
    CArchive& operator<<(DWORD dw);
    CArchive& operator<<(float f);
    CArchive& operator<<(double d);
    CArchive& operator<<(int i);
    CArchive& operator<<(short w);
    CArchive& operator<<(char ch);
    CArchive& operator<<(wchar_t ch);
    CArchive& operator<<(unsigned u);
    CArchive& operator<<(bool b);
    CArchive& operator<<(ULONGLONG dwdw);
    CArchive& operator<<(LONGLONG dwdw);
    CArchive& operator<<(const CString& str);

    CArchive& operator>>(BYTE& by);
    CArchive& operator>>(WORD& w);
    CArchive& operator>>(LONG& l);
    CArchive& operator>>(DWORD& dw);
    CArchive& operator>>(float& f);
    CArchive& operator>>(double& d);
    CArchive& operator>>(int& i);
    CArchive& operator>>(short& w);
    CArchive& operator>>(char& ch);
    CArchive& operator>>(wchar_t& ch);
    CArchive& operator>>(unsigned& u);
    CArchive& operator>>(bool& b);
    CArchive& operator>>(ULONGLONG& dwdw);
    CArchive& operator>>(LONGLONG& dwdw);
    CArchive& operator>>(CString& str);

private:
    friend class afx::ArchiveCount;

    template <class VALUE>
    CArchive& put(VALUE value);
    template <class VALUE>
    CArchive& get(VALUE& value);
    void requireStoring() const;
    void requireLoading() const;
    [[noreturn]] void fail(int cause) const;
    bool fillBuffer();
    void readExactly(void* data, size_t size);
    ULONGLONG bytesLeft() const;
    ULONGLONG readStringLength(bool& wide);

    CFile* m_file;
    bool m_storing;
    bool m_flushOnDelete;
    std::vector<BYTE> m_ownBuffer;
    BYTE* m_buffer;
    size_t m_bufferSize;
    /// Storing: bytes waiting to be written. Loading: place of the next byte to hand out.
    size_t m_used = 0;
    /// Loading: bytes in the buffer.
    size_t m_filled = 0;
};

CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect);
CArchive& AFXAPI operator<<(CArchive& ar, POINT point);
CArchive& AFXAPI operator<<(CArchive& ar, SIZE size);
CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect);
CArchive& AFXAPI operator>>(CArchive& ar, POINT& point);
CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size);

namespace afx {
/// The number of elements in front of a stored collection.
class ArchiveCount {
public:
    static void write(CArchive& archive, INT_PTR count);
    /// Throws CArchiveException when the rest of the file cannot hold that many elements.
    /// @param minBytes the fewest bytes that one element takes in the file, at least 1.
    static INT_PTR read(CArchive& archive, size_t minBytes = 1);
};
} // namespace afx
