// SPDX-License-Identifier: MIT
#include "afx/Diagnostics.h"

#include "afx/CObject.h"

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

void AFXAPI AfxAssertFailed(LPCSTR lpszFileName, int nLine) noexcept {
    char message[512];
    std::snprintf(message, sizeof(message), "assertion failed in file %s in line %d\n",
                  lpszFileName, nLine);
    ::OutputDebugStringA(message);
    std::fputs(message, stderr);
    std::fflush(stderr);
    std::abort();
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine) {
    if (!AfxIsValidAddress(pOb, sizeof(CObject), FALSE)) {
        AfxAssertFailed(lpszFileName, nLine);
    }
    pOb->AssertValid();
}

void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...) {
    char message[1024];
    va_list args;
    va_start(args, lpszFormat);
    const int length = std::vsnprintf(message, sizeof(message), lpszFormat, args);
    va_end(args);
    if (length >= 0) {
        ::OutputDebugStringA(message);
    }
}

namespace {

bool allows(DWORD protection, bool writing) {
    if ((protection & (PAGE_GUARD | PAGE_NOACCESS)) != 0) {
        return false;
    }
    constexpr DWORD writable =
        PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    constexpr DWORD readable = writable | PAGE_READONLY | PAGE_EXECUTE_READ;
    return (protection & (writing ? writable : readable)) != 0;
}

/// The end of the region of pages around an address, null when it cannot be used.
const BYTE* endOfUsableRegion(const void* address, bool writing) {
    MEMORY_BASIC_INFORMATION info;
    if (::VirtualQuery(address, &info, sizeof(info)) == 0 || info.State != MEM_COMMIT ||
        !allows(info.Protect, writing)) {
        return nullptr;
    }
    return static_cast<const BYTE*>(info.BaseAddress) + info.RegionSize;
}

} // namespace

BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite) {
    UINT_PTR address = reinterpret_cast<UINT_PTR>(lp);
    if (lp == nullptr || nBytes > UINTPTR_MAX - address) {
        return FALSE;
    }
    const UINT_PTR end = address + (nBytes == 0 ? 1 : nBytes);
    while (address < end) {
        const BYTE* const next =
            endOfUsableRegion(reinterpret_cast<const void*>(address), bReadWrite != FALSE);
        if (next == nullptr) {
            return FALSE;
        }
        address = reinterpret_cast<UINT_PTR>(next);
    }
    return TRUE;
}
