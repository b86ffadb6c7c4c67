// SPDX-License-Identifier: MIT
// Values, text and the buffer; objects and classes stand in CArchiveObjects.cpp.
#include "afx/CArchive.h"

#include "afx/Diagnostics.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <string>

namespace {

constexpr size_t smallestBuffer = 128;

// Marks in front of a length that does not fit the field before it.
constexpr BYTE longerThanByte = 0xFF;
constexpr WORD longerThanWord = 0xFFFF;
constexpr WORD wideCharacters = 0xFFFE;
constexpr DWORD longerThanDword = 0xFFFFFFFF;

} // namespace

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_pDocument(nullptr), m_file(pFile), m_storing((nMode & load) == 0),
      m_flushOnDelete((nMode & bNoFlushOnDelete) == 0), m_buffer(static_cast<BYTE*>(lpBuf)),
      m_bufferSize(static_cast<size_t>((std::max)(nBufSize, 0))),
      m_objectSchema(static_cast<UINT>(-1)) {
    if (pFile == nullptr) {
        AfxThrowInvalidArgException();
    }
    if (m_buffer == nullptr || m_bufferSize == 0) {
        m_bufferSize = (std::max)(m_bufferSize, smallestBuffer);
        m_ownBuffer.resize(m_bufferSize);
        m_buffer = m_ownBuffer.data();
    }
}

CArchive::~CArchive() {
    if (m_file == nullptr || !m_flushOnDelete) {
        return;
    }
    try {
        Close();
    } catch (CException* e) {
        TRACE("The data of an archive could not be written.\n");
        e->Delete();
    }
}

BOOL CArchive::IsLoading() const {
    return !m_storing;
}

BOOL CArchive::IsStoring() const {
    return m_storing;
}

BOOL CArchive::IsBufferEmpty() const {
    return m_storing ? m_used == 0 : m_used == m_filled;
}

CFile* CArchive::GetFile() const {
    return m_file;
}

void CArchive::fail(int cause) const {
    AfxThrowArchiveException(cause, m_file != nullptr ? m_file->GetFilePath() : CString());
}

void CArchive::requireStoring() const {
    if (m_file == nullptr) {
        fail(CArchiveException::genericException);
    }
    if (!m_storing) {
        fail(CArchiveException::readOnly);
    }
}

void CArchive::requireLoading() const {
    if (m_file == nullptr) {
        fail(CArchiveException::genericException);
    }
    if (m_storing) {
        fail(CArchiveException::writeOnly);
    }
}

void CArchive::Flush() {
    if (m_file == nullptr) {
        fail(CArchiveException::genericException);
    }
    if (m_storing) {
        // Forgotten first, so that a failure is not repeated by the destructor.
        const size_t waiting = m_used;
        m_used = 0;
        m_file->Write(m_buffer, static_cast<UINT>(waiting));
    } else if (m_used < m_filled) {
        const size_t unread = m_filled - m_used;
        m_used = m_filled = 0;
        m_file->Seek(-static_cast<LONGLONG>(unread), CFile::current);
    }
}

void CArchive::Close() {
    if (m_file == nullptr) {
        return;
    }
    Flush();
    m_file = nullptr;
}

void CArchive::Abort() {
    m_file = nullptr;
    m_used = m_filled = 0;
}

void CArchive::Write(const void* lpBuf, INT nMax) {
    requireStoring();
    if (nMax < 0) {
        AfxThrowInvalidArgException();
    }
    const size_t size = static_cast<size_t>(nMax);
    if (size > m_bufferSize - m_used) {
        Flush();
    }
    if (size > m_bufferSize) {
        m_file->Write(lpBuf, static_cast<UINT>(size));
    } else if (size > 0) {
        std::memcpy(m_buffer + m_used, lpBuf, size);
        m_used += size;
    }
}

bool CArchive::fillBuffer() {
    m_used = 0;
    m_filled = 0; // should reading fail, nothing is left to hand out
    m_filled = (std::min)(
        static_cast<size_t>(m_file->Read(m_buffer, static_cast<UINT>(m_bufferSize))), m_bufferSize);
    return m_filled > 0;
}

