// SPDX-License-Identifier: MIT
#include "PictureDC.h"
#include "afx/CBrush.h"
#include "afx/CFont.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"

#include <functional>

namespace {

using DeviceDrawingTest = TemporaryFreeTest;

/// All rows of a picture of 6 by 4 pixels, separated by blanks.
std::string Picture(const PictureDC& dc) {
    std::string rows = Row(dc, 0, 6);
    for (int y = 1; y < 4; ++y) {
        rows += " " + Row(dc, y, 6);
    }
    return rows;
}

struct Drawing {
    std::function<void(CDC&)> draw;
    const char* expected;
};

TEST_F(DeviceDrawingTest, Rectangles) {
    CBrush brush(green);
    const Drawing drawings[] = {
        {[](CDC& dc) { dc.FillSolidRect(CRect(1, 1, 4, 3), red); }, "...... .rrr.. .rrr.. ......"},
        {[&](CDC& dc) { dc.FillRect(CRect(1, 1, 4, 3), &brush); }, "...... .ggg.. .ggg.. ......"},
        {[&](CDC& dc) { dc.FrameRect(CRect(0, 0, 5, 4), &brush); }, "ggggg. g...g. g...g. ggggg."},
        {[](CDC& dc) { dc.Draw3dRect(CRect(1, 0, 6, 4), red, blue); },
         ".rrrrb .r...b .r...b .bbbbb"},
        {[](CDC& dc) { dc.Draw3dRect(2, 1, 1, 1, red, blue); }, "...... ..b... ...... ......"},
        {[](CDC& dc) { dc.Draw3dRect(2, 1, 0, 3, red, blue); }, "...... ...... ...... ......"},
        {[](CDC& dc) {
             dc.FillSolidRect(0, 0, 6, 1, RGB(0, 255, 255));
             dc.InvertRect(CRect(0, 0, 6, 1));
             dc.DrawFocusRect(CRect(0, 1, 6, 4));
             dc.DrawFocusRect(CRect(0, 1, 6, 4));
         },
         "rrrrrr ...... ...... ......"},
    };
    for (const Drawing& drawing : drawings) {
        PictureDC dc(6, 4);
        drawing.draw(dc);
        EXPECT_EQ(drawing.expected, Picture(dc));
    }
}

TEST_F(DeviceDrawingTest, LinesAndShapes) {
    CPen pen(PS_SOLID, 1, red);
    CBrush brush(blue);
    POINT triangle[] = {{0, 0}, {5, 0}, {0, 3}};
    POINT squares[] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}, {3, 1}, {5, 1}, {5, 3}, {3, 3}};
    int counts[] = {4, 4};
    const Drawing drawings[] = {
        {[](CDC& dc) {
             EXPECT_EQ(CPoint(0, 0), dc.MoveTo(1, 2));
             EXPECT_TRUE(dc.LineTo(CPoint(4, 2)));
             EXPECT_EQ(CPoint(4, 2), dc.MoveTo(CPoint(0, 0)));
         },
         "...... ...... .rrr.. ......"},
        {[&](CDC& dc) { dc.Polyline(triangle, 2); }, "rrrrr. ...... ...... ......"},
        {[&](CDC& dc) { dc.PolyPolygon(squares, counts, 2); }, "rr.... rr.rrr ...rbr ...rrr"},
        {[](CDC& dc) { dc.Rectangle(CRect(1, 0, 6, 3)); }, ".rrrrr .rbbbr .rrrrr ......"},
        {[](CDC& dc) {
             dc.BeginPath();
             dc.Rectangle(0, 0, 4, 4);
             dc.EndPath();
         },
         "...... ...... ...... ......"},
    };
    for (const Drawing& drawing : drawings) {
        PictureDC dc(6, 4);
        CPen* const formerPen = dc.SelectObject(&pen);
        CBrush* const formerBrush = dc.SelectObject(&brush);
        drawing.draw(dc);
        EXPECT_EQ(drawing.expected, Picture(dc));
        dc.SelectObject(formerPen);
        dc.SelectObject(formerBrush);
    }
}

TEST_F(DeviceDrawingTest, CurvesKeepTheirSides) {
    CPen pen(PS_SOLID, 1, red);
    CBrush brush(blue);
    const CRect rect(0, 0, 7, 7);
    const CPoint above(3, -9);
    const CPoint below(3, 15);
    const Drawing drawings[] = {
        {[&](CDC& dc) { dc.Ellipse(rect); }, "rbbbbbr"},
        {[&](CDC& dc) { dc.RoundRect(rect, CPoint(2, 2)); }, "rbbbbbr"},
        {[&](CDC& dc) { dc.Arc(rect, above, below); }, "r......"},
        {[&](CDC& dc) { dc.Chord(rect, above, below); }, "rbbr..."},
        {[&](CDC& dc) { dc.Pie(rect, above, below); }, "rbbr..."},
    };
    for (const Drawing& drawing : drawings) {
        PictureDC dc(7, 7);
        CPen* const formerPen = dc.SelectObject(&pen);
        CBrush* const formerBrush = dc.SelectObject(&brush);
        drawing.draw(dc);
        EXPECT_EQ(drawing.expected, Row(dc, 3, 7));
        dc.SelectObject(formerPen);
        dc.SelectObject(formerBrush);
    }
}

