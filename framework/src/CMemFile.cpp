// SPDX-License-Identifier: MIT
#include "afx/CMemFile.h"

#include "afx/CDumpContext.h"
#include "afx/Diagnostics.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT nGrowBytes) : m_growBytes(nGrowBytes) {}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) : m_growBytes(nGrowBytes) {
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile() {
    // By now no override of Free is called: a derived class with its own Alloc has to close the file
    // in its own destructor.
    if (m_ownsBlock) {
        CMemFile::Free(m_block);
    }
}

void CMemFile::reset() noexcept {
    m_block = nullptr;
    m_capacity = 0;
    m_length = 0;
    m_position = 0;
    m_ownsBlock = true;
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    if (lpBuffer == nullptr && nBufferSize > 0) {
        AfxThrowInvalidArgException();
    }
    Close();
    m_growBytes = nGrowBytes;
    m_block = lpBuffer;
    m_capacity = nBufferSize;
    m_length = nGrowBytes == 0 ? nBufferSize : 0;
    m_ownsBlock = false;
}

BYTE* CMemFile::Detach() {
    BYTE* const block = m_block;
    reset();
    return block;
}

void CMemFile::Close() {
    if (m_ownsBlock && m_block != nullptr) {
        Free(m_block);
    }
    reset();
}

void CMemFile::Abort() {
    Close();
}

void CMemFile::Flush() {}

BYTE* CMemFile::Alloc(SIZE_T nBytes) {
    return static_cast<BYTE*>(std::malloc(nBytes));
}

BYTE* CMemFile::Realloc(BYTE* lpMem, SIZE_T nBytes) {
    return static_cast<BYTE*>(std::realloc(lpMem, nBytes));
}

BYTE* CMemFile::Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes) {
    return static_cast<BYTE*>(std::memcpy(lpMemTarget, lpMemSource, nBytes));
}

void CMemFile::Free(BYTE* lpMem) {
    std::free(lpMem);
}

void CMemFile::GrowFile(SIZE_T dwNewLen) {
    if (dwNewLen <= m_capacity) {
        return;
    }
    if (m_growBytes == 0 || dwNewLen > SIZE_MAX - m_growBytes) {
        AfxThrowMemoryException();
    }
    const SIZE_T capacity = (dwNewLen + m_growBytes - 1) / m_growBytes * m_growBytes;
    BYTE* const block = m_block == nullptr ? Alloc(capacity) : Realloc(m_block, capacity);
    if (block == nullptr) {
        AfxThrowMemoryException();
    }
    m_block = block;
    m_capacity = capacity;
    // Realloc has taken the place of an attached block, which nobody else can free any more.
    m_ownsBlock = true;
}

/// Makes room for a length and fills what lies between the old and the new end with zeros.
void CMemFile::reserve(SIZE_T length) {
    if (length > m_capacity) {
        GrowFile(length);
        if (length > m_capacity) {
            AfxThrowMemoryException(); // an overriding GrowFile did not do its work
        }
    }
    if (length > m_length) {
        std::memset(m_block + m_length, 0, length - m_length);
        m_length = length;
    }
}

UINT CMemFile::Read(void* lpBuf, UINT nCount) {
    if (nCount == 0 || m_position >= m_length) {
        return 0;
    }
    const SIZE_T count = (std::min)(static_cast<SIZE_T>(nCount), m_length - m_position);
    Memcpy(static_cast<BYTE*>(lpBuf), m_block + m_position, count);
    m_position += count;
    return static_cast<UINT>(count);
}

void CMemFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0) {
        return;
    }
    if (nCount > SIZE_MAX - m_position) {
        AfxThrowMemoryException();
    }
    reserve(m_position + nCount);
    Memcpy(m_block + m_position, static_cast<const BYTE*>(lpBuf), nCount);
    m_position += nCount;
}

ULONGLONG CMemFile::GetPosition() const {
    return m_position;
}

ULONGLONG CMemFile::GetLength() const {
    return m_length;
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom) {
    if (nFrom > end) {
        AfxThrowInvalidArgException();
    }
    const SIZE_T base = nFrom == begin ? 0 : nFrom == current ? m_position : m_length;
    const bool before = lOff < 0 && ULONGLONG{0} - static_cast<ULONGLONG>(lOff) > base;
    const bool behind = lOff > 0 && static_cast<ULONGLONG>(lOff) > INT64_MAX - base;
    if (before || behind) {
        AfxThrowFileException(CFileException::badSeek);
    }
    m_position = base + static_cast<SIZE_T>(lOff);
    return m_position;
}

void CMemFile::SetLength(ULONGLONG dwNewLen) {
    reserve(dwNewLen);
    m_length = dwNewLen;
    m_position = (std::min)(m_position, m_length);
}

void CMemFile::Dump(CDumpContext& dc) const {
    CFile::Dump(dc);
    dc << "with " << static_cast<ULONGLONG>(m_length) << " of "
       << static_cast<ULONGLONG>(m_capacity) << " bytes in use\n";
}
