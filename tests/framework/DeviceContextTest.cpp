// SPDX-License-Identifier: MIT
#include "PictureDC.h"
#include "afx/CBrush.h"
#include "afx/CClientDC.h"
#include "afx/CFont.h"
#include "afx/CPaintDC.h"
#include "afx/CPalette.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"
#include "afx/CWindowDC.h"
#include "afx/CWnd.h"

#include <functional>

namespace {

using DeviceContextTest = TemporaryFreeTest;

// Holding

TEST_F(DeviceContextTest, DeletesWhatItHolds) {
    const HDC handle = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        EXPECT_TRUE(dc.Attach(handle));
        EXPECT_EQ(handle, dc.m_hDC);
        EXPECT_EQ(handle, dc.m_hAttribDC);
        EXPECT_EQ(handle, dc.GetSafeHdc());
        EXPECT_EQ(handle, static_cast<HDC>(dc));
        EXPECT_EQ(&dc, CDC::FromHandle(handle));
    }
    EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST_F(DeviceContextTest, DetachedHandleOutlivesTheObject) {
    const HDC handle = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        dc.Attach(handle);
        EXPECT_EQ(handle, dc.Detach());
        EXPECT_EQ(nullptr, dc.m_hDC);
        EXPECT_EQ(nullptr, dc.m_hAttribDC);
        EXPECT_EQ(nullptr, dc.Detach());
        EXPECT_FALSE(dc.DeleteDC());
    }
    EXPECT_EQ(static_cast<DWORD>(OBJ_MEMDC), ::GetObjectType(handle));
    ::DeleteDC(handle);
}

TEST_F(DeviceContextTest, TemporaryObjectSparesTheHandle) {
    const HDC handle = ::CreateCompatibleDC(nullptr);
    CDC* const temporary = CDC::FromHandle(handle);
    ASSERT_NE(nullptr, temporary);
    EXPECT_EQ(handle, temporary->m_hDC);
    EXPECT_EQ(handle, temporary->m_hAttribDC);
    EXPECT_EQ(temporary, CDC::FromHandle(handle));
    CDC::DeleteTempMap();
    EXPECT_EQ(static_cast<DWORD>(OBJ_MEMDC), ::GetObjectType(handle));
    ::DeleteDC(handle);
    EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
}

