// SPDX-License-Identifier: MIT
#include "afx/CBitmap.h"
#include "afx/CMenu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using LabelList = std::vector<std::string>;

const UINT missing = 0xFFFFFFFF;

enum Command : UINT { open = 100, save, quit, absent = 999 };

/// A popup menu: Open, Save, a separator, Quit.
class MenuTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_menu.CreatePopupMenu());
        ASSERT_TRUE(m_menu.AppendMenu(MF_STRING, open, "&Open\tCtrl+O"));
        ASSERT_TRUE(m_menu.AppendMenu(MF_STRING | MF_GRAYED, save, "&Save"));
        ASSERT_TRUE(m_menu.AppendMenu(MF_SEPARATOR));
        ASSERT_TRUE(m_menu.AppendMenu(MF_STRING | MF_CHECKED, quit, "&Quit"));
    }
    void TearDown() override { CMenu::DeleteTempMap(); }

    CString Label(UINT position) const {
        CString label("unchanged");
        m_menu.GetMenuString(position, label, MF_BYPOSITION);
        return label;
    }

    LabelList Labels() const {
        LabelList labels;
        for (UINT position = 0; position < m_menu.GetMenuItemCount(); ++position) {
            labels.push_back(Label(position).GetString());
        }
        return labels;
    }

    CMenu m_menu;
};

// Holding

TEST_F(MenuTest, DestroysWhatItHolds) {
    HMENU handle = nullptr;
    {
        CMenu menu;
        EXPECT_EQ(nullptr, menu.GetSafeHmenu());
        ASSERT_TRUE(menu.CreateMenu());
        handle = menu.m_hMenu;
        EXPECT_EQ(handle, menu.GetSafeHmenu());
        EXPECT_EQ(handle, static_cast<HMENU>(menu));
        EXPECT_EQ(&menu, CMenu::FromHandle(handle));
        EXPECT_TRUE(menu == *CMenu::FromHandle(handle));
        EXPECT_TRUE(menu != m_menu);
    }
    EXPECT_FALSE(::IsMenu(handle));
    EXPECT_TRUE(m_menu.DestroyMenu());
    EXPECT_EQ(nullptr, m_menu.m_hMenu);
    EXPECT_FALSE(m_menu.DestroyMenu());
}

TEST_F(MenuTest, DetachedMenuOutlivesTheObject) {
    HMENU handle = nullptr;
    {
        CMenu menu;
        menu.CreatePopupMenu();
        handle = menu.Detach();
        EXPECT_EQ(nullptr, menu.Detach());
    }
    EXPECT_TRUE(::IsMenu(handle));
    CMenu other;
    EXPECT_TRUE(other.Attach(handle));
    EXPECT_FALSE(CMenu().Attach(nullptr));
}

TEST_F(MenuTest, TemporaryObjectSparesTheMenu) {
    const HMENU handle = ::CreatePopupMenu();
    CMenu* const temporary = CMenu::FromHandle(handle);
    ASSERT_NE(nullptr, temporary);
    EXPECT_EQ(temporary, CMenu::FromHandle(handle));
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(handle));
    ::DestroyMenu(handle);
    EXPECT_EQ(nullptr, CMenu::FromHandle(nullptr));
}

TEST_F(MenuTest, LoadsTemplates) {
#pragma pack(push, 1)
    const struct {
        MENUITEMTEMPLATEHEADER header;
        WORD option;
        WORD id;
        wchar_t text[3];
    } description = {{0, 0}, MF_END, open, L"Go"};
#pragma pack(pop)
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenuIndirect(&description));
    EXPECT_EQ(1u, menu.GetMenuItemCount());
    EXPECT_EQ(static_cast<UINT>(open), menu.GetMenuItemID(0));
    CMenu none;
    EXPECT_FALSE(none.LoadMenu(static_cast<UINT>(0x7FF0)));
    EXPECT_FALSE(none.LoadMenu("NoSuchMenu"));
    EXPECT_EQ(nullptr, none.m_hMenu);
}