TEST_F(DeviceDrawingTest, FillSolidRectLeavesItsColourAsBackground) {
    PictureDC dc(4, 4);
    dc.FillSolidRect(0, 0, 1, 1, green);
    EXPECT_EQ(green, dc.GetBkColor());
}

TEST_F(DeviceDrawingTest, Regions) {
    PictureDC dc(6, 4);
    CBrush redBrush(red);
    CBrush blueBrush(blue);
    CRgn region;
    region.CreateRectRgn(0, 0, 4, 4);
    EXPECT_TRUE(dc.FillRgn(&region, &redBrush));
    EXPECT_TRUE(dc.FrameRgn(&region, &blueBrush, 1, 1));
    EXPECT_EQ("bbbb.. brrb.. brrb.. bbbb..", Picture(dc));
    CBrush* const former = dc.SelectObject(&redBrush);
    EXPECT_TRUE(dc.ExtFloodFill(5, 0, white, FLOODFILLSURFACE));
    EXPECT_EQ("bbbbrr brrbrr brrbrr bbbbrr", Picture(dc));
    EXPECT_TRUE(dc.PaintRgn(&region));
    EXPECT_TRUE(dc.InvertRgn(&region));
    EXPECT_EQ(RGB(0, 255, 255), dc.GetPixel(1, 1));
    dc.SelectObject(former);
}

TEST_F(DeviceDrawingTest, HalftoneAlternates) {
    CBrush* const brush = CDC::GetHalftoneBrush();
    ASSERT_NE(nullptr, brush);
    EXPECT_EQ(brush, CDC::GetHalftoneBrush());
    PictureDC dc(4, 2);
    dc.SetTextColor(red);
    dc.SetBkColor(blue);
    dc.FillRect(CRect(0, 0, 4, 2), brush);
    const std::string picture = Row(dc, 0, 4) + " " + Row(dc, 1, 4);
    EXPECT_TRUE(picture == "rbrb brbr" || picture == "brbr rbrb") << picture;
}

TEST_F(DeviceDrawingTest, CopiesPictures) {
    PictureDC source(4, 1);
    source.SetPixel(0, 0, red);
    EXPECT_EQ(green, source.SetPixel(CPoint(1, 0), green));
    EXPECT_TRUE(source.SetPixelV(2, 0, blue));
    EXPECT_TRUE(source.SetPixelV(CPoint(3, 0), white));
    EXPECT_EQ(blue, source.GetPixel(CPoint(2, 0)));
    const BLENDFUNCTION opaque = {AC_SRC_OVER, 0, 255, 0};
    const WORD maskRow = 0x0050; // pixels 1 and 3
    CBitmap mask;
    mask.CreateBitmap(4, 1, 1, 1, &maskRow);
    struct Case {
        const char* what;
        std::function<BOOL(CDC&)> copy;
        const char* expected;
    };
    const Case cases[] = {
        {"same size", [&](CDC& dc) { return dc.BitBlt(1, 0, 3, 1, &source, 0, 0, SRCCOPY); },
         ".rgb...."},
        {"without source", [&](CDC& dc) { return dc.BitBlt(0, 0, 8, 1, nullptr, 0, 0, BLACKNESS); },
         "????????"},
        {"twice as wide",
         [&](CDC& dc) { return dc.StretchBlt(0, 0, 8, 1, &source, 0, 0, 4, 1, SRCCOPY); },
         "rrggbb.."},
        {"blended", [&](CDC& dc) { return dc.AlphaBlend(0, 0, 4, 1, &source, 0, 0, 4, 1, opaque); },
         "rgb....."},
        {"without green",
         [&](CDC& dc) { return dc.TransparentBlt(2, 0, 4, 1, &source, 0, 0, 4, 1, green); },
         "..r.b..."},
        {"masked",
         [&](CDC& dc) {
             return dc.MaskBlt(0, 0, 4, 1, &source, 0, 0, mask, 0, 0, MAKEROP4(SRCCOPY, BLACKNESS));
         },
         "?g?....."},
    };
    for (const Case& tested : cases) {
        PictureDC dc(8, 1);
        EXPECT_TRUE(tested.copy(dc)) << tested.what;
        EXPECT_EQ(tested.expected, Row(dc, 0, 8)) << tested.what;
    }
}

