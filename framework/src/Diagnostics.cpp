// SPDX-License-Identifier: MIT
#include "afx/Diagnostics.h"

#include <cstdarg>
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
