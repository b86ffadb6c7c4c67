// SPDX-License-Identifier: MIT
// The control classes: that owner-draw controls draw, measure and compare through the virtual
// members, which bitmap a bitmap button shows, and what list views and image lists keep.
#include <afxcmn.h>
#include <afxext.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/support/Canvas.h"

namespace {

class Controls : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_parent.CreateEx(0, nullptr, "parent", WS_POPUP | WS_VISIBLE,
                                      CRect(0, 0, 300, 200), nullptr, 0));
    }
    void TearDown() override { m_parent.DestroyWindow(); }

    CWnd m_parent;
};

const DWORD Visible = WS_CHILD | WS_VISIBLE;
const CRect Place(10, 10, 110, 60);

// ---- Common controls ----------------------------------------------------------------------------

TEST_F(Controls, ListView) {
    CListCtrl list;
    ASSERT_TRUE(list.Create(Visible | LVS_REPORT, Place, &m_parent, 5));
    list.InsertColumn(0, "left");
    list.InsertColumn(1, "right", LVCFMT_RIGHT, 30);
    LVCOLUMN column = {};
    column.mask = LVCF_FMT | LVCF_WIDTH;
    list.SendMessage(LVM_GETCOLUMN, 1, reinterpret_cast<LPARAM>(&column));
    EXPECT_TRUE((column.fmt & LVCFMT_JUSTIFYMASK) == LVCFMT_RIGHT && column.cx == 30);
    int order[] = {1, 0};
    list.SetColumnOrderArray(2, order);
    int found[2] = {};
    EXPECT_TRUE(list.GetColumnOrderArray(found));
    EXPECT_EQ(found[0], 1);
    EXPECT_EQ(list.GetHeaderCtrl()->GetItemCount(), 2);

    const CString text(std::string(300, 'x').c_str());
    for (int i = 0; i < 3; ++i)
        list.InsertItem(LVIF_TEXT | LVIF_PARAM, i, i == 1 ? text : "b", 0, 0, 0, 10 + i);
    EXPECT_EQ(list.GetItemText(1, 0), text);
    list.SetItemText(2, 1, "sub");
    EXPECT_EQ(list.GetItemText(2, 1), "sub");
    EXPECT_TRUE(list.GetItemText(2, 7).IsEmpty());
    list.SetItemData(1, 77);
    EXPECT_EQ(list.GetItemData(1), 77U);
    for (const int i : {0, 2})
        list.SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(list.GetSelectedCount(), 2U);
    CRect bounds;
    EXPECT_TRUE(list.GetItemRect(1, &bounds, LVIR_LABEL));
    EXPECT_EQ(list.HitTest(bounds.TopLeft() + CSize(2, 2)), 1);
}

TEST_F(Controls, ImageList) {
    HIMAGELIST handle = nullptr;
    {
        CImageList images;
        ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 0, 1));
        handle = images;
        EXPECT_EQ(CImageList::FromHandle(handle), &images);
        EXPECT_EQ(images.Add(::LoadIcon(nullptr, IDI_APPLICATION)), 0);
        EXPECT_EQ(images.GetImageCount(), 1);
        EXPECT_TRUE(images.Detach() == handle && images.GetSafeHandle() == nullptr);
        EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
        EXPECT_EQ(CImageList::FromHandle(handle)->GetImageCount(), 1);
        CImageList::DeleteTempMap(); // leaves the list itself alone
        EXPECT_EQ(::ImageList_GetImageCount(handle), 1);
        images.Attach(handle);
    }
    EXPECT_EQ(::ImageList_GetImageCount(handle), 0) << "destroyed with its object";
}

// ---- Owner-draw controls ------------------------------------------------------------------------

/// Notes the calls of its own virtual members.
template <class Base>
class Drawn : public Base {
public:
    std::set<std::string> m_calls;
    void DrawItem(LPDRAWITEMSTRUCT item) override {
        m_calls.insert("draw");
        EXPECT_EQ(item->hwndItem, this->m_hWnd);
        EXPECT_NE(item->hDC, nullptr);
    }
};

