// SPDX-License-Identifier: MIT
/// @file
/// CDumpContext: readable text about the state of objects.
#pragma once

#include "afx/Types.h"

/// A text stream that CObject::Dump writes to.
class CDumpContext {
public:
    /// @param pFile receives the text and stays the caller's; null stands for the debugger.
    explicit CDumpContext(CFile* pFile = nullptr);
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    CDumpContext& operator<<(const CObject* pOb);
    CDumpContext& operator<<(const CObject& ob);
    CDumpContext& operator<<(LPCSTR lpsz);
    CDumpContext& operator<<(LPCWSTR lpsz);
    CDumpContext& operator<<(const void* lp);
    CDumpContext& operator<<(BYTE by);
    CDumpContext& operator<<(WORD w);
    CDumpContext& operator<<(UINT u);
    CDumpContext& operator<<(LONG l);
    CDumpContext& operator<<(DWORD dw);
    CDumpContext& operator<<(int n);
    CDumpContext& operator<<(float f);
    CDumpContext& operator<<(double d);
    CDumpContext& operator<<(LONGLONG n);
    CDumpContext& operator<<(ULONGLONG n);

    /// How deep collections dump: 0 only themselves, above 0 their elements too.
    int GetDepth() const;
    void SetDepth(int nNewDepth);

private:
    CFile* m_file;
    int m_depth = 0;
};

/// Dumps to the debugger.
extern CDumpContext afxDump;