UINT CArchive::Read(void* lpBuf, UINT nMax) {
    requireLoading();
    BYTE* const target = static_cast<BYTE*>(lpBuf);
    UINT done = 0;
    while (done < nMax) {
        if (m_used == m_filled && !fillBuffer()) {
            break;
        }
        const size_t count = (std::min)(static_cast<size_t>(nMax - done), m_filled - m_used);
        std::memcpy(target + done, m_buffer + m_used, count);
        m_used += count;
        done += static_cast<UINT>(count);
    }
    return done;
}

void CArchive::readExactly(void* data, size_t size) {
    if (size > UINT_MAX || Read(data, static_cast<UINT>(size)) != size) {
        fail(CArchiveException::endOfFile);
    }
}

ULONGLONG CArchive::bytesLeft() const {
    const ULONGLONG length = m_file->GetLength();
    const ULONGLONG position = m_file->GetPosition();
    return (m_filled - m_used) + (length > position ? length - position : 0);
}

// Text

void CArchive::WriteString(LPCTSTR lpsz) {
    Write(lpsz, CString::StringLength(lpsz));
}

LPTSTR CArchive::ReadString(LPTSTR lpsz, UINT nMax) {
    requireLoading();
    if (lpsz == nullptr || nMax == 0) {
        AfxThrowInvalidArgException();
    }
    UINT length = 0;
    bool ended = false;
    bool complete = false;
    while (!complete && !ended && length < nMax - 1) {
        char ch = '\0';
        ended = Read(&ch, 1) == 0;
        complete = ch == '\n';
        if (!ended && !complete) {
            lpsz[length++] = ch;
        }
    }
    if (complete && length > 0 && lpsz[length - 1] == '\r') {
        --length;
    }
    lpsz[length] = '\0';
    return ended && length == 0 ? nullptr : lpsz;
}

