// SPDX-License-Identifier: MIT
// The buffer and text; values stand in CArchiveValues.cpp.
#include "afx/CArchive.h"

#include "afx/Diagnostics.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace {

constexpr size_t smallestBuffer = 128;

} // namespace

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_pDocument(nullptr), m_file(pFile), m_storing((nMode & load) == 0),
      m_flushOnDelete((nMode & bNoFlushOnDelete) == 0), m_buffer(static_cast<BYTE*>(lpBuf)),
      m_bufferSize(static_cast<size_t>((std::max)(nBufSize, 0))) {
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
