// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CBitmap.h"
#include "afx/CDC.h"
#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <string>

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// A memory context of the framework on a canvas, white at first.
class PictureDC : public CDC {
public:
    PictureDC(int width, int height) : m_canvas(width, height, white) {
        Attach(m_canvas.dc());
        m_bitmap.Attach(::GetCurrentObject(m_hDC, OBJ_BITMAP));
    }
    ~PictureDC() override {
        m_bitmap.Detach();
        Detach();
    }

    CBitmap m_bitmap;

private:
    Canvas m_canvas;
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
