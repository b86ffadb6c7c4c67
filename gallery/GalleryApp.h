// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <memory>

#include "gallery/tour/PictureTour.h"

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
    std::unique_ptr<PictureTour> m_tour; ///< null: the user drives
    int m_exitCode = 0;
};
