// SPDX-License-Identifier: MIT
// The control classes: that each member reaches its control, and that owner-draw controls draw,
// measure and compare through the virtual members.
#include <afxext.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

// ---- Standard members ---------------------------------------------------------------------------

TEST_F(Controls, Button) {
    CButton button;
    ASSERT_TRUE(button.Create("check", Visible | BS_AUTOCHECKBOX, Place, &m_parent, 5));
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    button.SetCheck(BST_CHECKED);
    EXPECT_EQ(button.GetCheck(), BST_CHECKED);
    button.SetState(TRUE);
    EXPECT_EQ(button.GetState() & (BST_PUSHED | BST_CHECKED),
              static_cast<UINT>(BST_PUSHED | BST_CHECKED));
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTOCHECKBOX));
    button.SetButtonStyle(BS_AUTO3STATE);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTO3STATE));
    const HICON icon = ::LoadIcon(nullptr, IDI_WARNING);
    button.ModifyStyle(0, BS_ICON);
    button.SetIcon(icon);
    EXPECT_EQ(button.GetIcon(), icon);
    EXPECT_EQ(button.SetIcon(nullptr), icon);
}

TEST_F(Controls, Static) {
    CStatic picture;
    ASSERT_TRUE(picture.Create(nullptr, Visible | SS_BITMAP, Place, &m_parent));
    EXPECT_EQ(picture.GetDlgCtrlID(), 0xFFFF);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(4, 4, 1, 1, nullptr));
    const auto handle = static_cast<HBITMAP>(bitmap.GetSafeHandle());
    EXPECT_EQ(picture.SetBitmap(handle), nullptr);
    EXPECT_EQ(picture.GetBitmap(), handle);
    EXPECT_EQ(picture.SetBitmap(nullptr), handle);
}

TEST_F(Controls, Edit) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(Visible | ES_MULTILINE | ES_AUTOVSCROLL, Place, &m_parent, 5));
    edit.SetWindowText("first\r\nsecond");
    EXPECT_EQ(edit.GetLineCount(), 2);
    EXPECT_EQ(edit.LineIndex(1), 7);
    EXPECT_EQ(edit.LineLength(7), 6);
    EXPECT_EQ(edit.LineFromChar(8), 1);
    char line[4] = {};
    EXPECT_EQ(edit.GetLine(1, line, 3), 3);
    EXPECT_STREQ(line, "sec");
    edit.SetSel(1, 3);
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(start, 1);
    EXPECT_EQ(end, 3);
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(1, 3)));
    edit.SetSel(static_cast<DWORD>(MAKELONG(0, -1)));
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(0, 13)));
    edit.ReplaceSel("new", TRUE);
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, "new");
    EXPECT_TRUE(edit.CanUndo());
    EXPECT_TRUE(edit.GetModify());
    edit.SetModify(FALSE);
    EXPECT_FALSE(edit.GetModify());
    EXPECT_TRUE(edit.SetReadOnly());
    EXPECT_TRUE((edit.GetStyle() & ES_READONLY) != 0);
    edit.SetLimitText(50);
    EXPECT_EQ(edit.GetLimitText(), 50U);
    edit.SetMargins(3, 4);
    EXPECT_EQ(edit.GetMargins(), static_cast<DWORD>(MAKELONG(3, 4)));
    const CPoint second = edit.PosFromChar(1);
    EXPECT_EQ(LOWORD(edit.CharFromPos(second)), 1);
}

