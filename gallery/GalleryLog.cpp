// SPDX-License-Identifier: MIT
#include "gallery/GalleryLog.h"

CCadDebugLog& GalleryLog() {
    static CCadDebugLog log;
    return log;
}