TEST_F(DeviceContextTest, Creates) {
    CDC display, information, memory;
    EXPECT_TRUE(display.CreateDC("DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_TRUE(information.CreateIC("DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_TRUE(memory.CreateCompatibleDC(&display));
    EXPECT_GT(display.GetDeviceCaps(HORZRES), 1);
    EXPECT_TRUE(memory.DeleteDC());
    EXPECT_EQ(nullptr, memory.m_hDC);
    EXPECT_EQ(nullptr, memory.m_hAttribDC);
}

TEST_F(DeviceContextTest, CallsWithoutContextFailQuietly) {
    const CRect rect(0, 0, 4, 4);
    CRect box(rect);
    POINT points[3] = {{0, 0}, {3, 0}, {3, 3}};
    CString text("text");
    TEXTMETRIC metrics;
    CBrush brush(red);
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 1, nullptr);
    CDC dc;
    EXPECT_FALSE(dc.Attach(nullptr));
    EXPECT_EQ(0, dc.SaveDC());
    EXPECT_FALSE(dc.RestoreDC(-1));
    EXPECT_EQ(nullptr, dc.SelectObject(&brush));
    EXPECT_EQ(nullptr, dc.SelectObject(&bitmap));
    EXPECT_EQ(nullptr, dc.SelectStockObject(BLACK_PEN));
    EXPECT_EQ(nullptr, dc.GetCurrentFont());
    EXPECT_EQ(CLR_INVALID, dc.SetTextColor(red));
    EXPECT_EQ(CLR_INVALID, dc.SetBkColor(red));
    EXPECT_EQ(0, dc.SetBkMode(TRANSPARENT));
    EXPECT_EQ(CPoint(0, 0), dc.SetViewportOrg(3, 3));
    EXPECT_EQ(CSize(0, 0), dc.SetWindowExt(3, 3));
    EXPECT_EQ(ERROR, dc.GetClipBox(&box));
    EXPECT_EQ(ERROR, dc.SelectClipRgn(nullptr));
    EXPECT_FALSE(dc.PtVisible(1, 1));
    EXPECT_FALSE(dc.RectVisible(rect));
    EXPECT_EQ(CPoint(0, 0), dc.MoveTo(3, 3));
    EXPECT_FALSE(dc.LineTo(3, 3));
    EXPECT_FALSE(dc.Polygon(points, 3));
    EXPECT_FALSE(dc.Rectangle(rect));
    dc.FillRect(rect, &brush);
    dc.FillSolidRect(rect, red);
    dc.Draw3dRect(rect, red, blue);
    dc.FrameRect(rect, &brush);
    dc.InvertRect(rect);
    dc.DrawFocusRect(rect);
    EXPECT_EQ(CLR_INVALID, dc.GetPixel(0, 0));
    EXPECT_FALSE(dc.SetPixelV(0, 0, red));
    EXPECT_FALSE(dc.BitBlt(0, 0, 4, 4, &dc, 0, 0, SRCCOPY));
    EXPECT_FALSE(dc.TextOut(0, 0, text));
    EXPECT_FALSE(dc.ExtTextOut(0, 0, 0, rect, text, nullptr));
    EXPECT_EQ(CSize(0, 0), dc.TabbedTextOut(0, 0, text, 0, nullptr, 0));
    EXPECT_EQ(CSize(0, 0), dc.GetTextExtent(text));
    EXPECT_FALSE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(0, dc.GetTextFace(text));
}

// Selecting

TEST_F(DeviceContextTest, SelectingGivesTheFormerObject) {
    PictureDC dc(4, 4);
    CPen pen(PS_SOLID, 1, red);
    CBrush brush(green);
    CFont font;
    font.CreatePointFont(100, "Arial");

    CPen* const formerPen = dc.SelectObject(&pen);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), formerPen->m_hObject);
    EXPECT_EQ(&pen, dc.GetCurrentPen());
    EXPECT_EQ(&pen, dc.SelectObject(formerPen));

    CBrush* const formerBrush = dc.SelectObject(&brush);
    EXPECT_EQ(&brush, dc.GetCurrentBrush());
    EXPECT_EQ(&brush, dc.SelectObject(formerBrush));

    CFont* const formerFont = dc.SelectObject(&font);
    EXPECT_EQ(&font, dc.GetCurrentFont());
    EXPECT_EQ(&font, dc.SelectObject(formerFont));

    EXPECT_EQ(&dc.m_bitmap, dc.GetCurrentBitmap());
    CBitmap other;
    other.CreateCompatibleBitmap(&dc, 2, 2);
    EXPECT_EQ(&dc.m_bitmap, dc.SelectObject(&other));
    EXPECT_EQ(&other, dc.SelectObject(&dc.m_bitmap));
    EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CPen*>(nullptr)));
}

TEST_F(DeviceContextTest, GeneralSelectionGoesByKind) {
    PictureDC dc(8, 8);
    CPen pen(PS_SOLID, 1, red);
    CGdiObject* const former = dc.SelectObject(static_cast<CGdiObject*>(&pen));
    ASSERT_NE(nullptr, former);
    EXPECT_TRUE(former->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(&pen, dc.SelectObject(former));

    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc, 2, 2);
    EXPECT_EQ(&dc.m_bitmap, dc.SelectObject(static_cast<CGdiObject*>(&bitmap)));
    EXPECT_EQ(&bitmap, dc.SelectObject(static_cast<CGdiObject*>(&dc.m_bitmap)));

    CRgn region;
    region.CreateRectRgn(1, 1, 3, 3);
    EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CGdiObject*>(&region)));
    CRect box;
    EXPECT_EQ(SIMPLEREGION, dc.GetClipBox(&box));
    EXPECT_EQ(CRect(1, 1, 3, 3), box);
    region.SetRectRgn(2, 2, 5, 5);
    EXPECT_EQ(SIMPLEREGION, dc.SelectObject(&region));
    dc.GetClipBox(&box);
    EXPECT_EQ(CRect(2, 2, 5, 5), box);
}