TEST_F(Controls, ListBox) {
    CListBox list;
    ASSERT_TRUE(list.Create(Visible | LBS_EXTENDEDSEL, Place, &m_parent, 5));
    EXPECT_EQ(list.AddString("b"), 0);
    EXPECT_EQ(list.InsertString(0, "alpha"), 0);
    EXPECT_EQ(list.AddString("gamma"), 2);
    EXPECT_EQ(list.GetCount(), 3);
    CString text;
    list.GetText(2, text);
    EXPECT_EQ(text, "gamma");
    list.GetText(7, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(list.FindString(-1, "ga"), 2);
    EXPECT_EQ(list.FindStringExact(-1, "ga"), LB_ERR);
    EXPECT_NE(list.SetItemData(1, 77), LB_ERR);
    EXPECT_EQ(list.GetItemData(1), 77U);
    EXPECT_NE(list.SetItemDataPtr(2, &text), LB_ERR);
    EXPECT_EQ(list.GetItemDataPtr(2), &text);
    list.SelItemRange(TRUE, 1, 2);
    int selected[3] = {};
    EXPECT_EQ(list.GetSelCount(), 2);
    EXPECT_EQ(list.GetSelItems(3, selected), 2);
    EXPECT_EQ(selected[1], 2);
    list.SelItemRange(FALSE, 1, 2);
    EXPECT_EQ(list.GetSelCount(), 0);
    list.SetSel(0, TRUE);
    EXPECT_GT(list.GetSel(0), 0);
    CRect item;
    list.GetItemRect(1, &item);
    EXPECT_EQ(item.Height(), list.GetItemHeight(0));
    BOOL outside = TRUE;
    EXPECT_EQ(list.ItemFromPoint(item.CenterPoint(), outside), 1U);
    EXPECT_FALSE(outside);
    EXPECT_EQ(list.DeleteString(0), 2);
    list.ResetContent();
    EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(Controls, ComboBox) {
    CComboBox combo;
    ASSERT_TRUE(combo.Create(Visible | CBS_DROPDOWN, CRect(0, 0, 100, 100), &m_parent, 5));
    combo.AddString("one");
    combo.AddString("two");
    EXPECT_EQ(combo.SetCurSel(1), 1);
    EXPECT_EQ(combo.GetCurSel(), 1);
    CString text;
    combo.GetLBText(0, text);
    EXPECT_EQ(text, "one");
    EXPECT_EQ(combo.SelectString(-1, "o"), 0);
    combo.SetEditSel(1, 2);
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(MAKELONG(1, 2)));
    combo.SetDroppedWidth(150);
    EXPECT_EQ(combo.GetDroppedWidth(), 150);
    combo.ShowDropDown();
    EXPECT_TRUE(combo.GetDroppedState());
    combo.ShowDropDown(FALSE);
    EXPECT_FALSE(combo.GetDroppedState());
    COMBOBOXINFO info = {};
    EXPECT_TRUE(combo.GetComboBoxInfo(&info));
    EXPECT_EQ(info.hwndCombo, combo.m_hWnd);
    const int height = combo.GetItemHeight(-1);
    EXPECT_NE(combo.SetItemHeight(-1, static_cast<UINT>(height + 10)), CB_ERR);
    EXPECT_GT(combo.GetItemHeight(-1), height);
}

TEST_F(Controls, ScrollBar) {
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(Visible | SBS_HORZ, Place, &m_parent, 5));
    bar.SetScrollRange(0, 100);
    bar.SetScrollPos(40);
    EXPECT_EQ(bar.GetScrollPos(), 40);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    bar.SetScrollInfo(&info);
    EXPECT_EQ(bar.GetScrollLimit(), 90);
    EXPECT_TRUE(bar.GetScrollInfo(&info));
    EXPECT_EQ(info.nPos, 40);
    EXPECT_EQ(info.nMax, 100);
}

TEST_F(Controls, AWindowScrollsThroughItsOwnBars) {
    m_parent.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED);
    m_parent.SetScrollRange(SB_VERT, 0, 10);
    m_parent.SetScrollPos(SB_VERT, 4);
    EXPECT_EQ(m_parent.GetScrollPos(SB_VERT), 4);
    int first = 1;
    int last = 1;
    m_parent.GetScrollRange(SB_VERT, &first, &last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 10);
}

// ---- Owner-draw controls ------------------------------------------------------------------------

/// Notes the calls of its own virtual members.
template <class Base>
class Drawn : public Base {
public:
    std::vector<std::string> m_calls;
    void DrawItem(LPDRAWITEMSTRUCT item) override {
        m_calls.push_back("draw");
        EXPECT_EQ(item->hwndItem, this->m_hWnd);
        EXPECT_NE(item->hDC, nullptr);
    }
    bool Has(const char* call) const {
        for (const std::string& one : m_calls) {
            if (one == call) {
                return true;
            }
        }
        return false;
    }
};