TEST_F(MenuTest, CallsWithoutMenuFailQuietly) {
    MENUITEMINFO item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_ID;
    CString text("unchanged");
    char buffer[8] = "";
    CMenu menu;
    EXPECT_FALSE(menu.AppendMenu(MF_STRING, 1, "x"));
    EXPECT_FALSE(menu.InsertMenu(0, MF_STRING, 1, "x"));
    EXPECT_FALSE(menu.InsertMenuItem(0, &item, TRUE));
    EXPECT_FALSE(menu.ModifyMenu(0, MF_STRING, 1, "x"));
    EXPECT_FALSE(menu.RemoveMenu(0, MF_BYPOSITION));
    EXPECT_EQ(missing, menu.CheckMenuItem(1, MF_CHECKED));
    EXPECT_EQ(missing, menu.EnableMenuItem(1, MF_GRAYED));
    EXPECT_FALSE(menu.SetDefaultItem(1));
    EXPECT_EQ(missing, menu.GetDefaultItem(0));
    EXPECT_EQ(missing, menu.GetMenuItemCount());
    EXPECT_EQ(missing, menu.GetMenuItemID(0));
    EXPECT_EQ(missing, menu.GetMenuState(0, MF_BYPOSITION));
    EXPECT_FALSE(menu.GetMenuItemInfo(1, &item));
    EXPECT_EQ(0, menu.GetMenuString(1, buffer, sizeof buffer, MF_BYCOMMAND));
    EXPECT_EQ(0, menu.GetMenuString(1, text, MF_BYCOMMAND));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(nullptr, menu.GetSubMenu(0));
    EXPECT_FALSE(menu.TrackPopupMenu(0, 0, 0, nullptr));
    EXPECT_FALSE(menu.TrackPopupMenuEx(0, 0, 0, nullptr, nullptr));
}

// Items

TEST_F(MenuTest, InsertsChangesAndTakesOut) {
    EXPECT_EQ((LabelList{"&Open\tCtrl+O", "&Save", "", "&Quit"}), Labels());
    EXPECT_TRUE(m_menu.InsertMenu(save, MF_BYCOMMAND | MF_STRING, 110, "&New"));
    EXPECT_TRUE(m_menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 111, "&First"));
    EXPECT_EQ((LabelList{"&First", "&Open\tCtrl+O", "&New", "&Save", "", "&Quit"}), Labels());
    EXPECT_TRUE(m_menu.ModifyMenu(110, MF_BYCOMMAND | MF_STRING, 112, "&Newer"));
    EXPECT_EQ(112u, m_menu.GetMenuItemID(2));
    EXPECT_TRUE(m_menu.DeleteMenu(0, MF_BYPOSITION));
    EXPECT_TRUE(m_menu.RemoveMenu(112, MF_BYCOMMAND));
    EXPECT_FALSE(m_menu.RemoveMenu(112, MF_BYCOMMAND));

    MENUITEMINFO item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_ID | MIIM_STRING | MIIM_DATA;
    item.wID = 113;
    char label[] = "&Last";
    item.dwTypeData = label;
    item.dwItemData = 0x123456789;
    EXPECT_TRUE(m_menu.InsertMenuItem(4, &item, TRUE));
    EXPECT_EQ((LabelList{"&Open\tCtrl+O", "&Save", "", "&Quit", "&Last"}), Labels());

    MENUITEMINFO read = {};
    read.cbSize = sizeof read;
    read.fMask = MIIM_DATA;
    EXPECT_TRUE(m_menu.GetMenuItemInfo(113, &read));
    EXPECT_EQ(0x123456789u, read.dwItemData);
    read.dwItemData = 7;
    EXPECT_TRUE(m_menu.SetMenuItemInfo(4, &read, TRUE));
    read.dwItemData = 0;
    EXPECT_TRUE(m_menu.GetMenuItemInfo(4, &read, TRUE));
    EXPECT_EQ(7u, read.dwItemData);
    EXPECT_FALSE(m_menu.GetMenuItemInfo(absent, &read));
}