BOOL CALLBACK DrawStateInRed(HDC hDC, LPARAM data, WPARAM, int width, int height) {
    *reinterpret_cast<CSize*>(data) = CSize(width, height);
    const CRect rect(0, 0, width, height);
    CDC::FromHandle(hDC)->FillSolidRect(rect, red);
    return TRUE;
}

TEST_F(DeviceDrawingTest, DrawsStates) {
    PictureDC dc(32, 16);
    CBitmap square;
    square.CreateCompatibleBitmap(&dc, 2, 2);
    CBitmap* const picture = dc.SelectObject(&square);
    dc.FillSolidRect(0, 0, 2, 2, blue);
    dc.SelectObject(picture);
    EXPECT_TRUE(dc.DrawState(CPoint(1, 0), CSize(0, 0), &square, DSS_NORMAL));
    EXPECT_TRUE(dc.DrawState(CPoint(4, 0), CSize(0, 0), static_cast<HBITMAP>(square), DSS_NORMAL));
    CSize drawn(0, 0);
    EXPECT_TRUE(dc.DrawState(CPoint(7, 0), CSize(1, 1), DrawStateInRed,
                             reinterpret_cast<LPARAM>(&drawn), DSS_NORMAL,
                             static_cast<CBrush*>(nullptr)));
    EXPECT_EQ(CSize(1, 1), drawn);
    EXPECT_EQ(".bb.bb.r.", Row(dc, 0, 9));

    const HICON icon = ::LoadIcon(nullptr, IDI_APPLICATION);
    EXPECT_TRUE(
        dc.DrawState(CPoint(0, 0), CSize(16, 16), icon, DSS_NORMAL, static_cast<CBrush*>(nullptr)));
    EXPECT_TRUE(dc.DrawIcon(CPoint(0, 0), icon));

    dc.PatBlt(0, 0, 32, 16, WHITENESS);
    CBrush brush(red);
    EXPECT_TRUE(dc.DrawState(CPoint(0, 0), CSize(32, 16), "&HHHH", DSS_MONO, TRUE, 2, &brush));
    int redPixels = 0;
    for (int y = 0; y < 16; ++y) {
        for (const char pixel : Row(dc, y, 32)) {
            redPixels += pixel == 'r';
        }
    }
    EXPECT_GT(redPixels, 0) << "the two bytes of text in the colour of the brush";
}

TEST_F(DeviceDrawingTest, MeasuresText) {
    PictureDC dc(200, 50);
    const CString text("Wide text");
    TEXTMETRIC metrics = {};
    ASSERT_TRUE(dc.GetTextMetrics(&metrics));
    const CSize extent = dc.GetTextExtent(text);
    EXPECT_EQ(metrics.tmHeight, extent.cy);
    EXPECT_EQ(extent, dc.GetTextExtent(text, text.GetLength()));
    EXPECT_EQ(extent, dc.GetOutputTextExtent(text));
    EXPECT_LT(dc.GetTextExtent(text, 4).cx, extent.cx);

    int widths[2] = {};
    EXPECT_TRUE(dc.GetCharWidth('V', 'W', widths));
    EXPECT_EQ(dc.GetTextExtent("W", 1).cx, widths[1]);

    CRect rect(5, 5, 6, 6);
    EXPECT_EQ(metrics.tmHeight, dc.DrawText(text, &rect, DT_SINGLELINE | DT_CALCRECT));
    EXPECT_EQ(CRect(CPoint(5, 5), extent), rect);
    DRAWTEXTPARAMS margins = {sizeof margins, 0, 3, 4, 0};
    rect = CRect(0, 0, 1, 1);
    dc.DrawTextEx(text, &rect, DT_SINGLELINE | DT_CALCRECT, &margins);
    EXPECT_EQ(extent.cx + 7, rect.Width());

    int tab = 150;
    EXPECT_EQ(150 + dc.GetTextExtent("b", 1).cx, dc.GetTabbedTextExtent("a\tb", 3, 1, &tab).cx);
    const CSize drawn = dc.TabbedTextOut(0, 0, CString("a\tb"), 1, &tab, 0);
    EXPECT_EQ(dc.GetTabbedTextExtent(CString("a\tb"), 1, &tab), drawn);
}

TEST_F(DeviceDrawingTest, NamesTheFontInUse) {
    PictureDC dc(4, 4);
    char whole[64] = {};
    const int length = dc.GetTextFace(sizeof whole, whole);
    ASSERT_GT(length, 1);
    EXPECT_EQ(static_cast<int>(strlen(whole)), length);
    CString name;
    EXPECT_EQ(length, dc.GetTextFace(name));
    EXPECT_EQ(CString(whole), name);
    char cut[2] = {'x', 'x'};
    EXPECT_EQ(1, dc.GetTextFace(sizeof cut, cut));
    EXPECT_EQ(whole[0], cut[0]);
}

} // namespace