template <class Base>
class DrawnList : public Drawn<Base> {
public:
    void MeasureItem(LPMEASUREITEMSTRUCT item) override {
        this->m_calls.push_back("measure");
        item->itemHeight = 23;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT item) override {
        this->m_calls.push_back("compare");
        return item->itemData1 < item->itemData2 ? -1 : item->itemData1 > item->itemData2 ? 1 : 0;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { this->m_calls.push_back("delete"); }
};

TEST_F(Controls, OwnerDrawButtonsAndStatics) {
    Drawn<CButton> button;
    ASSERT_TRUE(button.Create("b", Visible | BS_OWNERDRAW, Place, &m_parent, 5));
    button.RedrawWindow();
    EXPECT_TRUE(button.Has("draw"));
    Drawn<CStatic> label;
    ASSERT_TRUE(label.Create("s", Visible | SS_OWNERDRAW, Place, &m_parent, 6));
    button.ShowWindow(SW_HIDE);
    label.RedrawWindow();
    EXPECT_TRUE(label.Has("draw"));
}

TEST_F(Controls, OwnerDrawListBox) {
    DrawnList<CListBox> list;
    ASSERT_TRUE(list.Create(Visible | LBS_OWNERDRAWVARIABLE | LBS_SORT, Place, &m_parent, 5));
    for (const DWORD_PTR data : {30, 10, 20}) {
        list.AddString(reinterpret_cast<LPCTSTR>(data));
    }
    EXPECT_EQ(list.GetItemData(0), 10U);
    EXPECT_EQ(list.GetItemData(2), 30U);
    EXPECT_EQ(list.GetItemHeight(1), 23);
    list.RedrawWindow();
    list.DeleteString(0);
    for (const char* const call : {"measure", "compare", "draw", "delete"}) {
        EXPECT_TRUE(list.Has(call)) << call;
    }
}

TEST_F(Controls, OwnerDrawComboBox) {
    DrawnList<CComboBox> combo;
    ASSERT_TRUE(combo.Create(Visible | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_SORT,
                             CRect(0, 0, 100, 100), &m_parent, 5));
    for (const DWORD_PTR data : {30, 10}) {
        combo.AddString(reinterpret_cast<LPCTSTR>(data));
    }
    EXPECT_EQ(combo.GetItemData(0), 10U);
    EXPECT_EQ(combo.GetItemHeight(0), 23);
    combo.SetCurSel(0);
    combo.RedrawWindow();
    combo.DeleteString(1);
    for (const char* const call : {"measure", "compare", "draw", "delete"}) {
        EXPECT_TRUE(combo.Has(call)) << call;
    }
}

TEST_F(Controls, TheKeysOfAnOwnerDrawListBox) {
    class KeyList : public CListBox {
    public:
        UINT m_key = 0;
        UINT m_char = 0;
        int VKeyToItem(UINT key, UINT index) override {
            EXPECT_EQ(index, 0U);
            m_key = key;
            return 1; // the item to go to
        }
        int CharToItem(UINT key, UINT) override {
            m_char = key;
            return -2;
        }
    } list;
    ASSERT_TRUE(
        list.Create(Visible | LBS_OWNERDRAWFIXED | LBS_WANTKEYBOARDINPUT, Place, &m_parent, 5));
    list.AddString("a");
    list.AddString("b");
    list.SetCurSel(0);
    list.SendMessage(WM_KEYDOWN, VK_F5);
    EXPECT_EQ(list.m_key, static_cast<UINT>(VK_F5));
    EXPECT_EQ(list.GetCurSel(), 1);
    list.SendMessage(WM_CHAR, 'x');
    EXPECT_EQ(list.m_char, static_cast<UINT>('x'));
}

// ---- Bitmap buttons -----------------------------------------------------------------------------

/// A bitmap button with bitmaps of one colour each, made without resources.
class ColourButton : public CBitmapButton {
public:
    void Fill(bool sel, bool focus, bool disabled) {
        Make(m_bitmap, RGB(255, 0, 0));
        if (sel) {
            Make(m_bitmapSel, RGB(0, 255, 0));
        }
        if (focus) {
            Make(m_bitmapFocus, RGB(0, 0, 255));
        }
        if (disabled) {
            Make(m_bitmapDisabled, RGB(255, 255, 0));
        }
    }

private:
    static void Make(CBitmap& bitmap, COLORREF colour) {
        const std::vector<DWORD> pixels(16 * 8, (GetRValue(colour) << 16) |
                                                    (GetGValue(colour) << 8) | GetBValue(colour));
        ASSERT_TRUE(bitmap.CreateBitmap(16, 8, 1, 32, pixels.data()));
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
    CClientDC screen(&m_parent);
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(&screen));
    CBitmap canvas;
    ASSERT_TRUE(canvas.CreateBitmap(30, 20, 1, 32, nullptr));
    CBitmap* const previous = memory.SelectObject(&canvas);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.state);
        memory.FillSolidRect(CRect(0, 0, 30, 20), RGB(1, 2, 3));
        DRAWITEMSTRUCT item = {};
        item.itemState = row.state;
        item.hDC = memory.m_hDC;
        item.rcItem = CRect(4, 5, 20, 13);
        row.button.DrawItem(&item);
        EXPECT_EQ(memory.GetPixel(4, 5), row.colour);
        EXPECT_EQ(memory.GetPixel(19, 12), row.colour);
        EXPECT_EQ(memory.GetPixel(20, 13), RGB(1, 2, 3));
        EXPECT_EQ(memory.GetPixel(3, 4), RGB(1, 2, 3));
    }
    memory.SelectObject(previous);
    all.SizeToContent();
    CRect size;
    all.GetWindowRect(&size);
    EXPECT_EQ(size.Size(), CSize(16, 8));
}

TEST_F(Controls, BitmapButtonsWithoutBitmaps) {
    CBitmapButton button;
    ASSERT_TRUE(button.Create("NONE", Visible | BS_OWNERDRAW, Place, &m_parent, 5));
    EXPECT_FALSE(button.LoadBitmaps("there is no such bitmap"));
    EXPECT_FALSE(button.LoadBitmaps(4711, 4712));
    EXPECT_FALSE(button.AutoLoad(5, &m_parent));
    button.SizeToContent();
    CRect size;
    button.GetWindowRect(&size);
    EXPECT_EQ(size.Size(), Place.Size());
    button.RedrawWindow();
}

} // namespace
