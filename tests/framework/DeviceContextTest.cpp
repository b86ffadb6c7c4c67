// SPDX-License-Identifier: MIT
#include "CallLog.h"
#include "PictureDC.h"
#include "Thrown.h"
#include "afx/CBrush.h"
#include "afx/CClientDC.h"
#include "afx/CFont.h"
#include "afx/CPaintDC.h"
#include "afx/CPalette.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"
#include "afx/CWindowDC.h"
#include "afx/CWnd.h"

#include <utility>

namespace {

using DeviceContextTest = TemporaryFreeTest;

// Holding

TEST_F(DeviceContextTest, DeletesWhatItHoldsUnlessDetached) {
    const HDC held = ::CreateCompatibleDC(nullptr);
    const HDC detached = ::CreateCompatibleDC(nullptr);
    {
        CDC dc, other;
        EXPECT_TRUE(dc.Attach(held));
        EXPECT_TRUE(dc.m_hDC == held && dc.m_hAttribDC == held && dc.GetSafeHdc() == held);
        EXPECT_EQ(&dc, CDC::FromHandle(held));
        other.Attach(detached);
        EXPECT_EQ(detached, other.Detach());
        EXPECT_TRUE(other.m_hDC == nullptr && other.m_hAttribDC == nullptr);
        EXPECT_EQ(nullptr, other.Detach());
        EXPECT_FALSE(other.DeleteDC());
    }
    EXPECT_EQ(0u, ::GetObjectType(held));
    CDC* const temporary = CDC::FromHandle(detached);
    ASSERT_NE(nullptr, temporary);
    EXPECT_TRUE(temporary->m_hDC == detached && temporary->m_hAttribDC == detached);
    EXPECT_EQ(temporary, CDC::FromHandle(detached));
    CDC::DeleteTempMap();
    EXPECT_EQ(static_cast<DWORD>(OBJ_MEMDC), ::GetObjectType(detached));
    ::DeleteDC(detached);
    EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
}

TEST_F(DeviceContextTest, CallsWithoutContextFailQuietly) {
    const CRect rect(0, 0, 4, 4);
    CRect box(rect);
    CBrush brush(red);
    CDC dc;
    EXPECT_FALSE(dc.Attach(nullptr) || dc.SaveDC() || dc.RestoreDC(-1) || dc.LineTo(3, 3));
    EXPECT_EQ(nullptr, dc.SelectObject(&brush));
    EXPECT_EQ(nullptr, dc.SelectStockObject(BLACK_PEN));
    EXPECT_EQ(nullptr, dc.GetCurrentFont());
    EXPECT_EQ(CLR_INVALID, dc.SetTextColor(red));
    EXPECT_EQ(CPoint(0, 0), dc.SetViewportOrg(3, 3));
    EXPECT_EQ(ERROR, dc.GetClipBox(&box));
    EXPECT_EQ(ERROR, dc.SelectClipRgn(nullptr));
    dc.FillSolidRect(rect, red);
    dc.Draw3dRect(rect, red, blue);
    EXPECT_EQ(CSize(0, 0), dc.TabbedTextOut(0, 0, CString("text"), 0, nullptr, 0));
    EXPECT_EQ(CSize(0, 0), dc.GetTextExtent(CString("text")));
}

// Selecting

TEST_F(DeviceContextTest, SelectingGivesTheFormerObject) {
    PictureDC dc(4, 4);
    CPen pen(PS_SOLID, 1, red);
    CBrush brush(green);
    CFont font;
    CBitmap other;
    CPalette palette;
    font.CreatePointFont(100, "Arial");
    other.CreateCompatibleBitmap(&dc, 2, 2);
    ASSERT_TRUE(palette.CreateHalftonePalette(&dc));

    CPen* const formerPen = dc.SelectObject(&pen);
    CBrush* const formerBrush = dc.SelectObject(&brush);
    CFont* const formerFont = dc.SelectObject(&font);
    CPalette* const formerPalette = dc.SelectPalette(&palette, FALSE);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), formerPen->m_hObject);
    EXPECT_EQ(&dc.m_bitmap, dc.GetCurrentBitmap());
    EXPECT_EQ(&dc.m_bitmap, dc.SelectObject(&other));
    EXPECT_TRUE(dc.GetCurrentPen() == &pen && dc.GetCurrentBrush() == &brush);
    EXPECT_TRUE(dc.GetCurrentFont() == &font && dc.GetCurrentPalette() == &palette);
    EXPECT_EQ(&pen, dc.SelectObject(formerPen));
    EXPECT_EQ(&brush, dc.SelectObject(formerBrush));
    EXPECT_EQ(&font, dc.SelectObject(formerFont));
    EXPECT_EQ(&other, dc.SelectObject(&dc.m_bitmap));
    EXPECT_EQ(&palette, dc.SelectPalette(formerPalette, FALSE));
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
    const std::pair<int, CRuntimeClass*> kinds[] = {{WHITE_PEN, RUNTIME_CLASS(CPen)},
                                                    {GRAY_BRUSH, RUNTIME_CLASS(CBrush)},
                                                    {DEFAULT_GUI_FONT, RUNTIME_CLASS(CFont)}};
    for (const auto& tested : kinds) {
        CGdiObject* const former = dc.SelectStockObject(tested.first);
        ASSERT_NE(nullptr, former) << tested.first;
        EXPECT_TRUE(former->IsKindOf(tested.second)) << tested.first;
        CGdiObject* const stock = dc.SelectObject(former);
        EXPECT_EQ(::GetStockObject(tested.first), stock->m_hObject);
    }
    EXPECT_EQ(nullptr, dc.SelectStockObject(-1));
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

    mutable CallLog m_log;

    BOOL PtVisible(int x, int y) const override { return m_log.Add("PtVisible", x, y), TRUE; }
    BOOL TextOut(int, int, LPCTSTR text, int count) override {
        return Note("TextOut", text, count);
    }
    BOOL ExtTextOut(int, int, UINT, LPCRECT, LPCTSTR text, UINT count, LPINT) override {
        return Note("ExtTextOut", text, static_cast<int>(count));
    }
    int DrawText(LPCTSTR text, int count, LPRECT, UINT) override {
        return Note("DrawText", text, count);
    }
    COLORREF SetBkColor(COLORREF colour) override { return m_log.Add("SetBkColor", colour), 0; }
    CPoint SetViewportOrg(int x, int y) override { return m_log.Add("Org", x, y), CPoint(); }
    CSize SetWindowExt(int x, int y) override { return m_log.Add("Ext", x, y), CSize(); }

