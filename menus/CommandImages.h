// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>
#include <afxext.h>

#include "menus/ImgDesc.h"

namespace tint {

/// Whether a window is a toolbar, by its class.
bool IsToolbar(HWND window);

/// The images of commands, as the toolbars of a frame window have them.
class CommandImages {
public:
    /// None at all.
    CommandImages() = default;

    /// Those of the toolbars of `window` when it is a frame window with control bars, else of the frame
    /// window around it (for what is inside an MDI child: of the MDI frame window).
    explicit CommandImages(CWnd& window);

    struct Found {
        CImgDesc image;         ///< none: no toolbar has a button of that command
        HWND toolbar = nullptr; ///< whose image it is
    };

    /// The image that the first toolbar with a button of that command has for it.
    Found Find(UINT command) const;

private:
    const CPtrList* m_bars = nullptr; ///< CControlBar objects; null: none
};

} // namespace tint
