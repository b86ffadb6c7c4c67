// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace automation {

/// A picture in memory: rows from the top, each pixel a COLORREF (0x00BBGGRR).
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<COLORREF> pixels; ///< width * height values, no padding between rows

    COLORREF At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
};

bool operator==(const Picture& left, const Picture& right);
bool operator!=(const Picture& left, const Picture& right);

/// What the screen shows in `rect` (screen coordinates); empty when it cannot be read.
Picture CaptureScreen(const RECT& rect);

/// What the screen shows where `window` is, its frame included.
Picture CaptureWindow(HWND window);

/// The pixels of a bitmap that is not selected anywhere; empty when they cannot be read.
Picture ReadBitmap(HBITMAP bitmap);

/// Writes a picture as an 8-bit RGB PNG file.
/// @return false when the picture is empty or the file cannot be written
bool WritePng(const Picture& picture, const std::string& path);

} // namespace automation
