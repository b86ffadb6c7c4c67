// SPDX-License-Identifier: MIT
#pragma once

#include "image/ImageJPG.h"

#include <string>

/// What a JPEG file says beside its picture, as a JSON object with the names of ExifInfo's fields.
/// Numbers that are none are null; `thumbnailData` is where the thumbnail begins in the file, or
/// null.
std::string ExifJson(const CxImageJPG& image);
