// SPDX-License-Identifier: MIT
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/Picture.h"
#include "menus/SkinnedMenus.h"

/// A menu of a test, by one line an item:
///
///     "Open\tCtrl+O"   a command; identifiers go up from the first one given
///     "-"              a separator
class TestMenu {
public:
    static constexpr UINT kFirst = 100;

    explicit TestMenu(const std::vector<std::string>& lines, UINT first = kFirst);
    ~TestMenu();

    TestMenu(const TestMenu&) = delete;
    TestMenu& operator=(const TestMenu&) = delete;

    operator HMENU() const { return m_menu; }

    /// Gives the menu to a window or to another menu.
    HMENU Release();

private:
    HMENU m_menu;
};

/// All there is to know of an item but its string.
MENUITEMINFOA InfoOf(HMENU menu, int position);

/// Whether an item was converted.  GetMenuState does not tell of one that opens a submenu.
bool IsOwnerDrawn(HMENU menu, int position = 0);

/// A window with a skinned menu bar: "File" (the lines) and "&Help" (one item).
class MenuWindow : public CSkinnedMenus<CWnd> {
public:
    explicit MenuWindow(const std::vector<std::string>& lines);
    ~MenuWindow() override;

    HMENU Bar() const { return ::GetMenu(m_hWnd); }
    HMENU File() const { return ::GetSubMenu(Bar(), 0); }

    std::vector<UINT> m_commands; ///< those that were chosen

    std::function<void()> m_onMenuIdle; ///< called whenever a menu waits for input

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
};

/// A frame window on top of all others, for the bar of a test.  Its window deletes it.
template <class Frame>
Frame* OpenBarFrame(int width) {
    auto* const frame = std::make_unique<Frame>().release();
    frame->CreateEx(WS_EX_TOPMOST,
                    AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_WINDOW)), "Bars",
                    WS_POPUP | WS_VISIBLE, 60, 40, width, 240, nullptr, nullptr);
    return frame;
}

/// Handles messages while `script` runs on a thread of its own, which opens menus by real input.
/// @return false when it did not end within some seconds
bool WhileMenusRun(const std::function<void()>& script);

/// For scripts: the `depth`-th visible popup (0: the first opened), once it is at rest; null when none
/// comes.
HWND WaitForPopup(int depth = 0);
bool WaitForNoPopup();

/// For scripts: leaves a popup of the menu bar and the bar.
void CloseMenus();

/// Whether a popup has the toolkit's procedure.
bool IsSubclassed(HWND popup);

/// Where two pictures differ first, looked at by rows, and how; empty when they do not.
/// @param skip  pixels that need not be the same
std::string FirstDifference(const automation::Picture& have, const automation::Picture& want,
                            const RECT& skip = {});

/// The popups that are there, in the order in which they were opened.
std::vector<HWND> VisiblePopups();
