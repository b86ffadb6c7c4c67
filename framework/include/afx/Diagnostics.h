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
/// True when a null-terminated string can be read. -1 stands for any length.
BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);
[[noreturn]] void AFXAPI AfxThrowInvalidArgException();

// What assertions name as their file. A source may replace it by a variable of its own.
#define THIS_FILE __FILE__
#define DEBUG_NEW new

#ifndef NDEBUG
#define ASSERT(booleanExpression)                 \
    do {                                          \
        if (!(booleanExpression)) {               \
            AfxAssertFailed(THIS_FILE, __LINE__); \
        }                                         \
    } while (0)
#define VERIFY(booleanExpression) ASSERT(booleanExpression)
#define ASSERT_VALID(pObject) AfxAssertValidObject(pObject, THIS_FILE, __LINE__)
#define DEBUG_ONLY(expression) (expression)
#define TRACE AfxTrace
#else
#define ASSERT(booleanExpression) static_cast<void>(0)
#define VERIFY(booleanExpression) static_cast<void>(booleanExpression)
#define ASSERT_VALID(pObject) static_cast<void>(0)
#define DEBUG_ONLY(expression) static_cast<void>(0)
#define TRACE(...) static_cast<void>(0)
#endif

#define TRACE0(sz) TRACE("%s", sz)
#define TRACE1(sz, p1) TRACE(sz, p1)
#define TRACE2(sz, p1, p2) TRACE(sz, p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(sz, p1, p2, p3)

#define ASSERT_POINTER(p, type) \
    ASSERT((p) != nullptr && AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) \
    ASSERT((p) == nullptr || AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_KINDOF(class_name, object) \
    ASSERT((object) != nullptr && (object)->IsKindOf(RUNTIME_CLASS(class_name)))

/// Asserts, and in every build throws CInvalidArgException, when the expression is false.
#define ENSURE(booleanExpression)                        \
    do {                                                 \
        const bool afxCondition = !!(booleanExpression); \
        ASSERT(afxCondition);                            \
        if (!afxCondition) {                             \
            AfxThrowInvalidArgException();               \
        }                                                \
    } while (0)
#define ENSURE_ARG(booleanExpression) ENSURE(booleanExpression)
#define ENSURE_VALID(pObject)                       \
    do {                                            \
        const CObject* const afxObject = (pObject); \
        ENSURE(afxObject != nullptr);               \
        ASSERT_VALID(afxObject);                    \
    } while (0)
