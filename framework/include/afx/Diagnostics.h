// SPDX-License-Identifier: MIT
/// @file
/// Assertions and trace output. They are active unless NDEBUG is defined.
#pragma once

#include "afx/Types.h"

/// Writes the failed assertion to the standard error stream and to the debugger, then aborts.
[[noreturn]] void AFXAPI AfxAssertFailed(LPCSTR lpszFileName, int nLine) noexcept;
/// Formatted output to the debugger.
void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...);
[[noreturn]] void AFXAPI AfxThrowInvalidArgException();

#ifndef NDEBUG
#define ASSERT(booleanExpression)                \
    do {                                         \
        if (!(booleanExpression)) {              \
            AfxAssertFailed(__FILE__, __LINE__); \
        }                                        \
    } while (0)
#define TRACE AfxTrace
#else
#define ASSERT(booleanExpression) static_cast<void>(0)
#define TRACE(...) static_cast<void>(0)
#endif

/// Asserts, and in every build throws CInvalidArgException, when the expression is false.
#define ENSURE(booleanExpression)                        \
    do {                                                 \
        const bool afxCondition = !!(booleanExpression); \
        ASSERT(afxCondition);                            \
        if (!afxCondition) {                             \
            AfxThrowInvalidArgException();               \
        }                                                \
    } while (0)
