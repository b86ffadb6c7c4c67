// SPDX-License-Identifier: MIT
#include "menus/SkinnedMenus.h"

#include "draw/Skin.h"
#include "menus/MenuBar.h"
#include "menus/MenuState.h"
#include "menus/SystemTints.h"

namespace tint {
namespace {

bool IsSkinWanted(HWND window) {
    return IsSkinEnabled(window) && !IsHighContrast();
}

} // namespace

MenuSkin::~MenuSkin() {
    Uninstall(); // still there when the object was detached from its window
}

void MenuSkin::Install(CWnd& window) {
    if (m_window == nullptr)
        CMenuXP::InstallHook();
    else
        CMenuXP::EnableMenuXP(CWnd::FromHandle(m_window), false); // the object was detached from it
    m_window = window.m_hWnd;
    m_skinned = IsSkinWanted(m_window);
    CMenuXP::EnableMenuXP(&window, m_skinned);
}

void MenuSkin::Uninstall() {
    if (m_window == nullptr)
        return;
    CMenuXP::EnableMenuXP(CWnd::FromHandle(m_window), false);
    CMenuXP::UninstallHook();
    m_window = nullptr;
}

void MenuSkin::FollowSwitches(CWnd& window) {
    if (m_skinned == IsSkinWanted(m_window))
        return;
    m_skinned = !m_skinned;
    CMenuXP::EnableMenuXP(&window, m_skinned);
    if (m_skinned)
        CMenuXP::UpdateMenuBar(&window);
    else
        CMenuXP::RestoreMenu(MenuBarOf(m_window));
    ::DrawMenuBar(m_window);
}

bool MenuSkin::OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam,
                         LRESULT& result) {
    if (message == WM_NCDESTROY) {
        Uninstall();
        return false;
    }
    if (m_window != window.m_hWnd)
        Install(window);
    if (message == WM_INITMENU || message == WM_SETTINGCHANGE ||
        (message == skinSwitchMessage && message != 0))
        FollowSwitches(window);

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
        return m_skinned && result != 0;
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
        if (CMenuXP::IsMenuXPEnabled(CWnd::FromHandlePermanent(window)))
            FillRestOfMenuBar(window);
        break;
    default:
        break;
    }
}

} // namespace tint