template <class Base>
class DrawnList : public Drawn<Base> {
public:
    void MeasureItem(LPMEASUREITEMSTRUCT item) override {
        this->m_calls.insert("measure");
        item->itemHeight = 23;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT item) override {
        this->m_calls.insert("compare");
        return item->itemData1 < item->itemData2 ? -1 : item->itemData1 > item->itemData2 ? 1 : 0;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { this->m_calls.insert("delete"); }

    void ExpectSortedAndDrawn() {
        for (const DWORD_PTR data : {30, 10, 20})
            this->AddString(reinterpret_cast<LPCTSTR>(data));
        const bool isList = std::is_base_of_v<CListBox, Base>;
        const auto ask = [this](UINT message, WPARAM index) {
            return this->SendMessage(message, index);
        };
        EXPECT_EQ(ask(isList ? LB_GETITEMDATA : CB_GETITEMDATA, 0), 10);
        EXPECT_EQ(ask(isList ? LB_GETITEMDATA : CB_GETITEMDATA, 2), 30);
        EXPECT_EQ(ask(isList ? LB_GETITEMHEIGHT : CB_GETITEMHEIGHT, 0), 23);
        this->SetCurSel(0);
        this->RedrawWindow();
        ask(isList ? LB_DELETESTRING : CB_DELETESTRING, 1);
        EXPECT_EQ(this->m_calls, (std::set<std::string>{"measure", "compare", "draw", "delete"}));
    }
};

TEST_F(Controls, OwnerDrawMembersAreReached) {
    Drawn<CButton> button;
    ASSERT_TRUE(button.Create("b", Visible | BS_OWNERDRAW, Place, &m_parent, 5));
    button.RedrawWindow();
    EXPECT_EQ(button.m_calls.count("draw"), 1U);
    button.DestroyWindow();
    DrawnList<CListBox> list;
    ASSERT_TRUE(list.Create(Visible | LBS_OWNERDRAWVARIABLE | LBS_SORT, Place, &m_parent, 7));
    list.ExpectSortedAndDrawn();
    list.DestroyWindow();
    DrawnList<CComboBox> combo;
    const DWORD style = Visible | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_SORT;
    ASSERT_TRUE(combo.Create(style, CRect(0, 0, 100, 100), &m_parent, 8));
    combo.ExpectSortedAndDrawn();
}

// ---- Bitmap buttons -----------------------------------------------------------------------------

/// A bitmap button with bitmaps of one colour each, made without resources.
class ColourButton : public CBitmapButton {
public:
    void Fill(bool sel, bool focus, bool disabled) {
        Make(true, m_bitmap, RGB(255, 0, 0));
        Make(sel, m_bitmapSel, RGB(0, 255, 0));
        Make(focus, m_bitmapFocus, RGB(0, 0, 255));
        Make(disabled, m_bitmapDisabled, RGB(255, 255, 0));
    }

private:
    static void Make(bool wanted, CBitmap& bitmap, COLORREF colour) {
        const std::vector<DWORD> pixels(
            16 * 8, RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour)));
        EXPECT_EQ(wanted && bitmap.CreateBitmap(16, 8, 1, 32, pixels.data()), wanted);
    }
};

TEST_F(Controls, BitmapButtonStates) {
    ColourButton all;
    ASSERT_TRUE(all.Create("", Visible | WS_TABSTOP | BS_OWNERDRAW, Place, &m_parent, 5));
    all.Fill(true, true, true);
    ColourButton one;
    ASSERT_TRUE(one.Create("", Visible | BS_OWNERDRAW, Place, &m_parent, 6));
    one.Fill(false, false, false);
    ColourButton focusWithoutTab;
    ASSERT_TRUE(focusWithoutTab.Create("", Visible | BS_OWNERDRAW, Place, &m_parent, 7));
    focusWithoutTab.Fill(false, true, false);
    CBitmapButton none;
    ASSERT_TRUE(none.Create("NONE", Visible | BS_OWNERDRAW, Place, &m_parent, 8));
    const struct {
        ColourButton& button;
        UINT state;
        COLORREF colour;
    } rows[] = {
        {all, 0, RGB(255, 0, 0)},
        {all, ODS_SELECTED | ODS_FOCUS, RGB(0, 255, 0)},
        {all, ODS_FOCUS, RGB(0, 0, 255)},
        {all, ODS_DISABLED, RGB(255, 255, 0)},
        {one, ODS_SELECTED, RGB(255, 0, 0)},
        {one, ODS_FOCUS, RGB(255, 0, 0)},
        {one, ODS_DISABLED, RGB(255, 0, 0)},
        {focusWithoutTab, ODS_FOCUS, RGB(255, 0, 0)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.state);
        const Canvas canvas(30, 20);
        DRAWITEMSTRUCT item = {};
        item.itemState = row.state;
        item.hDC = canvas.dc();
        item.rcItem = CRect(4, 5, 20, 13);
        row.button.DrawItem(&item);
        EXPECT_EQ(canvas.Count(row.colour, item.rcItem), 16 * 8);
        EXPECT_EQ(canvas.Count(Canvas::kUntouched, CRect(0, 0, 30, 20)), 30 * 20 - 16 * 8);
    }
    for (CBitmapButton* const button : {static_cast<CBitmapButton*>(&all), &none}) {
        button->SizeToContent();
        CRect size;
        button->GetWindowRect(&size);
        EXPECT_EQ(size.Size(), button == &all ? CSize(16, 8) : Place.Size());
    }
    EXPECT_FALSE(none.LoadBitmaps("there is no such bitmap"));
    none.RedrawWindow();
}

} // namespace
