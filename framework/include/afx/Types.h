// SPDX-License-Identifier: MIT
/// @file
/// Basic types and decorations that every framework header uses.
#pragma once

#include "afx/Platform.h"

#define AFX_CDECL __cdecl
#define AFXAPI __stdcall
#define AFX_MSG_CALL
/// Marks a message handler for the reader; it has no effect on the declaration.
#define afx_msg

/// Silences the warning about a parameter that a function does not use.
#define UNUSED_ALWAYS(x) static_cast<void>(x)

struct __POSITION {};
/// Place of an element in a collection; null is the place behind the last one.
typedef __POSITION* POSITION;
/// The place before the first element, where an iteration over a map starts.
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))

class CArchive;
class CDumpContext;
class CException;
class CFile;
class CObject;
class CString;
struct CRuntimeClass;
