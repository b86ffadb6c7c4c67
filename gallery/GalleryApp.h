// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// The gallery application.
///
///     gallery                   opens the window
///     gallery --pictures DIR    drives itself with real input and writes pictures of every scene
///     gallery --scheme NAME     opens the window under another scheme of system colours
class CGalleryApp : public CWinApp {
public:
    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    int m_exitCode = 0;
};