TEST_F(DeviceContextTest, StockObjectsReplaceTheirKind) {
    PictureDC dc(4, 4);
    struct Case {
        int stock;
        CRuntimeClass* kind;
    };
    for (const Case& tested :
         {Case{WHITE_PEN, RUNTIME_CLASS(CPen)}, Case{GRAY_BRUSH, RUNTIME_CLASS(CBrush)},
          Case{DEFAULT_GUI_FONT, RUNTIME_CLASS(CFont)}}) {
        CGdiObject* const former = dc.SelectStockObject(tested.stock);
        ASSERT_NE(nullptr, former) << tested.stock;
        EXPECT_TRUE(former->IsKindOf(tested.kind)) << tested.stock;
        CGdiObject* const stock = dc.SelectObject(former);
        EXPECT_EQ(::GetStockObject(tested.stock), stock->m_hObject);
    }
    EXPECT_EQ(nullptr, dc.SelectStockObject(-1));
}

TEST_F(DeviceContextTest, Palettes) {
    PictureDC dc(4, 4);
    CPalette palette;
    ASSERT_TRUE(palette.CreateHalftonePalette(&dc));
    CPalette* const former = dc.SelectPalette(&palette, FALSE);
    ASSERT_NE(nullptr, former);
    EXPECT_EQ(&palette, dc.GetCurrentPalette());
    dc.RealizePalette();
    EXPECT_EQ(&palette, dc.SelectPalette(former, FALSE));
}

TEST_F(DeviceContextTest, RestoresSavedState) {
    PictureDC dc(4, 4);
    CPen pen(PS_SOLID, 1, red);
    CPen* const former = dc.GetCurrentPen();
    const int outer = dc.SaveDC();
    dc.SetTextColor(red);
    dc.SelectObject(&pen);
    const int inner = dc.SaveDC();
    EXPECT_GT(inner, outer);
    dc.SetTextColor(blue);
    EXPECT_TRUE(dc.RestoreDC(-1));
    EXPECT_EQ(red, dc.GetTextColor());
    EXPECT_TRUE(dc.RestoreDC(outer));
    EXPECT_EQ(RGB(0, 0, 0), dc.GetTextColor());
    EXPECT_EQ(former, dc.GetCurrentPen());
    EXPECT_FALSE(dc.RestoreDC(inner));
}

// Two contexts in one object

TEST_F(DeviceContextTest, OutputAndAttributesCanDiffer) {
    PictureDC output(8, 8);
    PictureDC attributes(8, 8);
    CDC both;
    both.SetOutputDC(output);
    both.SetAttribDC(attributes);
    EXPECT_NE(&both, CDC::FromHandle(output)) << "only attached contexts are found";

    attributes.SetTextColor(green);
    EXPECT_EQ(green, both.GetTextColor()) << "asked of the attributes";
    EXPECT_EQ(green, both.SetTextColor(blue));
    EXPECT_EQ(blue, output.GetTextColor());
    EXPECT_EQ(blue, attributes.GetTextColor());

    CFont font;
    font.CreatePointFont(300, "Arial");
    CFont* const former = both.SelectObject(&font);
    EXPECT_EQ(&font, output.GetCurrentFont());
    EXPECT_EQ(&font, attributes.GetCurrentFont());
    output.SelectStockObject(SYSTEM_FONT);
    EXPECT_GT(both.GetTextExtent("text", 4).cy, both.GetOutputTextExtent("text", 4).cy);
    TEXTMETRIC metrics, outputMetrics;
    EXPECT_TRUE(both.GetTextMetrics(&metrics));
    EXPECT_TRUE(both.GetOutputTextMetrics(&outputMetrics));
    EXPECT_GT(metrics.tmHeight, outputMetrics.tmHeight);
    both.SelectObject(former);

    both.MoveTo(1, 1);
    EXPECT_TRUE(both.LineTo(4, 1));
    EXPECT_EQ(CPoint(4, 1), both.GetCurrentPosition());
    EXPECT_EQ(CPoint(4, 1), output.GetCurrentPosition());
    EXPECT_EQ(".???....", Row(output, 1, 8));
    EXPECT_EQ("........", Row(attributes, 1, 8)) << "nothing is drawn there";

    EXPECT_EQ(SIMPLEREGION, both.IntersectClipRect(2, 2, 6, 6));
    CRect box;
    output.GetClipBox(&box);
    EXPECT_EQ(CRect(2, 2, 6, 6), box);
    both.GetClipBox(&box);
    EXPECT_EQ(CRect(2, 2, 6, 6), box);

    const int state = both.SaveDC();
    both.SetBkColor(red);
    EXPECT_TRUE(both.RestoreDC(state));
    EXPECT_EQ(white, output.GetBkColor());
    EXPECT_EQ(white, attributes.GetBkColor());

    both.ReleaseAttribDC();
    EXPECT_EQ(nullptr, both.m_hAttribDC);
    EXPECT_EQ(static_cast<HDC>(output), both.m_hDC);
    both.ReleaseOutputDC();
    EXPECT_EQ(nullptr, both.m_hDC);
}

