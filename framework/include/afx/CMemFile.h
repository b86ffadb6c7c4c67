// SPDX-License-Identifier: MIT
/// @file
/// CMemFile: a file in memory.
#pragma once

#include "afx/CFile.h"

/// A file whose content is a block of memory. It is open from the start and has no handle.
///
/// Memory comes from malloc, unless Alloc, Realloc and Free are overridden. An attached block is
/// never freed, except by Realloc when the file outgrows it.
class CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)
public:
    /// @param nGrowBytes the block grows in multiples of this size; with 0 it cannot grow.
    explicit CMemFile(UINT nGrowBytes = 1024);
    /// Works on the given block, see Attach().
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    /// Replaces the content by a block of the caller.
    /// @param nGrowBytes with 0 the block is the content of the file, which cannot grow; otherwise
    ///                   the file is empty, and the block must come from malloc.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Hands out the block, which the caller frees, and leaves the file empty.
    BYTE* Detach();

    void Close() override;
    void Abort() override;
    void Flush() override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    void Dump(CDumpContext& dc) const override;

protected:
    virtual BYTE* Alloc(SIZE_T nBytes);
    virtual BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes);
    virtual BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes);
    virtual void Free(BYTE* lpMem);
    virtual void GrowFile(SIZE_T dwNewLen);

private:
    void reset() noexcept;
    void reserve(SIZE_T length);

    UINT m_growBytes;
    BYTE* m_block = nullptr;
    SIZE_T m_capacity = 0;
    SIZE_T m_length = 0;
    SIZE_T m_position = 0;
    bool m_ownsBlock = true;
};
