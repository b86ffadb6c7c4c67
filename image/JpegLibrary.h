// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Internal: the JPEG library's headers, which neither include what they need nor get on with
/// <windows.h> when they come before it.

#include "image/DibTypes.h"

#include <cstddef>
#include <cstdio>

#include <jpeglib.h>

#include <jerror.h>

static_assert(JPEG_LIB_VERSION == 62, "the library with the interface of release 6b is meant");
#ifndef JCS_EXTENSIONS
#error "libjpeg-turbo is needed: it decodes to blue, green, red"
#endif