BOOL CArchive::ReadString(CString& rString) {
    requireLoading();
    std::string line;
    bool complete = false;
    char ch = '\0';
    while (!complete && Read(&ch, 1) == 1) {
        complete = ch == '\n';
        if (!complete) {
            line.push_back(ch);
        }
    }
    if (complete && !line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    if (line.size() > INT_MAX) {
        fail(CArchiveException::badIndex);
    }
    rString = CString(line.data(), static_cast<int>(line.size()));
    return complete || !line.empty();
}

CArchive& CArchive::operator<<(const CString& str) {
    const int length = str.GetLength();
    if (length < longerThanByte) {
        *this << static_cast<BYTE>(length);
    } else if (length < wideCharacters) {
        *this << longerThanByte << static_cast<WORD>(length);
    } else {
        *this << longerThanByte << longerThanWord << static_cast<DWORD>(length);
    }
    Write(str.GetString(), length);
    return *this;
}

/// @param wide  set when the characters are UTF-16, as a Unicode build writes them.
ULONGLONG CArchive::readStringLength(bool& wide) {
    wide = false;
    for (;;) {
        BYTE byteLength;
        *this >> byteLength;
        if (byteLength != longerThanByte) {
            return byteLength;
        }
        WORD wordLength;
        *this >> wordLength;
        if (wordLength == wideCharacters && !wide) {
            wide = true;
            continue;
        }
        if (wordLength == wideCharacters) {
            fail(CArchiveException::badIndex);
        }
        if (wordLength != longerThanWord) {
            return wordLength;
        }
        DWORD dwordLength;
        *this >> dwordLength;
        if (dwordLength != longerThanDword) {
            return dwordLength;
        }
        ULONGLONG length;
        *this >> length;
        return length;
    }
}

CArchive& CArchive::operator>>(CString& str) {
    bool wide = false;
    const ULONGLONG length = readStringLength(wide);
    if (length > bytesLeft() / (wide ? sizeof(wchar_t) : 1)) {
        fail(CArchiveException::endOfFile);
    }
    if (length > INT_MAX) {
        fail(CArchiveException::badIndex);
    }
    if (wide) {
        std::wstring text(static_cast<size_t>(length), L'\0');
        readExactly(text.data(), text.size() * sizeof(wchar_t));
        str = CString(text.data(), static_cast<int>(length));
    } else {
        CString text;
        readExactly(text.GetBufferSetLength(static_cast<int>(length)), static_cast<size_t>(length));
        str = text;
    }
    return *this;
}

// Values

template <class VALUE>
CArchive& CArchive::put(VALUE value) {
    Write(&value, static_cast<INT>(sizeof(value)));
    return *this;
}

template <class VALUE>
CArchive& CArchive::get(VALUE& value) {
    VALUE read;
    readExactly(&read, sizeof(read));
    value = read;
    return *this;
}

CArchive& CArchive::operator<<(BYTE by) {
    return put(by);
}

CArchive& CArchive::operator<<(WORD w) {
    return put(w);
}

CArchive& CArchive::operator<<(LONG l) {
    return put(l);
}

CArchive& CArchive::operator<<(DWORD dw) {
    return put(dw);
}

CArchive& CArchive::operator<<(float f) {
    return put(f);
}

CArchive& CArchive::operator<<(double d) {
    return put(d);
}

CArchive& CArchive::operator<<(int i) {
    return put(i);
}

CArchive& CArchive::operator<<(short w) {
    return put(w);
}

CArchive& CArchive::operator<<(char ch) {
    return put(ch);
}

CArchive& CArchive::operator<<(wchar_t ch) {
    return put(ch);
}

CArchive& CArchive::operator<<(unsigned u) {
    return put(u);
}

CArchive& CArchive::operator<<(bool b) {
    return put(static_cast<BYTE>(b));
}

CArchive& CArchive::operator<<(ULONGLONG dwdw) {
    return put(dwdw);
}

CArchive& CArchive::operator<<(LONGLONG dwdw) {
    return put(dwdw);
}

CArchive& CArchive::operator>>(BYTE& by) {
    return get(by);
}

CArchive& CArchive::operator>>(WORD& w) {
    return get(w);
}

CArchive& CArchive::operator>>(LONG& l) {
    return get(l);
}

CArchive& CArchive::operator>>(DWORD& dw) {
    return get(dw);
}

CArchive& CArchive::operator>>(float& f) {
    return get(f);
}

CArchive& CArchive::operator>>(double& d) {
    return get(d);
}

CArchive& CArchive::operator>>(int& i) {
    return get(i);
}

CArchive& CArchive::operator>>(short& w) {
    return get(w);
}

CArchive& CArchive::operator>>(char& ch) {
    return get(ch);
}

CArchive& CArchive::operator>>(wchar_t& ch) {
    return get(ch);
}

CArchive& CArchive::operator>>(unsigned& u) {
    return get(u);
}

CArchive& CArchive::operator>>(bool& b) {
    BYTE value; // any byte may stand in the file, but not in a bool
    get(value);
    b = value != 0;
    return *this;
}

CArchive& CArchive::operator>>(ULONGLONG& dwdw) {
    return get(dwdw);
}

CArchive& CArchive::operator>>(LONGLONG& dwdw) {
    return get(dwdw);
}

CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect) {
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}

CArchive& AFXAPI operator<<(CArchive& ar, POINT point) {
    return ar << point.x << point.y;
}

CArchive& AFXAPI operator<<(CArchive& ar, SIZE size) {
    return ar << size.cx << size.cy;
}

CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect) {
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}

CArchive& AFXAPI operator>>(CArchive& ar, POINT& point) {
    return ar >> point.x >> point.y;
}

CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size) {
    return ar >> size.cx >> size.cy;
}

namespace afx {

void ArchiveCount::write(CArchive& archive, INT_PTR count) {
    if (count < longerThanWord) {
        archive << static_cast<WORD>(count);
    } else if (count < static_cast<INT_PTR>(longerThanDword)) {
        archive << longerThanWord << static_cast<DWORD>(count);
    } else {
        archive << longerThanWord << longerThanDword << static_cast<ULONGLONG>(count);
    }
}

INT_PTR ArchiveCount::read(CArchive& archive, size_t minBytes) {
    WORD wordCount;
    archive >> wordCount;
    ULONGLONG count = wordCount;
    if (wordCount == longerThanWord) {
        DWORD dwordCount;
        archive >> dwordCount;
        count = dwordCount;
        if (dwordCount == longerThanDword) {
            archive >> count;
        }
    }
    if (count > archive.bytesLeft() / minBytes) {
        archive.fail(CArchiveException::endOfFile);
    }
    return static_cast<INT_PTR>(count);
}

} // namespace afx