TEST_F(DeviceContextTest, AttachTakesTheOutputOnly) {
    PictureDC attributes(4, 4);
    const HDC handle = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        dc.Attach(handle);
        dc.SetAttribDC(attributes);
    }
    EXPECT_EQ(0u, ::GetObjectType(handle));
    EXPECT_EQ(static_cast<DWORD>(OBJ_MEMDC), ::GetObjectType(attributes.m_hDC));
}

// Overriding

/// Notes which of the virtual functions were called.
class RecordingDC : public PictureDC {
public:
    RecordingDC() : PictureDC(16, 16) {}

    mutable std::string m_calls;

    BOOL PtVisible(int, int) const override { return Note("PtVisible"), TRUE; }
    BOOL RectVisible(LPCRECT) const override { return Note("RectVisible"), TRUE; }
    BOOL TextOut(int, int, LPCTSTR text, int count) override {
        return Note("TextOut " + std::string(text, count)), TRUE;
    }
    BOOL ExtTextOut(int, int, UINT, LPCRECT, LPCTSTR text, UINT count, LPINT) override {
        return Note("ExtTextOut " + std::string(text, count)), TRUE;
    }
    CSize TabbedTextOut(int, int, LPCTSTR text, int count, int, LPINT, int) override {
        return Note("TabbedTextOut " + std::string(text, count)), CSize(1, 2);
    }
    int DrawText(LPCTSTR text, int count, LPRECT, UINT) override {
        return Note("DrawText " + std::string(text, count)), 3;
    }
    int DrawTextEx(LPTSTR text, int count, LPRECT, UINT, LPDRAWTEXTPARAMS) override {
        return Note("DrawTextEx " + std::string(text, count)), 4;
    }
    BOOL GrayString(CBrush*, BOOL(CALLBACK*)(HDC, LPARAM, int), LPARAM, int, int, int, int,
                    int) override {
        return Note("GrayString"), TRUE;
    }
    int Escape(int, int, LPCSTR, LPVOID) override { return Note("Escape"), 5; }
    CFont* SelectObject(CFont*) override { return Note("SelectObject font"), nullptr; }
    CGdiObject* SelectStockObject(int) override { return Note("SelectStockObject"), nullptr; }
    COLORREF SetBkColor(COLORREF colour) override {
        Note("SetBkColor");
        return PictureDC::SetBkColor(colour);
    }
    COLORREF SetTextColor(COLORREF) override { return Note("SetTextColor"), 0; }
    int SaveDC() override { return Note("SaveDC"), 6; }
    BOOL RestoreDC(int) override { return Note("RestoreDC"), TRUE; }
    CPoint SetViewportOrg(int, int) override { return Note("SetViewportOrg"), CPoint(); }
    CSize SetWindowExt(int, int) override { return Note("SetWindowExt"), CSize(); }

private:
    void Note(const std::string& call) const { m_calls += call + ";"; }
};

