// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// The path of a file that came with the gallery.
/// @param name  relative to the folder of the program
CString BesideProgram(LPCTSTR name);
