// SPDX-License-Identifier: MIT
// Turning items into owner-drawn ones: what is recorded, what stays, whose images they get.
#include <afxext.h>
#include <gtest/gtest.h>

#include "menus/MenuItemData.h"
#include "menus/MenuItemXP.h"
#include "menus/MenuRecords.h"
#include "menus/MenuState.h"
#include "tests/menus/MenuTesting.h"

namespace {

constexpr UINT kFirst = TestMenu::kFirst;

std::string StringOf(HMENU menu, UINT id) {
    char text[300] = "";
    ::GetMenuStringA(menu, id, text, sizeof text, MF_BYCOMMAND);
    return text;
}

std::string Recorded(HMENU menu, UINT position) {
    const CMenuItemXP item(menu, position, true);
    return std::string(item.LabelText()) + '|' + std::string(item.AcceleratorText());
}

void Convert(HMENU menu, CWnd* window = nullptr) {
    CMenuXP::ConvertMenu(window, menu, true, false);
}

TEST(Conversion, KeepsStringsAndStates) {
    const TestMenu menu({"&Open\tCtrl+O", "-", "Chec&ked"});
    ::CheckMenuItem(menu, kFirst + 2, MF_CHECKED);
    ::EnableMenuItem(menu, kFirst, MF_GRAYED | MF_DISABLED);
    CMenuXP::ConvertMenu(nullptr, menu, false, false);
    EXPECT_FALSE(IsOwnerDrawn(menu, 0)) << "not enabled";
    Convert(menu);
    for (const int position : {0, 1, 2})
        EXPECT_TRUE(IsOwnerDrawn(menu, position));
    EXPECT_EQ(StringOf(menu, kFirst), "&Open\tCtrl+O");
    EXPECT_EQ(Recorded(menu, 0), "&Open|Ctrl+O");
    EXPECT_TRUE(CMenuItemXP(menu, 1, true).IsSeparator());
    EXPECT_TRUE(CMenuItemXP(menu, kFirst + 2, false).IsChecked());
    EXPECT_TRUE(CMenuItemXP(menu, kFirst, false).IsDisabled());
    EXPECT_EQ(::GetMenuState(menu, kFirst + 2, MF_BYCOMMAND) & MF_CHECKED, UINT{MF_CHECKED});
    EXPECT_EQ(::GetMenuItemID(menu, 2), kFirst + 2);
}

TEST(Conversion, AgainRecordsNewItemsOnlyButSizesAll) {
    TestMenu menu({"&One"});
    Convert(menu);
    const ULONG_PTR before = InfoOf(menu, 0).dwItemData;
    MENUITEMINFOA info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STRING;
    char text[] = "Changed";
    info.dwTypeData = text;
    ::SetMenuItemInfoA(menu, 0, TRUE, &info); // leaves the owner-draw flag on
    ::AppendMenuA(menu, MF_STRING, 700, "A very much longer one");
    Convert(menu);
    EXPECT_EQ(Recorded(menu, 0), "&One|");
    EXPECT_GT(InfoOf(menu, 0).dwItemData, before) << "as wide as the new one";
    EXPECT_EQ(InfoOf(menu, 0).dwItemData, InfoOf(menu, 1).dwItemData);

    ::ModifyMenuA(menu, 0, MF_BYPOSITION | MF_STRING, kFirst, "Modified"); // takes it off
    Convert(menu);
    EXPECT_EQ(Recorded(menu, 0), "Modified|");
}

TEST(Conversion, SubmenusAreRecordedUntilTheyDie) {
    HMENU submenu = nullptr;
    auto& records = tint::MenuRecords::Get();
    {
        TestMenu menu({});
        submenu = TestMenu({"&Inner"}).Release();
        ::AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(submenu), "&Sub\tmore");
        Convert(menu);
        EXPECT_EQ(Recorded(menu, 0), "&Sub|more");
        EXPECT_FALSE(IsOwnerDrawn(submenu, 0)) << "converted when it opens itself";
        records.imageOfSubmenu[submenu] = CImgDesc();
    }
    Convert(nullptr);
    EXPECT_EQ(records.textOfSubmenu.PLookup(submenu), nullptr);
    EXPECT_EQ(records.imageOfSubmenu.PLookup(submenu), nullptr);
}