TEST_F(MenuTest, ReadsLabels) {
    char buffer[8] = "xxxxxxx";
    EXPECT_EQ(7, m_menu.GetMenuString(open, buffer, sizeof buffer, MF_BYCOMMAND));
    EXPECT_STREQ("&Open\tC", buffer) << "cut to the buffer";
    EXPECT_EQ(5, m_menu.GetMenuString(3, buffer, sizeof buffer, MF_BYPOSITION));
    EXPECT_STREQ("&Quit", buffer);
    CString label("unchanged");
    EXPECT_EQ(12, m_menu.GetMenuString(open, label, MF_BYCOMMAND));
    EXPECT_EQ(CString("&Open\tCtrl+O"), label);
    EXPECT_EQ(0, m_menu.GetMenuString(absent, label, MF_BYCOMMAND));
    EXPECT_TRUE(label.IsEmpty());

    const CString longLabel('x', 3000);
    m_menu.ModifyMenu(save, MF_BYCOMMAND | MF_STRING, save, longLabel);
    EXPECT_EQ(3000, m_menu.GetMenuString(save, label, MF_BYCOMMAND));
    EXPECT_EQ(longLabel, label);
}

TEST_F(MenuTest, IdentifiesItems) {
    struct Case {
        int position;
        UINT id;
    };
    EXPECT_EQ(4u, m_menu.GetMenuItemCount());
    for (const Case& tested : {Case{0, open}, Case{1, save}, Case{2, 0}, Case{3, quit},
                               Case{4, missing}, Case{-1, missing}}) {
        EXPECT_EQ(tested.id, m_menu.GetMenuItemID(tested.position)) << tested.position;
    }
}

TEST_F(MenuTest, ChangesStates) {
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), m_menu.GetMenuState(save, MF_BYCOMMAND));
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), m_menu.EnableMenuItem(save, MF_ENABLED));
    EXPECT_EQ(0u, m_menu.GetMenuState(save, MF_BYCOMMAND));
    EXPECT_EQ(static_cast<UINT>(MF_CHECKED), m_menu.CheckMenuItem(3, MF_BYPOSITION | MF_UNCHECKED));
    EXPECT_EQ(0u, m_menu.GetMenuState(quit, MF_BYCOMMAND));
    EXPECT_TRUE(m_menu.GetMenuState(2, MF_BYPOSITION) & MF_SEPARATOR);
    for (const UINT state :
         {m_menu.GetMenuState(absent, MF_BYCOMMAND), m_menu.EnableMenuItem(absent, MF_GRAYED),
          m_menu.CheckMenuItem(absent, MF_CHECKED)}) {
        EXPECT_EQ(missing, state);
    }

    EXPECT_TRUE(m_menu.CheckMenuRadioItem(open, quit, save, MF_BYCOMMAND));
    EXPECT_TRUE(m_menu.CheckMenuRadioItem(open, quit, open, MF_BYCOMMAND));
    MENUITEMINFO item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_FTYPE | MIIM_STATE;
    EXPECT_TRUE(m_menu.GetMenuItemInfo(open, &item));
    EXPECT_TRUE(item.fType & MFT_RADIOCHECK);
    EXPECT_TRUE(item.fState & MFS_CHECKED);
    EXPECT_FALSE(m_menu.GetMenuState(save, MF_BYCOMMAND) & MF_CHECKED);
}

TEST_F(MenuTest, DefaultItem) {
    EXPECT_EQ(missing, m_menu.GetDefaultItem(0));
    EXPECT_TRUE(m_menu.SetDefaultItem(open));
    EXPECT_EQ(static_cast<UINT>(open), m_menu.GetDefaultItem(0));
    EXPECT_TRUE(m_menu.SetDefaultItem(3, TRUE));
    EXPECT_EQ(3u, m_menu.GetDefaultItem(0, TRUE));
    EXPECT_EQ(static_cast<UINT>(quit), m_menu.GetDefaultItem(0));
    EXPECT_FALSE(m_menu.SetDefaultItem(absent));
    EXPECT_TRUE(m_menu.SetDefaultItem(missing));
    EXPECT_EQ(missing, m_menu.GetDefaultItem(0));
}