private:
    int Note(const char* what, LPCTSTR text, int count) {
        return m_log.Add(what, std::string(text, static_cast<size_t>(count))), 1;
    }
};

TEST_F(DeviceContextTest, OverridesAreReachedThroughTheBase) {
    RecordingDC recorder;
    CDC& dc = recorder;
    CRect rect(0, 0, 8, 8);
    const CString text("abc");
    dc.PtVisible(CPoint(1, 2));
    dc.TextOut(0, 0, text);
    dc.ExtTextOut(0, 0, 0, rect, text, nullptr);
    dc.DrawText(text, rect, 0);
    dc.FillSolidRect(rect, red);
    dc.SetViewportOrg(CPoint(3, 4));
    dc.SetWindowExt(CSize(5, 6));
    EXPECT_EQ("PtVisible 1 2, TextOut abc, ExtTextOut abc, DrawText abc, SetBkColor 255, Org 3 4, "
              "Ext 5 6",
              recorder.m_log.Take());
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
    ExpectSetting(dc, &CDC::SetBkColor, &CDC::GetBkColor, red, blue);
    ExpectSetting(dc, &CDC::SetBkMode, &CDC::GetBkMode, TRANSPARENT, OPAQUE);
    ExpectSetting(dc, &CDC::SetROP2, &CDC::GetROP2, R2_NOT, R2_XORPEN);
    ExpectSetting(dc, &CDC::SetStretchBltMode, &CDC::GetStretchBltMode, HALFTONE, COLORONCOLOR);
    ExpectSetting(dc, &CDC::SetMapMode, &CDC::GetMapMode, MM_TWIPS, MM_TEXT);
    ExpectSetting<UINT>(dc, &CDC::SetTextAlign, &CDC::GetTextAlign, TA_RIGHT, TA_CENTER);
    ExpectSetting<DWORD>(dc, &CDC::SetLayout, &CDC::GetLayout, 8, 0);
    EXPECT_EQ(CPoint(0, 0), dc.SetBrushOrg(3, 4));
    EXPECT_EQ(CPoint(3, 4), dc.GetBrushOrg());
}

TEST_F(DeviceContextTest, MapsCoordinates) {
    PictureDC dc(4, 4);
    dc.SetMapMode(MM_ANISOTROPIC);
    EXPECT_EQ(CSize(1, 1), dc.SetWindowExt(10, 20));
    EXPECT_EQ(CSize(1, 1), dc.SetViewportExt(30, -20));
    EXPECT_EQ(CPoint(0, 0), dc.SetWindowOrg(5, 5));
    EXPECT_EQ(CPoint(0, 0), dc.SetViewportOrg(100, 200));

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

    EXPECT_EQ(::GetSystemMetrics(SM_CXSCREEN), CClientDC(nullptr).GetDeviceCaps(HORZRES));
    EXPECT_NE(nullptr, CWindowDC(nullptr).m_hDC);
}

TEST_F(WindowContextTest, PaintingValidatesWhatItPaints) {
    ::UpdateWindow(m_window);
    const CRect part(3, 4, 13, 14);
    ::InvalidateRect(m_window, part, FALSE);
    {
        CClientDC others(Window());
        others.ExcludeUpdateRgn(Window());
        EXPECT_FALSE(others.PtVisible(5, 5));
        EXPECT_TRUE(others.PtVisible(15, 5));
    }
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

TEST_F(WindowContextTest, DestroyedWindowThrows) {
    CWnd gone;
    gone.Attach(m_window);
    ::DestroyWindow(m_window);
    gone.m_hWnd = m_window;
    EXPECT_TRUE(Throws<CResourceException>([&] { CClientDC dc(&gone); }));
    gone.m_hWnd = nullptr;
}

} // namespace
