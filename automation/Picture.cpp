// SPDX-License-Identifier: MIT
#include "automation/Picture.h"

#include "draw/DrawUtil.h"

#include <png.h>

namespace automation {
namespace {

/// GetDIBits delivers 0x00RRGGBB; a COLORREF has red and blue the other way round.
COLORREF SwapRedAndBlue(DWORD pixel) {
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

} // namespace

bool operator==(const Picture& left, const Picture& right) {
    return left.width == right.width && left.height == right.height && left.pixels == right.pixels;
}

bool operator!=(const Picture& left, const Picture& right) {
    return !(left == right);
}

Picture CaptureScreen(const RECT& rect) {
    const HBITMAP bitmap = CopyScreenToBitmap(rect);
    const Picture picture = ReadBitmap(bitmap);
    ::DeleteObject(bitmap);
    return picture;
}

Picture CaptureWindow(HWND window) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    return CaptureScreen(rect);
}

Picture ReadBitmap(HBITMAP bitmap) {
    BITMAP size = {};
    if (::GetObjectA(bitmap, sizeof size, &size) == 0)
        return {};

    Picture picture;
    picture.width = size.bmWidth;
    picture.height = size.bmHeight;
    picture.pixels.resize(static_cast<std::size_t>(size.bmWidth) * size.bmHeight);

    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.bmWidth;
    info.bmiHeader.biHeight = -size.bmHeight; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;

    const HDC screen = ::GetDC(nullptr);
    const int rows =
        ::GetDIBits(screen, bitmap, 0, size.bmHeight, picture.pixels.data(), &info, DIB_RGB_COLORS);
    ::ReleaseDC(nullptr, screen);
    if (rows != size.bmHeight)
        return {};
    for (COLORREF& pixel : picture.pixels)
        pixel = SwapRedAndBlue(pixel);
    return picture;
}

bool WritePng(const Picture& picture, const std::string& path) {
    if (picture.pixels.empty())
        return false;
    std::vector<png_byte> rows;
    rows.reserve(picture.pixels.size() * 3);
    for (const COLORREF pixel : picture.pixels)
        rows.insert(rows.end(), {GetRValue(pixel), GetGValue(pixel), GetBValue(pixel)});

    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&image, path.c_str(), 0, rows.data(), 0, nullptr) != 0;
}

} // namespace automation
