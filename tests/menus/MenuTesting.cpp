// SPDX-License-Identifier: MIT
#include "tests/menus/MenuTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>

#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "tests/support/Pump.h"

namespace {

/// The hook cannot be had again after the last uninstall, so one install lasts for all tests.
class HookForAll : public testing::Environment {
public:
    void SetUp() override { CMenuXP::InstallHook(); }
};

const testing::Environment* const g_hook = testing::AddGlobalTestEnvironment(new HookForAll);

} // namespace

TestMenu::TestMenu(const std::vector<std::string>& lines, UINT first)
    : m_menu(::CreatePopupMenu()) {
    for (const std::string& line : lines) {
        if (line == "-")
            ::AppendMenuA(m_menu, MF_SEPARATOR, 0, nullptr);
        else
            ::AppendMenuA(m_menu, MF_STRING, first, line.c_str());
        ++first;
    }
}

TestMenu::~TestMenu() {
    ::DestroyMenu(m_menu);
}

HMENU TestMenu::Release() {
    const HMENU menu = m_menu;
    m_menu = nullptr;
    return menu;
}

MENUITEMINFOA InfoOf(HMENU menu, int position) {
    MENUITEMINFOA info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_DATA | MIIM_BITMAP;
    EXPECT_TRUE(::GetMenuItemInfoA(menu, static_cast<UINT>(position), TRUE, &info));
    return info;
}

bool IsOwnerDrawn(HMENU menu, int position) {
    return (InfoOf(menu, position).fType & MFT_OWNERDRAW) != 0;
}

MenuWindow::MenuWindow(const std::vector<std::string>& lines) {
    const HMENU bar = ::CreateMenu();
    const auto append = [bar](HMENU popup, const char* title) {
        ::AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), title);
    };
    append(TestMenu(lines).Release(), "&File");
    append(TestMenu({"&About"}, 900).Release(), "&Help");
    const LPCTSTR name =
        AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), ::GetSysColorBrush(COLOR_WINDOW));
    CreateEx(WS_EX_TOPMOST, name, "Menus", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 120, 100, 300, 220,
             nullptr, bar);
    ::SetForegroundWindow(m_hWnd);
    PumpFor(50);
}

MenuWindow::~MenuWindow() {
    DestroyWindow();
}

LRESULT MenuWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ENTERIDLE && m_onMenuIdle)
        m_onMenuIdle();
    return CSkinnedMenus<CWnd>::WindowProc(message, wParam, lParam);
}

BOOL MenuWindow::OnCommand(WPARAM wParam, LPARAM lParam) {
    m_commands.push_back(LOWORD(wParam));
    return CSkinnedMenus<CWnd>::OnCommand(wParam, lParam);
}

bool WhileMenusRun(const std::function<void()>& script) {
    std::atomic<bool> done{false};
    const DWORD mainThread = ::GetCurrentThreadId();
    std::thread thread([&] {
        script();
        done = true;
        ::PostThreadMessageA(mainThread, WM_NULL, 0, 0);
    });
    const bool ended = PumpUntil([&] { return done.load(); });
    thread.join();
    return ended;
}

std::string FirstDifference(const automation::Picture& have, const automation::Picture& want,
                            const RECT& skip) {
    if (have.width != want.width || have.height != want.height)
        return "another size";
    for (int y = 0; y < have.height; ++y)
        for (int x = 0; x < have.width; ++x)
            if (have.At(x, y) != want.At(x, y) && !::PtInRect(&skip, {x, y})) {
                char text[80] = "";
                ::wsprintfA(text, "at %d, %d: %06lx instead of %06lx", x, y, have.At(x, y),
                            want.At(x, y));
                return text;
            }
    return "";
}

std::vector<HWND> VisiblePopups() {
    std::vector<HWND> popups;
    HWND popup = nullptr;
    while ((popup = ::FindWindowExA(nullptr, popup, "#32768", nullptr)) != nullptr) {
        DWORD process = 0;
        ::GetWindowThreadProcessId(popup, &process);
        if (process == ::GetCurrentProcessId() && ::IsWindowVisible(popup))
            popups.push_back(popup);
    }
    std::reverse(popups.begin(), popups.end()); // the topmost was found first
    return popups;
}

HWND WaitForPopup(int depth) {
    for (int look = 0; look < 200; ++look) {
        const auto popups = VisiblePopups();
        if (static_cast<int>(popups.size()) > depth) {
            automation::WaitUntilSteady(popups[depth]);
            return popups[depth];
        }
        ::Sleep(10);
    }
    return nullptr;
}

bool WaitForNoPopup() {
    for (int look = 0; look < 200; ++look) {
        if (VisiblePopups().empty())
            return true;
        ::Sleep(10);
    }
    return false;
}

void CloseMenus() {
    automation::TypeKey(VK_ESCAPE);
    automation::TypeKey(VK_ESCAPE);
    EXPECT_TRUE(WaitForNoPopup());
}

bool IsSubclassed(HWND popup) {
    return ::GetPropA(popup, "XPWndProp_OldProc") != nullptr;
}
