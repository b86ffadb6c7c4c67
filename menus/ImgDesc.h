// SPDX-License-Identifier: MIT
#pragma once

#include <afxcmn.h>

/// The image of a menu or toolbar command.  Copied by value; the image list is not owned.
struct CImgDesc {
    HIMAGELIST imageList = nullptr; ///< null: no image
    int index = -1;                 ///< position in the list; -1: no image

    bool IsImage() const { return imageList != nullptr && index != -1; }
};
