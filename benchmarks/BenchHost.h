// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// A visible window on top of all others, for the controls that are measured; it goes with its scope.
class BenchHost : public CWnd {
public:
    explicit BenchHost(CSize size, int background = COLOR_BTNFACE);
    ~BenchHost() override;

    /// Repaints the window and all in it, and waits until that is done.
    void RepaintAll();
};

/// What dialogs are written in.
CFont* DialogFont();

/// The full path of a file in the program's folder.
CString BesideBench(LPCTSTR name);
