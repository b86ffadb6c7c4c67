// SPDX-License-Identifier: MIT
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
        for (UINT position = 0; position < m_menu.GetMenuItemCount(); ++position)
            labels.push_back(Label(position).GetString());
        return labels;
    }

    CMenu m_menu;
};

TEST_F(MenuTest, DestroysWhatItHoldsUnlessDetached) {
    HMENU held = nullptr;
    HMENU detached = nullptr;
    {
        CMenu menu, other;
        ASSERT_TRUE(menu.CreateMenu());
        held = menu.m_hMenu;
        EXPECT_EQ(&menu, CMenu::FromHandle(held));
        other.CreatePopupMenu();
        detached = other.Detach();
        EXPECT_EQ(nullptr, other.Detach());
    }
    EXPECT_FALSE(::IsMenu(held));
    CMenu again;
    EXPECT_TRUE(again.Attach(detached));
    EXPECT_TRUE(m_menu.DestroyMenu());
    EXPECT_EQ(nullptr, m_menu.m_hMenu);
    EXPECT_FALSE(m_menu.DestroyMenu() || CMenu().Attach(nullptr));
}

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
}

TEST_F(MenuTest, ReadsLabels) {
    char buffer[8] = "xxxxxxx";
    EXPECT_EQ(7, m_menu.GetMenuString(open, buffer, sizeof buffer, MF_BYCOMMAND));
    EXPECT_STREQ("&Open\tC", buffer) << "cut to the buffer";
    CString label("unchanged");
    EXPECT_EQ(0, m_menu.GetMenuString(absent, label, MF_BYCOMMAND));
    EXPECT_TRUE(label.IsEmpty());

    const CString longLabel('x', 3000);
    m_menu.ModifyMenu(save, MF_BYCOMMAND | MF_STRING, save, longLabel);
    EXPECT_EQ(3000, m_menu.GetMenuString(save, label, MF_BYCOMMAND));
    EXPECT_EQ(longLabel, label);
}

TEST_F(MenuTest, IdentifiesItemsAndChangesStates) {
    EXPECT_EQ((std::vector<UINT>{open, save, 0, quit, missing, missing}),
              (std::vector<UINT>{m_menu.GetMenuItemID(0), m_menu.GetMenuItemID(1),
                                 m_menu.GetMenuItemID(2), m_menu.GetMenuItemID(3),
                                 m_menu.GetMenuItemID(4), m_menu.GetMenuItemID(-1)}));
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), m_menu.EnableMenuItem(save, MF_ENABLED));
    EXPECT_EQ(0u, m_menu.GetMenuState(save, MF_BYCOMMAND));
    EXPECT_EQ(static_cast<UINT>(MF_CHECKED), m_menu.CheckMenuItem(3, MF_BYPOSITION | MF_UNCHECKED));
    EXPECT_EQ(0u, m_menu.GetMenuState(quit, MF_BYCOMMAND));
    EXPECT_EQ(missing, m_menu.CheckMenuItem(absent, MF_CHECKED));
    EXPECT_EQ(missing, m_menu.EnableMenuItem(absent, MF_GRAYED));
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
    EXPECT_EQ(nullptr, m_menu.GetSubMenu(0));
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

} // namespace
