// SPDX-License-Identifier: MIT
#include "afx/CDumpContext.h"

#include "afx/CFile.h"
#include "afx/CObject.h"
#include "afx/CString.h"

CDumpContext afxDump;

CDumpContext::CDumpContext(CFile* pFile) : m_file(pFile) {}

CDumpContext& CDumpContext::operator<<(LPCSTR lpsz) {
    const char* const text = lpsz != nullptr ? lpsz : "(null)";
    if (m_file != nullptr) {
        m_file->Write(text, static_cast<UINT>(CString::StringLength(text)));
    } else {
        ::OutputDebugStringA(text);
    }
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCWSTR lpsz) {
    return lpsz != nullptr ? *this << CString(lpsz).GetString() : *this << "(null)";
}

CDumpContext& CDumpContext::operator<<(const CObject* pOb) {
    return pOb != nullptr ? *this << *pOb : *this << "(null)";
}

CDumpContext& CDumpContext::operator<<(const CObject& ob) {
    ob.Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const void* lp) {
    CString text;
    text.Format("$%p", lp);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::operator<<(BYTE by) {
    return *this << static_cast<ULONGLONG>(by);
}

CDumpContext& CDumpContext::operator<<(WORD w) {
    return *this << static_cast<ULONGLONG>(w);
}

CDumpContext& CDumpContext::operator<<(UINT u) {
    return *this << static_cast<ULONGLONG>(u);
}

CDumpContext& CDumpContext::operator<<(DWORD dw) {
    return *this << static_cast<ULONGLONG>(dw);
}

CDumpContext& CDumpContext::operator<<(LONG l) {
    return *this << static_cast<LONGLONG>(l);
}

CDumpContext& CDumpContext::operator<<(int n) {
    return *this << static_cast<LONGLONG>(n);
}

CDumpContext& CDumpContext::operator<<(float f) {
    return *this << static_cast<double>(f);
}

CDumpContext& CDumpContext::operator<<(double d) {
    CString text;
    text.Format("%g", d);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::operator<<(LONGLONG n) {
    CString text;
    text.Format("%lld", n);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::operator<<(ULONGLONG n) {
    CString text;
    text.Format("%llu", n);
    return *this << text.GetString();
}

int CDumpContext::GetDepth() const {
    return m_depth;
}

void CDumpContext::SetDepth(int nNewDepth) {
    m_depth = nNewDepth;
}