TEST(Conversion, BarsKeepTheirBitmaps) {
    const HBITMAP bitmap = ::CreateBitmap(8, 8, 1, 1, nullptr);
    const HMENU bar = ::CreateMenu();
    ::AppendMenuA(bar, MF_BITMAP, 1, reinterpret_cast<LPCSTR>(bitmap));
    ::AppendMenuA(bar, MF_STRING, 2, "&Text");
    CMenuXP::ConvertMenu(nullptr, bar, true, true);
    EXPECT_FALSE(IsOwnerDrawn(bar, 0));
    EXPECT_TRUE(IsOwnerDrawn(bar, 1));
    EXPECT_TRUE(tint::MenuItemData(InfoOf(bar, 1).dwItemData).IsBarItem());
    Convert(bar); // as a popup it loses them
    EXPECT_TRUE(IsOwnerDrawn(bar, 0));
    EXPECT_EQ(Recorded(bar, 0), "|");
    EXPECT_EQ(InfoOf(bar, 0).hbmpItem, bitmap) << "the application still finds it";
    ::DestroyMenu(bar);
    ::DeleteObject(bitmap);
}

TEST(Conversion, TakesLongCaptionsAndLongMenus) {
    const std::string endless(1000, 'x');
    std::vector<std::string> lines(500, "Item");
    lines[7] = endless;
    const TestMenu menu(lines);
    Convert(menu);
    EXPECT_EQ(Recorded(menu, 7), endless.substr(0, 254) + '|');
    EXPECT_TRUE(IsOwnerDrawn(menu, 499));
    Convert(reinterpret_cast<HMENU>(0x12345)); // no menu at all
}

// --- Images from toolbars -----------------------------------------------------------------------

/// A toolbar with an image list of its own, for some commands.
class ListedToolBar : public CToolBar {
public:
    ListedToolBar(CFrameWnd& frame, const std::vector<UINT>& commands)
        : m_list(::ImageList_Create(16, 16, ILC_COLOR24, 4, 0)) {
        CreateEx(&frame);
        SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(m_list));
        SetButtons(commands.data(), static_cast<int>(commands.size()));
    }
    ~ListedToolBar() override {
        DestroyWindow();
        ::ImageList_Destroy(m_list);
    }

    HIMAGELIST m_list;
};

class TestFrame : public CMDIFrameWnd {
public:
    TestFrame() { Create(nullptr, "frame"); }
    void PostNcDestroy() override {} // lives on the stack
};

CImgDesc ImageOf(HMENU menu, UINT position) {
    return CMenuItemXP(menu, position, true).Image();
}

TEST(ConversionImages, ComeFromTheFirstToolbarWithTheCommand) {
    TestFrame frame;
    {
        ListedToolBar first(frame, {kFirst, kFirst + 1});
        ListedToolBar second(frame, {kFirst + 2, kFirst + 1});
        auto* const mdiChild = new CMDIChildWnd; // deletes itself with its window
        mdiChild->Create(nullptr, "", WS_CHILD, CFrameWnd::rectDefault, &frame);
        CWnd child;
        child.Create(nullptr, "", WS_CHILD, CRect(0, 0, 9, 9), mdiChild, 0);
        for (CWnd* const window : {static_cast<CWnd*>(&frame), &child}) {
            tint::MenuRecords::Get().imageOfCommand.RemoveAll();
            const TestMenu menu({"a", "b", "c", "d"});
            Convert(menu, window);
            EXPECT_EQ(ImageOf(menu, 0).imageList, first.m_list);
            EXPECT_EQ(ImageOf(menu, 1).imageList, first.m_list) << "both have it";
            EXPECT_EQ(ImageOf(menu, 1).index, 1);
            EXPECT_EQ(ImageOf(menu, 2).imageList, second.m_list);
            EXPECT_EQ(ImageOf(menu, 2).index, 0);
            EXPECT_FALSE(CMenuItemXP(menu, 3, true).HasImage());
        }
        tint::MenuRecords::Get().imageOfCommand.RemoveAll();
        TestMenu menu({"a"});
        Convert(menu, nullptr);
        EXPECT_FALSE(CMenuItemXP(menu, 0, true).HasImage()) << "of no window";
        ::ModifyMenuA(menu, 0, MF_BYPOSITION | MF_STRING, kFirst, "again");
        child.DestroyWindow();
        Convert(menu, &frame);
        for (const HIMAGELIST list : {HIMAGELIST{}, first.m_list}) {
            first.SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list));
            EXPECT_EQ(ImageOf(menu, 0).imageList, list) << "while the toolbar has it";
        }
    }
    // The toolbars have gone, and their image lists with them.
    const TestMenu menu({"a"});
    Convert(menu, nullptr);
    EXPECT_FALSE(CMenuItemXP(menu, 0, true).HasImage());
    frame.DestroyWindow();
}

} // namespace
