// SPDX-License-Identifier: MIT
#include "PictureDC.h"
#include "afx/CBrush.h"

#include <functional>

namespace {

using DeviceDrawingTest = TemporaryFreeTest;

/// All rows of a picture of 6 by 4 pixels, separated by blanks.
std::string Picture(const PictureDC& dc) {
    std::string rows = Row(dc, 0, 6);
    for (int y = 1; y < 4; ++y)
        rows += " " + Row(dc, y, 6);
    return rows;
}

TEST_F(DeviceDrawingTest, Rectangles) {
    CBrush brush(green);
    const struct {
        std::function<void(CDC&)> draw;
        const char* expected;
    } drawings[] = {
        {[](CDC& dc) { dc.FillSolidRect(CRect(1, 1, 4, 3), red); }, "...... .rrr.. .rrr.. ......"},
        {[&](CDC& dc) { dc.FillRect(CRect(1, 1, 4, 3), &brush); }, "...... .ggg.. .ggg.. ......"},
        {[&](CDC& dc) { dc.FrameRect(CRect(0, 0, 5, 4), &brush); }, "ggggg. g...g. g...g. ggggg."},
        {[](CDC& dc) { dc.Draw3dRect(CRect(1, 0, 6, 4), red, blue); },
         ".rrrrb .r...b .r...b .bbbbb"},
        {[](CDC& dc) { dc.Draw3dRect(2, 1, 0, 3, red, blue); }, "...... ...... ...... ......"},
        {[](CDC& dc) {
             dc.FillSolidRect(0, 0, 6, 1, red);
             dc.DrawFocusRect(CRect(0, 1, 6, 4));
             dc.DrawFocusRect(CRect(0, 1, 6, 4));
         },
         "rrrrrr ...... ...... ......"},
    };
    for (const auto& drawing : drawings) {
        PictureDC dc(6, 4);
        drawing.draw(dc);
        EXPECT_EQ(drawing.expected, Picture(dc));
    }
}

TEST_F(DeviceDrawingTest, DrawsStates) {
    PictureDC dc(32, 16);
    CBitmap square;
    square.CreateCompatibleBitmap(&dc, 2, 2);
    CBitmap* const picture = dc.SelectObject(&square);
    dc.FillSolidRect(0, 0, 2, 2, blue);
    dc.SelectObject(picture);
    EXPECT_TRUE(dc.DrawState(CPoint(1, 0), CSize(0, 0), &square, DSS_NORMAL));
    EXPECT_EQ(".bb.", Row(dc, 0, 4));
}

TEST_F(DeviceDrawingTest, MeasuresText) {
    PictureDC dc(200, 50);
    const CString text("Wide text");
    const CSize extent = dc.GetTextExtent(text);
    EXPECT_LT(dc.GetTextExtent(text, 4).cx, extent.cx);
    CRect rect(5, 5, 6, 6);
    EXPECT_EQ(extent.cy, dc.DrawText(text, &rect, DT_SINGLELINE | DT_CALCRECT));
    EXPECT_EQ(CRect(CPoint(5, 5), extent), rect);
    int tab = 150;
    const CSize drawn = dc.TabbedTextOut(0, 0, "a\tb", 3, 1, &tab, 0);
    EXPECT_EQ(150 + dc.GetTextExtent("b", 1).cx, drawn.cx);
}

} // namespace
