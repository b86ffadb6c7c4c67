// SPDX-License-Identifier: MIT
#include "gallery/GalleryApp.h"

namespace {

CGalleryApp theApp;

} // namespace