TEST_F(DeviceContextTest, OverridesAreReachedThroughTheBase) {
    RecordingDC recorder;
    CDC& dc = recorder;
    CFont font;
    CRect rect(0, 0, 8, 8);
    const CString text("abc");
    char buffer[] = "xyz";
    struct Case {
        const char* expected;
        std::function<void()> call;
    };
    const Case cases[] = {
        {"PtVisible;", [&] { dc.PtVisible(1, 1); }},
        {"PtVisible;", [&] { dc.PtVisible(CPoint(1, 1)); }},
        {"RectVisible;", [&] { dc.RectVisible(rect); }},
        {"TextOut xy;", [&] { dc.TextOut(0, 0, buffer, 2); }},
        {"TextOut abc;", [&] { dc.TextOut(0, 0, text); }},
        {"ExtTextOut xy;", [&] { dc.ExtTextOut(0, 0, 0, rect, buffer, 2, nullptr); }},
        {"ExtTextOut abc;", [&] { dc.ExtTextOut(0, 0, 0, rect, text, nullptr); }},
        {"TabbedTextOut xy;", [&] { dc.TabbedTextOut(0, 0, buffer, 2, 0, nullptr, 0); }},
        {"TabbedTextOut abc;", [&] { dc.TabbedTextOut(0, 0, text, 0, nullptr, 0); }},
        {"DrawText xy;", [&] { dc.DrawText(buffer, 2, rect, 0); }},
        {"DrawText abc;", [&] { dc.DrawText(text, rect, 0); }},
        {"DrawTextEx xy;", [&] { dc.DrawTextEx(buffer, 2, rect, 0, nullptr); }},
        {"DrawTextEx abc;", [&] { dc.DrawTextEx(text, rect, 0, nullptr); }},
        {"GrayString;", [&] { dc.GrayString(nullptr, nullptr, 0, 0, 0, 0, 0, 0); }},
        {"Escape;", [&] { dc.Escape(0, 0, nullptr, nullptr); }},
        {"SelectObject font;", [&] { dc.SelectObject(&font); }},
        {"SelectStockObject;", [&] { dc.SelectStockObject(BLACK_PEN); }},
        {"SetTextColor;", [&] { dc.SetTextColor(red); }},
        {"SetBkColor;", [&] { dc.FillSolidRect(rect, red); }},
        {"SaveDC;", [&] { dc.SaveDC(); }},
        {"RestoreDC;", [&] { dc.RestoreDC(-1); }},
        {"SetViewportOrg;", [&] { dc.SetViewportOrg(CPoint(1, 1)); }},
        {"SetWindowExt;", [&] { dc.SetWindowExt(CSize(1, 1)); }},
    };
    for (const Case& tested : cases) {
        recorder.m_calls.clear();
        tested.call();
        EXPECT_EQ(tested.expected, recorder.m_calls);
    }
}

// State

/// Sets one value, then another, and checks what is reported in between.
template <class T>
void ExpectSetting(CDC& dc, T (CDC::*set)(T), T (CDC::*get)() const, T first, T second) {
    const T initial = (dc.*get)();
    EXPECT_EQ(initial, (dc.*set)(first));
    EXPECT_EQ(first, (dc.*get)());
    EXPECT_EQ(first, (dc.*set)(second));
    EXPECT_EQ(second, (dc.*get)());
}

TEST_F(DeviceContextTest, SettersReturnWhatWasSet) {
    PictureDC dc(4, 4);
    ExpectSetting(dc, &CDC::SetTextColor, &CDC::GetTextColor, red, blue);
    ExpectSetting(dc, &CDC::SetBkColor, &CDC::GetBkColor, red, blue);
    ExpectSetting(dc, &CDC::SetDCBrushColor, &CDC::GetDCBrushColor, red, blue);
    ExpectSetting(dc, &CDC::SetDCPenColor, &CDC::GetDCPenColor, red, blue);
    ExpectSetting(dc, &CDC::SetBkMode, &CDC::GetBkMode, TRANSPARENT, OPAQUE);
    ExpectSetting(dc, &CDC::SetROP2, &CDC::GetROP2, R2_NOT, R2_XORPEN);
    ExpectSetting(dc, &CDC::SetPolyFillMode, &CDC::GetPolyFillMode, WINDING, ALTERNATE);
    ExpectSetting(dc, &CDC::SetStretchBltMode, &CDC::GetStretchBltMode, HALFTONE, COLORONCOLOR);
    ExpectSetting(dc, &CDC::SetArcDirection, &CDC::GetArcDirection, AD_CLOCKWISE,
                  AD_COUNTERCLOCKWISE);
    ExpectSetting(dc, &CDC::SetGraphicsMode, &CDC::GetGraphicsMode, GM_ADVANCED, GM_COMPATIBLE);
    ExpectSetting(dc, &CDC::SetMapMode, &CDC::GetMapMode, MM_TWIPS, MM_TEXT);
    ExpectSetting<UINT>(dc, &CDC::SetTextAlign, &CDC::GetTextAlign, TA_RIGHT, TA_CENTER);
    ExpectSetting(dc, &CDC::SetTextCharacterExtra, &CDC::GetTextCharacterExtra, 3, 5);
    ExpectSetting<DWORD>(dc, &CDC::SetLayout, &CDC::GetLayout, LAYOUT_BITMAPORIENTATIONPRESERVED,
                         0);
    EXPECT_EQ(CPoint(0, 0), dc.SetBrushOrg(3, 4));
    EXPECT_EQ(CPoint(3, 4), dc.SetBrushOrg(CPoint(1, 2)));
    EXPECT_EQ(CPoint(1, 2), dc.GetBrushOrg());
}