TEST_F(MenuTest, SubmenusBelongToTheirMenu) {
    CMenu submenu;
    submenu.CreatePopupMenu();
    submenu.AppendMenu(MF_STRING, 200, "&Copy");
    submenu.AppendMenu(MF_STRING, 201, "&Paste");
    const HMENU handle = submenu.Detach();
    ASSERT_TRUE(m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(handle), "&Edit"));

    CMenu* const found = m_menu.GetSubMenu(4);
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(handle, found->m_hMenu);
    EXPECT_EQ(found, m_menu.GetSubMenu(4));
    EXPECT_EQ(nullptr, m_menu.GetSubMenu(0));
    EXPECT_EQ(nullptr, m_menu.GetSubMenu(9));
    EXPECT_EQ(missing, m_menu.GetMenuItemID(4));
    EXPECT_EQ(2u, HIBYTE(m_menu.GetMenuState(4, MF_BYPOSITION)));
    CString label;
    EXPECT_EQ(6, m_menu.GetMenuString(201, label, MF_BYCOMMAND)) << "found in the submenu";

    EXPECT_TRUE(m_menu.RemoveMenu(4, MF_BYPOSITION));
    EXPECT_TRUE(::IsMenu(handle));
    m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(handle), "&Edit");
    EXPECT_TRUE(m_menu.DeleteMenu(4, MF_BYPOSITION));
    EXPECT_FALSE(::IsMenu(handle));
}

TEST_F(MenuTest, BitmapsStayTheCallers) {
    CBitmap picture, checked;
    picture.CreateBitmap(8, 8, 1, 1, nullptr);
    checked.CreateBitmap(8, 8, 1, 1, nullptr);
    EXPECT_TRUE(m_menu.AppendMenu(MF_ENABLED, 120, &picture));
    EXPECT_TRUE(m_menu.InsertMenu(0, MF_BYPOSITION, 121, &picture));
    EXPECT_TRUE(m_menu.ModifyMenu(save, MF_BYCOMMAND, save, &picture));
    EXPECT_TRUE(m_menu.SetMenuItemBitmaps(quit, MF_BYCOMMAND, nullptr, &checked));
    for (const UINT id : {120u, 121u, static_cast<UINT>(save)}) {
        EXPECT_TRUE(m_menu.GetMenuState(id, MF_BYCOMMAND) & MF_BITMAP) << id;
    }
    MENUITEMINFO item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_CHECKMARKS;
    EXPECT_TRUE(m_menu.GetMenuItemInfo(quit, &item));
    EXPECT_EQ(static_cast<HBITMAP>(checked), item.hbmpChecked);
    EXPECT_EQ(nullptr, item.hbmpUnchecked);
    m_menu.DestroyMenu();
    EXPECT_EQ(static_cast<UINT>(OBJ_BITMAP), picture.GetObjectType());
    EXPECT_EQ(static_cast<UINT>(OBJ_BITMAP), checked.GetObjectType());
}

// Owner-drawn menus

/// A menu that draws itself.
class OwnDrawnMenu : public CMenu {
public:
    void MeasureItem(LPMEASUREITEMSTRUCT request) override { request->itemHeight = 33; }
    void DrawItem(LPDRAWITEMSTRUCT request) override { request->itemData = 44; }
};

TEST_F(MenuTest, OwnerDrawHandlersAreVirtual) {
    OwnDrawnMenu menu;
    menu.CreatePopupMenu();
    EXPECT_TRUE(menu.AppendMenu(MF_OWNERDRAW, open, reinterpret_cast<LPCTSTR>(INT_PTR(55))));
    MENUITEMINFO item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_FTYPE | MIIM_DATA;
    EXPECT_TRUE(menu.GetMenuItemInfo(open, &item));
    EXPECT_TRUE(item.fType & MFT_OWNERDRAW);
    EXPECT_EQ(55u, item.dwItemData);

    MEASUREITEMSTRUCT measure = {};
    DRAWITEMSTRUCT draw = {};
    CMenu* const reached = CMenu::FromHandle(menu);
    reached->MeasureItem(&measure);
    reached->DrawItem(&draw);
    EXPECT_EQ(33u, measure.itemHeight);
    EXPECT_EQ(44u, draw.itemData);
    m_menu.MeasureItem(&measure);
    EXPECT_EQ(33u, measure.itemHeight) << "the base class leaves the request alone";
}

} // namespace
