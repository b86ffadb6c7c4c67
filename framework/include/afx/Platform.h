// SPDX-License-Identifier: MIT
/// @file
/// The one place that includes the Windows headers, with the settings the framework is built for.
#pragma once

#ifdef UNICODE
#error "The framework is a multi-byte (ANSI) build: leave UNICODE undefined and define _MBCS."
#endif

#ifndef _MBCS
#define _MBCS
#endif
#ifndef STRICT
#define STRICT
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WINVER
#define WINVER 0x0601
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT WINVER
#endif
#ifndef _WIN32_IE
#define _WIN32_IE 0x0800
#endif

#include <windows.h>
#include <windowsx.h>
#include <tchar.h>

// The name is a member function of CWnd.
#undef SubclassWindow