TEST_F(DeviceContextTest, MapsCoordinates) {
    PictureDC dc(4, 4);
    dc.SetMapMode(MM_ANISOTROPIC);
    EXPECT_EQ(CSize(1, 1), dc.SetWindowExt(10, 20));
    EXPECT_EQ(CSize(1, 1), dc.SetViewportExt(30, -20));
    EXPECT_EQ(CPoint(0, 0), dc.SetWindowOrg(5, 5));
    EXPECT_EQ(CPoint(0, 0), dc.SetViewportOrg(100, 200));
    EXPECT_EQ(CPoint(5, 5), dc.GetWindowOrg());
    EXPECT_EQ(CPoint(100, 200), dc.GetViewportOrg());

    CPoint point(6, 7);
    dc.LPtoDP(&point);
    EXPECT_EQ(CPoint(103, 198), point);
    dc.DPtoLP(&point);
    EXPECT_EQ(CPoint(6, 7), point);

    CRect rect(5, 5, 15, 25);
    dc.LPtoDP(&rect);
    EXPECT_EQ(CRect(100, 200, 130, 180), rect);
    dc.DPtoLP(&rect);
    EXPECT_EQ(CRect(5, 5, 15, 25), rect);

    CSize size(2, -4);
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize(6, -4), size) << "independent of origins and of the direction of the axes";
    dc.DPtoLP(&size);
    EXPECT_EQ(CSize(2, -4), size);

    EXPECT_EQ(CPoint(100, 200), dc.OffsetViewportOrg(1, 2));
    EXPECT_EQ(CPoint(101, 202), dc.GetViewportOrg());
    EXPECT_EQ(CPoint(5, 5), dc.OffsetWindowOrg(1, 2));
    EXPECT_EQ(CPoint(6, 7), dc.GetWindowOrg());
    EXPECT_EQ(CSize(30, -20), dc.ScaleViewportExt(2, 1, 1, 2));
    EXPECT_EQ(CSize(60, -10), dc.GetViewportExt());
    EXPECT_EQ(CSize(10, 20), dc.ScaleWindowExt(1, 2, 3, 1));
    EXPECT_EQ(CSize(5, 60), dc.GetWindowExt());
}

TEST_F(DeviceContextTest, Clips) {
    PictureDC dc(10, 10);
    CRgn region;
    region.CreateRectRgn(0, 0, 6, 6);
    const auto expectClip = [&dc](int complexity, int reported, const CRect& expected) {
        CRect box(-1, -1, -1, -1);
        EXPECT_EQ(complexity, reported);
        EXPECT_EQ(complexity, dc.GetClipBox(&box));
        EXPECT_EQ(expected, box);
    };
    expectClip(SIMPLEREGION, dc.SelectClipRgn(&region), CRect(0, 0, 6, 6));
    expectClip(SIMPLEREGION, dc.OffsetClipRgn(1, 1), CRect(1, 1, 7, 7));
    expectClip(SIMPLEREGION, dc.OffsetClipRgn(CSize(1, 1)), CRect(2, 2, 8, 8));
    expectClip(SIMPLEREGION, dc.IntersectClipRect(CRect(3, 0, 10, 10)), CRect(3, 2, 8, 8));
    expectClip(SIMPLEREGION, dc.ExcludeClipRect(0, 0, 10, 4), CRect(3, 4, 8, 8));
    expectClip(COMPLEXREGION, dc.ExcludeClipRect(CRect(5, 5, 6, 6)), CRect(3, 4, 8, 8));
    expectClip(COMPLEXREGION, dc.SelectClipRgn(&region, RGN_AND), CRect(3, 4, 6, 6));
    expectClip(NULLREGION, dc.IntersectClipRect(0, 0, 0, 0), CRect(0, 0, 0, 0));
    expectClip(SIMPLEREGION, dc.SelectClipRgn(nullptr), CRect(0, 0, 10, 10));

    dc.SelectClipRgn(&region);
    EXPECT_TRUE(dc.PtVisible(5, 5));
    EXPECT_FALSE(dc.PtVisible(CPoint(6, 5)));
    EXPECT_TRUE(dc.RectVisible(CRect(5, 5, 9, 9)));
    EXPECT_FALSE(dc.RectVisible(CRect(6, 6, 9, 9)));
    dc.FillSolidRect(0, 0, 10, 10, red);
    EXPECT_EQ("rrrrrr....", Row(dc, 5, 10));
    EXPECT_EQ("..........", Row(dc, 6, 10));
}

