// SPDX-License-Identifier: MIT
// What one paint keeps shows after thousands.
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include <gtest/gtest.h>

#include "controls/ButtonXP.h"
#include "controls/ComboBoxXP.h"
#include "controls/ListCtrlStyled.h"
#include "decorations/HyperLink.h"
#include "decorations/ImageStatic.h"
#include "decorations/SoftBitmapButton.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/HeapCount.h"

using tint::ListStyle;

namespace {

/// A window with each control that draws itself.
class PaintedWindow : public CWnd {
public:
    PaintedWindow() {
        CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), "painted", WS_POPUP | WS_VISIBLE,
                 CRect(20, 20, 320, 220), nullptr, 0);
        constexpr DWORD shown = WS_CHILD | WS_VISIBLE;
        m_button.Create("Push", shown, CRect(0, 0, 60, 20), this, 1);
        m_bitmapButton.Create("", shown, CRect(0, 30, 60, 50), this, 2);
        m_bitmapButton.LoadBitmapStrip(301, 4);
        m_combo.Create(shown | CBS_DROPDOWN, CRect(0, 60, 60, 82), this, 3);
        m_list.Create(shown | LVS_REPORT | LVS_SHOWSELALWAYS, CRect(70, 0, 200, 80), this, 4);
        for (const int column : {0, 1})
            m_list.InsertColumn(column, "column", LVCFMT_LEFT, 50);
        m_list.InsertItem(0, "item");
        m_list.SetRowFlags(0, ListStyle::kBold);
        m_list.SetSelectedCellFlags(0, 1, ListStyle::kItalic);
        m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
        m_link.Create("Home", shown | SS_NOTIFY, CRect(0, 90, 60, 110), this, 5);
        m_picture.Create("", shown, CRect(70, 90, 130, 130), this, 6);
        m_picture.SetImage(nullptr); // shows a placeholder
    }
    ~PaintedWindow() override { DestroyWindow(); }

    CButtonXP m_button;
    CSoftBitmapButton m_bitmapButton;
    CComboBoxXP m_combo;
    CListCtrlStyled m_list;
    CHyperLink m_link;
    CImageStatic m_picture;
};

TEST(Painting, ThousandsOfPaintsKeepNothing) {
    PaintedWindow window;
    const struct {
        CWnd& control;
        int paints; ///< fewer of the list, which the system draws slowly
    } cases[] = {{window.m_button, 5000}, {window.m_bitmapButton, 5000}, {window.m_combo, 5000},
                 {window.m_list, 1000},   {window.m_link, 5000},         {window.m_picture, 5000}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.control.GetDlgCtrlID());
        const auto paint = [&](int times) {
            for (int i = 0; i < times; ++i)
                c.control.RedrawWindow(nullptr, nullptr,
                                       RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
            AfxGetThread()->OnIdle(1); // drops the framework's temporary objects
        };
        paint(10);
        const long long live = HeapCount::Now().live;
        {
            const GdiLedger ledger;
            paint(c.paints);
            EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
        }
        EXPECT_EQ(HeapCount::Now().live, live);
    }
}

// More often than there are handles, whoever makes the objects.
TEST(Painting, SeventyThousandPaintsOfAButtonLoseNothing) {
    PaintedWindow window;
    for (CButton* const button :
         {static_cast<CButton*>(&window.m_button), static_cast<CButton*>(&window.m_bitmapButton)}) {
        const Canvas canvas(40, 20);
        DRAWITEMSTRUCT item = {};
        item.hDC = canvas.dc();
        item.rcItem = {0, 0, 40, 20};
        for (int i = 0; i < 70000; ++i)
            button->DrawItem(&item);
        EXPECT_NE(canvas.At(0, 0), Canvas::kUntouched) << "the last paint was one, too";
        EXPECT_TRUE(CPen().CreatePen(PS_SOLID, 1, RGB(0, 0, 0)));
    }
}

} // namespace
