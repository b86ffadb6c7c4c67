// SPDX-License-Identifier: MIT
// More paints than there are handles, for the owner-drawn buttons; the other controls' own tests
// have theirs.
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include <gtest/gtest.h>

#include "controls/ButtonXP.h"
#include "decorations/SoftBitmapButton.h"
#include "gallery/resource.h"
#include "tests/support/Canvas.h"
#include "tests/support/DialogTemplate.h"

namespace {

class PaintedDialog : public CDialog {
public:
    PaintedDialog() {
        m_template.Add("BUTTON", "Push", 101, BS_PUSHBUTTON, 10, 30, 60, 16)
            .Add("BUTTON", "Play", 102, BS_PUSHBUTTON, 80, 30, 20, 20);
        CreateIndirect(m_template.Get(), nullptr);
    }
    ~PaintedDialog() override { DestroyWindow(); }

    CButtonXP m_button;
    CSoftBitmapButton m_bitmapButton;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, 101, m_button);
        DDX_Control(exchange, 102, m_bitmapButton);
    }

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        return m_bitmapButton.LoadBitmapStrip(IDB_STRIP_4, 4);
    }

private:
    DialogTemplate m_template{"Painting", 200, 120};
};

TEST(Painting, SeventyThousandPaintsOfAButtonLoseNothing) {
    PaintedDialog dialog;
    for (CButton* const button :
         {static_cast<CButton*>(&dialog.m_button), static_cast<CButton*>(&dialog.m_bitmapButton)}) {
        const Canvas canvas(40, 20);
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.hwndItem = button->m_hWnd;
        item.hDC = canvas.dc();
        item.rcItem = {0, 0, 40, 20};
        for (int i = 0; i < 70000; ++i)
            button->DrawItem(&item);
        const HPEN pen = ::CreatePen(PS_SOLID, 1, 0);
        EXPECT_NE(pen, nullptr);
        ::DeleteObject(pen);
        EXPECT_NE(canvas.At(20, 1), Canvas::kUntouched) << "the last paint was one, too";
    }
}

} // namespace
