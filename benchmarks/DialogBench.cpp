// SPDX-License-Identifier: MIT
#include "benchmarks/DialogBench.h"

#include <array>
#include <memory>

#include "benchmarks/BenchHost.h"
#include "benchmarks/resource.h"
#include "controls/ButtonXP.h"
#include "controls/ComboBoxXP.h"
#include "controls/ListCtrlStyled.h"
#include "decorations/HyperLink.h"
#include "decorations/ImageStatic.h"
#include "decorations/SoftBitmapButton.h"

namespace {

constexpr DWORD kVisible = WS_CHILD | WS_VISIBLE;
constexpr int kRows = 20;
constexpr int kColumns = 4;
constexpr int kFieldHeight = 22; ///< of a closed combo box

/// The same controls in the same places, of one kind or the other.
template <class Button, class Combo, class List, class Link, class PictureButton, class Picture>
struct Controls {
    BenchHost host{CSize(480, 360)};
    std::array<Button, 6> buttons;
    std::array<Combo, 3> combos;
    List list;
    std::array<Link, 3> links;
    PictureButton pictureButton;
    Picture picture;

    /// @param comboHeight  the system's own takes that of the open list
    explicit Controls(int comboHeight) {
        UINT id = 100;
        for (int i = 0; i < 6; ++i)
            buttons[i].Create("Caption", kVisible | BS_PUSHBUTTON, At(380, 10 + 30 * i, 90, 24),
                              &host, id++);
        for (int i = 0; i < 3; ++i) {
            combos[i].Create(kVisible | CBS_DROPDOWNLIST, At(10 + 120 * i, 10, 110, comboHeight),
                             &host, id++);
            combos[i].AddString("Text");
            combos[i].SetCurSel(0);
        }
        list.Create(kVisible | WS_BORDER | LVS_REPORT, At(10, 40, 350, 240), &host, id++);
        FillList();
        for (int i = 0; i < 3; ++i)
            links[i].Create("Read more about this", kVisible, At(10 + 120 * i, 290, 110, 16),
                            &host);
        pictureButton.Create("", kVisible | BS_BITMAP, At(380, 200, 32, 32), &host, id++);
        picture.Create("", kVisible | SS_BITMAP, At(380, 250, 80, 52), &host);
        for (CWnd* child = host.GetWindow(GW_CHILD); child; child = child->GetNextWindow())
            child->SetFont(DialogFont());
    }

private:
    static CRect At(int left, int top, int width, int height) {
        return {CPoint(left, top), CSize(width, height)};
    }

    void FillList() {
        for (int column = 0; column < kColumns; ++column)
            list.InsertColumn(column, "Caption", LVCFMT_LEFT, 80);
        for (int row = 0; row < kRows; ++row) {
            list.InsertItem(row, "Item");
            for (int column = 1; column < kColumns; ++column)
                list.SetItemText(row, column, "Text");
        }
    }
};

struct SkinnedDialog : Controls<CButtonXP, CComboBoxXP, CListCtrlStyled, CHyperLink,
                                CSoftBitmapButton, CImageStatic> {
    SkinnedDialog() : Controls(kFieldHeight) {
        pictureButton.LoadBitmapStrip(IDB_BENCH_STRIP, 4);
        picture.SetImage(BesideBench("landscape.png"));
        for (int row = 0; row < kRows; row += 3)
            list.SetRowBackColor(row, RGB(255, 246, 214));
        for (int row = 0; row < kRows; row += 3)
            list.SetRowFlags(row, tint::ListStyle::kHasBackColor);
    }
};

struct SystemDialog : Controls<CButton, CComboBox, CListCtrl, CStatic, CButton, CStatic> {
    CBitmap frame;
    CBitmap landscape;

    SystemDialog() : Controls(120) {
        frame.LoadBitmap(IDB_BENCH_FRAME);
        landscape.LoadBitmap(IDB_BENCH_PICTURE);
        pictureButton.SetBitmap(static_cast<HBITMAP>(frame.GetSafeHandle()));
        picture.SetBitmap(static_cast<HBITMAP>(landscape.GetSafeHandle()));
    }
};

} // namespace

std::vector<Row> BenchDialog() {
    // One over the other would clip it: both are on top while they are measured.
    const auto skinned = std::make_unique<SkinnedDialog>();
    const auto system = std::make_unique<SystemDialog>();
    system->host.SetWindowPos(nullptr, 520, 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    return Compare("repaint a dialog of 15 controls",
                   {{"all of TintKit's", [&] { skinned->host.RepaintAll(); }},
                    {"all of the system's own", [&] { system->host.RepaintAll(); }}},
                   10);
}
