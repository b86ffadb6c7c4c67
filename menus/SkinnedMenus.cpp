// SPDX-License-Identifier: MIT
#include "menus/SkinnedMenus.h"

#include "draw/Skin.h"
#include "menus/MenuState.h"

namespace tint {
namespace {

/// The menu bar; null for a window that has none.
HMENU MenuBarOf(HWND window) {
    const HMENU menu = ::GetMenu(window); // a child window answers its identifier
    return ::IsMenu(menu) ? menu : nullptr;
}

/// Fills what the items leave of the bar with their colour; the system may have another one for it.
void FillRestOfBar(HWND window) {
    const HMENU menu = MenuBarOf(window);
    MENUBARINFO bar = {};
    bar.cbSize = sizeof bar;
    RECT last = {};
    RECT frame = {};
    if (menu == nullptr || !::GetMenuBarInfo(window, OBJID_MENU, 0, &bar) ||
        !::GetMenuItemRect(window, menu, ::GetMenuItemCount(menu) - 1, &last) ||
        !::GetWindowRect(window, &frame))
        return;
    RECT rest = {last.right, last.top, bar.rcBar.right, last.bottom};
    ::OffsetRect(&rest, -frame.left, -frame.top);
    const HDC dc = ::GetWindowDC(window);
    ::FillRect(dc, &rest, ::GetSysColorBrush(COLOR_BTNFACE));
    ::ReleaseDC(window, dc);
}

} // namespace

MenuSkin::~MenuSkin() {
    Uninstall(); // still there when the object was detached from its window
}

void MenuSkin::Install(CWnd& window) {
    m_window = window.m_hWnd;
    CMenuXP::InstallHook();
    CMenuXP::EnableMenuXP(&window, IsSkinEnabled(m_window));
}

void MenuSkin::Uninstall() {
    if (m_window == nullptr)
        return;
    CMenuXP::EnableMenuXP(CWnd::FromHandle(m_window), false);
    CMenuXP::UninstallHook();
    m_window = nullptr;
}

void MenuSkin::SwitchSkin(CWnd& window, bool enabled) {
    CMenuXP::EnableMenuXP(&window, enabled);
    if (enabled)
        CMenuXP::UpdateMenuBar(&window);
    else if (const HMENU bar = MenuBarOf(window.m_hWnd))
        CMenuXP::RestoreMenu(bar);
    ::DrawMenuBar(window.m_hWnd);
}

bool MenuSkin::OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam,
                         LRESULT& result) {
    if (message == WM_NCDESTROY) {
        Uninstall();
        return false;
    }
    if (m_window == nullptr)
        Install(window);
    if (message == skinSwitchMessage && message != 0)
        SwitchSkin(window, wParam != FALSE);

    switch (message) {
    case WM_NCCALCSIZE: // sent before the bar is measured, also when it has changed
    case WM_INITMENU:
        CMenuXP::UpdateMenuBar(&window);
        return false;
    case WM_MEASUREITEM: {
        auto* const request = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
        CMenuXP::OnMeasureItem(request);
        result = TRUE;
        return request->CtlType == ODT_MENU;
    }
    case WM_DRAWITEM:
        result = TRUE;
        return CMenuXP::OnDrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam), window.m_hWnd);
    case WM_MENUCHAR:
        result =
            CMenuXP::OnMenuChar(reinterpret_cast<HMENU>(lParam), LOWORD(wParam), HIWORD(wParam));
        return result != 0;
    case WM_EXITMENULOOP:
        ::SetRectEmpty(&GetMenuState().openBarItem);
        return false;
    default:
        return false;
    }
}

void MenuSkin::AfterMessage(HWND window, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITMENUPOPUP: {
        CWnd* const owner = CWnd::FromHandlePermanent(window);
        const auto popup = reinterpret_cast<HMENU>(wParam);
        if (CMenuXP::IsMenuXPEnabled(owner))
            CMenuXP::ConvertMenu(owner, popup, true, false);
        else
            CMenuXP::RestoreMenu(popup);
        break;
    }
    case WM_NCPAINT:
    case WM_NCACTIVATE:
        if (IsSkinEnabled(window))
            FillRestOfBar(window);
        break;
    default:
        break;
    }
}

} // namespace tint