// Windows

/// A plain window. It is not activated: Wine would then wait two seconds on destruction for a window
/// manager that is not there.
class WindowContextTest : public TemporaryFreeTest {
protected:
    void SetUp() override {
        m_window = ::CreateWindowEx(0, "STATIC", "", WS_POPUP | WS_BORDER, 20, 30, 60, 40, nullptr,
                                    nullptr, nullptr, nullptr);
        ASSERT_NE(nullptr, m_window);
        ::ShowWindow(m_window, SW_SHOWNOACTIVATE);
    }
    void TearDown() override {
        ::DestroyWindow(m_window);
        TemporaryFreeTest::TearDown();
    }
    CWnd* Window() const { return CWnd::FromHandle(m_window); }

    HWND m_window = nullptr;
};

TEST_F(WindowContextTest, ClientAndWholeWindow) {
    CPoint clientOrigin(0, 0);
    ::ClientToScreen(m_window, &clientOrigin);
    CClientDC client(Window());
    CWindowDC whole(Window());
    CPoint origin;
    ::GetDCOrgEx(client, &origin);
    EXPECT_EQ(clientOrigin, origin);
    ::GetDCOrgEx(whole, &origin);
    EXPECT_EQ(CPoint(20, 30), origin);
    EXPECT_EQ(m_window, client.GetWindow()->m_hWnd);
    EXPECT_EQ(m_window, whole.GetWindow()->m_hWnd);
    EXPECT_EQ(&client, CDC::FromHandle(client));

    CDC memory;
    memory.CreateCompatibleDC(&client);
    EXPECT_EQ(nullptr, memory.GetWindow());
}

TEST_F(WindowContextTest, NoWindowIsTheScreen) {
    CClientDC screen(nullptr);
    EXPECT_EQ(::GetSystemMetrics(SM_CXSCREEN), screen.GetDeviceCaps(HORZRES));
    CWindowDC wholeScreen(nullptr);
    EXPECT_NE(nullptr, wholeScreen.m_hDC);
}

TEST_F(WindowContextTest, PaintingValidatesWhatItPaints) {
    ::UpdateWindow(m_window);
    const CRect part(3, 4, 13, 14);
    ::InvalidateRect(m_window, part, FALSE);
    {
        CPaintDC dc(Window());
        EXPECT_EQ(part, CRect(dc.m_ps.rcPaint));
        EXPECT_EQ(dc.m_ps.hdc, dc.m_hDC);
        CRect box;
        dc.GetClipBox(&box);
        EXPECT_EQ(part, box);
    }
    EXPECT_FALSE(::GetUpdateRect(m_window, nullptr, FALSE));
}

TEST_F(WindowContextTest, ExcludesWhatWaitsForPainting) {
    ::UpdateWindow(m_window);
    ::InvalidateRect(m_window, CRect(0, 0, 10, 10), FALSE);
    CClientDC dc(Window());
    dc.ExcludeUpdateRgn(Window());
    EXPECT_FALSE(dc.PtVisible(5, 5));
    EXPECT_TRUE(dc.PtVisible(15, 5));
}

TEST_F(WindowContextTest, DestroyedWindowThrows) {
    CWnd gone;
    gone.Attach(m_window);
    ::DestroyWindow(m_window);
    gone.m_hWnd = m_window;
    try {
        const CClientDC dc(&gone);
        ADD_FAILURE() << "a context of a destroyed window";
    } catch (CException* error) {
        EXPECT_TRUE(error->IsKindOf(RUNTIME_CLASS(CResourceException)));
        error->Delete();
    }
    gone.m_hWnd = nullptr;
}

} // namespace
