// SPDX-License-Identifier: MIT
#include "PictureDC.h"
#include "Thrown.h"
#include "afx/CBrush.h"
#include "afx/CClientDC.h"
#include "afx/CFont.h"
#include "afx/CPaintDC.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"
#include "afx/CWnd.h"

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

// Selecting

TEST_F(DeviceContextTest, SelectingGivesTheFormerObject) {
    PictureDC dc(4, 4);
    CPen pen(PS_SOLID, 1, red);
    CBrush brush(green);
    CFont font;
    CBitmap other;
    font.CreateFont(-13, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    other.CreateCompatibleBitmap(&dc, 2, 2);

    CPen* const formerPen = dc.SelectObject(&pen);
    CBrush* const formerBrush = dc.SelectObject(&brush);
    CFont* const formerFont = dc.SelectObject(&font);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), formerPen->m_hObject);
    EXPECT_EQ(&dc.m_bitmap, dc.GetCurrentBitmap());
    EXPECT_EQ(&dc.m_bitmap, dc.SelectObject(&other));
    EXPECT_TRUE(dc.GetCurrentPen() == &pen && dc.GetCurrentBrush() == &brush);
    EXPECT_EQ(&font, dc.GetCurrentFont());
    EXPECT_EQ(&pen, dc.SelectObject(formerPen));
    EXPECT_EQ(&brush, dc.SelectObject(formerBrush));
    EXPECT_EQ(&font, dc.SelectObject(formerFont));
    EXPECT_EQ(&other, dc.SelectObject(&dc.m_bitmap));
    EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CPen*>(nullptr)));

    CGdiObject* const former = dc.SelectObject(static_cast<CGdiObject*>(&pen));
    EXPECT_TRUE(former->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(&pen, dc.SelectStockObject(WHITE_PEN));
    EXPECT_EQ(nullptr, dc.SelectStockObject(-1));
    CRgn region;
    region.CreateRectRgn(1, 1, 3, 3);
    EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CGdiObject*>(&region)));
    CRect box;
    EXPECT_EQ(SIMPLEREGION, dc.GetClipBox(&box));
    EXPECT_EQ(CRect(1, 1, 3, 3), box);
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
    font.CreateFont(-40, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    CFont* const former = both.SelectObject(&font);
    EXPECT_EQ(&font, output.GetCurrentFont());
    EXPECT_EQ(&font, attributes.GetCurrentFont());
    both.SelectObject(former);

    both.MoveTo(1, 1);
    EXPECT_TRUE(both.LineTo(4, 1));
    EXPECT_EQ(CPoint(4, 1), both.MoveTo(0, 0)) << "where the line ended";
    EXPECT_EQ(".???....", Row(output, 1, 8));
    EXPECT_EQ("........", Row(attributes, 1, 8)) << "nothing is drawn there";

    const int state = both.SaveDC();
    both.SetBkColor(red);
    EXPECT_TRUE(both.RestoreDC(state));
    EXPECT_EQ(white, output.GetBkColor());
    EXPECT_EQ(white, attributes.GetBkColor());
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

TEST_F(WindowContextTest, DestroyedWindowThrows) {
    CWnd gone;
    gone.Attach(m_window);
    ::DestroyWindow(m_window);
    gone.m_hWnd = m_window;
    EXPECT_TRUE(Throws<CResourceException>([&] { CClientDC dc(&gone); }));
    gone.m_hWnd = nullptr;
}

} // namespace
