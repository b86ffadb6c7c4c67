// SPDX-License-Identifier: MIT
// The skin switch of a window's menus, and the rest of its menu bar.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "tests/menus/MenuTesting.h"

#include "automation/RealInput.h"
#include "draw/Skin.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/Pump.h"

namespace {

decltype(&::SystemParametersInfoA) g_realParameters;
bool g_highContrast = false;

BOOL WINAPI PretendContrast(UINT action, UINT size, void* value, UINT flags) {
    if (action != SPI_GETHIGHCONTRAST)
        return g_realParameters(action, size, value, flags);
    static_cast<HIGHCONTRASTA*>(value)->dwFlags = g_highContrast ? HCF_HIGHCONTRASTON : 0;
    return TRUE;
}

TEST(MenuSkin, GoesAndComesWithItsSwitch) {
    ImportPatch patch;
    g_realParameters = patch.Redirect("user32.dll", "SystemParametersInfoA", &PretendContrast);
    MenuWindow window({"&One", "&Two"});
    struct Switches {
        bool skin;
        bool contrast; ///< the user asks for high contrast
    };
    for (const auto& [skin, contrast] :
         {Switches{true, false}, {false, false}, {true, false}, {true, true}, {true, false}}) {
        const bool enabled = skin && !contrast;
        g_highContrast = contrast;
        window.SendMessage(WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST); // as the system does
        tint::EnableSkin(window, skin);
        EXPECT_EQ(IsOwnerDrawn(window.Bar()), enabled);
        EXPECT_TRUE(WhileMenusRun([&] {
            automation::TypeKey('F', VK_MENU);
            const HWND popup = WaitForPopup();
            EXPECT_EQ(IsSubclassed(popup), enabled);
            EXPECT_EQ(IsOwnerDrawn(window.File()), enabled);
            automation::TypeKey('T'); // the mnemonic works either way
            EXPECT_TRUE(WaitForNoPopup());
        }));
        char text[16] = "";
        ::GetMenuStringA(window.File(), 1, text, sizeof text, MF_BYPOSITION);
        EXPECT_STREQ(text, "&Two");
    }
    PumpFor();
    EXPECT_EQ(window.m_commands.size(), 5U);
}

TEST(MenuSkin, TheBarHasTheColorOfItsItemsToItsEnd) {
    const MenuWindow window({"&One"});
    PumpFor();
    MENUBARINFO bar = {};
    bar.cbSize = sizeof bar;
    ASSERT_TRUE(::GetMenuBarInfo(window, OBJID_MENU, 0, &bar));
    const automation::Picture shown = automation::CaptureScreen(bar.rcBar);
    for (int x = 0; x < shown.width; ++x)
        ASSERT_EQ(shown.At(x, 1), ::GetSysColor(COLOR_BTNFACE)) << x;
}

} // namespace
