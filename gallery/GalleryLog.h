// SPDX-License-Identifier: MIT
#pragma once

#include "diag/CadDebugLog.h"

/// The gallery's trace, for the window's thread; `gallery.ini` beside the program switches it on.
CCadDebugLog& GalleryLog();
