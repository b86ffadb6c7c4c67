// SPDX-License-Identifier: MIT
/// @file
/// Assertions and trace output. They are active unless NDEBUG is defined.
#pragma once

#include "afx/Types.h"

/// Writes the failed assertion to the standard error stream and to the debugger, then aborts.
[[noreturn]] void AFXAPI AfxAssertFailed(LPCSTR lpszFileName, int nLine) noexcept;
/// Asserts that the pointer is sound and lets the object check itself.
void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);
/// Formatted output to the debugger.
void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...);
/// True when the whole range can be read, and written to if asked for.
BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);
[[noreturn]] void AFXAPI AfxThrowInvalidArgException();

#ifndef NDEBUG
#define ASSERT(booleanExpression)                \
    do {                                         \
        if (!(booleanExpression)) {              \
            AfxAssertFailed(__FILE__, __LINE__); \
        }                                        \
    } while (0)
#define VERIFY(booleanExpression) ASSERT(booleanExpression)
#define ASSERT_VALID(pObject) AfxAssertValidObject(pObject, __FILE__, __LINE__)
#define DEBUG_ONLY(expression) (expression)
#define TRACE AfxTrace
#else
#define ASSERT(booleanExpression) static_cast<void>(0)
#define VERIFY(booleanExpression) static_cast<void>(booleanExpression)
#define ASSERT_VALID(pObject) static_cast<void>(0)
#define DEBUG_ONLY(expression) static_cast<void>(0)
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
