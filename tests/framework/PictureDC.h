// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CBitmap.h"
#include "afx/CDC.h"

#include <gtest/gtest.h>

#include <string>

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// A memory context that draws on a picture of 24-bit colours (no fourth byte to compare), white at
/// first.
class PictureDC : public CDC {
public:
    PictureDC(int width, int height) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 24;
        void* pixels = nullptr;
        m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
        CreateCompatibleDC(nullptr);
        m_former = ::SelectObject(m_hDC, m_bitmap);
        PatBlt(0, 0, width, height, WHITENESS);
    }
    ~PictureDC() override { ::SelectObject(m_hDC, m_former); }

    CBitmap m_bitmap;

private:
    HGDIOBJ m_former;
};

/// A row of pixels as text: one letter each for white, red, green, blue, and '?' for others.
inline std::string Row(const CDC& dc, int y, int width) {
    std::string row;
    for (int x = 0; x < width; ++x) {
        const COLORREF colour = dc.GetPixel(x, y);
        row += colour == white   ? '.'
               : colour == red   ? 'r'
               : colour == green ? 'g'
               : colour == blue  ? 'b'
                                 : '?';
    }
    return row;
}

/// Ends with no temporary objects.
class TemporaryFreeTest : public testing::Test {
protected:
    void TearDown() override {
        CDC::DeleteTempMap();
        CGdiObject::DeleteTempMap();
    }
};
