// SPDX-License-Identifier: MIT
#include "menus/SkinnedMenus.h"

#include "menus/MenuState.h"

namespace tint {

MenuSkin::~MenuSkin() {
    Uninstall(); // still there when the object was detached from its window
}

void MenuSkin::Install(CWnd& window) {
    m_window = window.m_hWnd;
    CMenuXP::InstallHook();
    CMenuXP::EnableMenuXP(&window, true);
}

void MenuSkin::Uninstall() {
    if (m_window == nullptr)
        return;
    CMenuXP::EnableMenuXP(CWnd::FromHandle(m_window), false);
    CMenuXP::UninstallHook();
    m_window = nullptr;
}

bool MenuSkin::OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam,
                         LRESULT& result) {
    if (message == WM_NCDESTROY) {
        Uninstall();
        return false;
    }
    if (m_window == nullptr)
        Install(window);

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
    if (message != WM_INITMENUPOPUP)
        return;
    CWnd* const owner = CWnd::FromHandlePermanent(window);
    CMenuXP::ConvertMenu(owner, reinterpret_cast<HMENU>(wParam), CMenuXP::IsMenuXPEnabled(owner),
                         false);
}

} // namespace tint
