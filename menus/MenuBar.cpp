// SPDX-License-Identifier: MIT
#include "menus/MenuBar.h"

namespace tint {

HMENU MenuBarOf(HWND window) {
    // A child window answers its identifier, which may be the handle of somebody's menu.
    if ((::GetWindowLongPtrA(window, GWL_STYLE) & WS_CHILD) != 0)
        return nullptr;
    return ::GetMenu(window);
}

void FillRestOfMenuBar(HWND window) {
    const HMENU menu = MenuBarOf(window);
    MENUBARINFO bar = {};
    bar.cbSize = sizeof bar;
    RECT frame = {};
    if (menu == nullptr || !::GetMenuBarInfo(window, OBJID_MENU, 0, &bar) ||
        !::GetWindowRect(window, &frame))
        return;
    const HDC dc = ::GetWindowDC(window);
    const auto fill = [&](const RECT& after, LONG right) {
        if (right <= after.right)
            return;
        RECT gap = {after.right, after.top, right, after.bottom};
        ::OffsetRect(&gap, -frame.left, -frame.top);
        ::FillRect(dc, &gap, ::GetSysColorBrush(COLOR_BTNFACE));
    };
    RECT last = {};
    ::GetMenuItemRect(window, menu, 0, &last);
    const int count = ::GetMenuItemCount(menu);
    for (int position = 1; position < count; ++position) {
        RECT item = {};
        ::GetMenuItemRect(window, menu, static_cast<UINT>(position), &item);
        // A row ends at the edge, or where items begin that are justified to the right: the buttons of
        // a maximised MDI child.
        fill(last, item.top == last.top ? item.left : bar.rcBar.right);
        last = item;
    }
    fill(last, bar.rcBar.right);
    ::ReleaseDC(window, dc);
}

} // namespace tint
