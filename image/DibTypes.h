// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The Windows bitmap structures the image layer is built on: BITMAPINFOHEADER, RGBQUAD and the
/// compression codes.
///
/// Where there is a <windows.h> they come from it (an MFC program includes <afxwin.h> first);
/// elsewhere the same layouts are defined here, so that an image's block has the same bytes
/// everywhere.

#include <cstdint>

#ifdef _WIN32

#include <windows.h>

#else

/// Information header of a device-independent bitmap, 40 bytes, little-endian on disk.
struct BITMAPINFOHEADER {
    uint32_t biSize;         ///< size of this structure in bytes
    int32_t biWidth;         ///< pixels
    int32_t biHeight;        ///< pixels; negative in a file means rows stored top-down
    uint16_t biPlanes;       ///< always 1
    uint16_t biBitCount;     ///< bits per pixel
    uint32_t biCompression;  ///< a BI_ code
    uint32_t biSizeImage;    ///< bytes of pixel data; 0 allowed when not compressed
    int32_t biXPelsPerMeter; ///< horizontal resolution, 0 when not stated
    int32_t biYPelsPerMeter; ///< vertical resolution, 0 when not stated
    uint32_t biClrUsed;      ///< palette entries; 0 means as many as the depth can address
    uint32_t biClrImportant; ///< palette entries that matter; 0 means all
};

/// One palette entry.
struct RGBQUAD {
    uint8_t rgbBlue;
    uint8_t rgbGreen;
    uint8_t rgbRed;
    uint8_t rgbReserved; ///< 0
};

constexpr uint32_t BI_RGB = 0;
constexpr uint32_t BI_RLE8 = 1;
constexpr uint32_t BI_RLE4 = 2;
constexpr uint32_t BI_BITFIELDS = 3;
constexpr uint32_t BI_JPEG = 4;
constexpr uint32_t BI_PNG = 5;

#endif

static_assert(sizeof(BITMAPINFOHEADER) == 40, "an image's block starts with exactly 40 bytes");
static_assert(sizeof(RGBQUAD) == 4, "palette entries are packed");
