// SPDX-License-Identifier: MIT
// CWnd: the message map, and the default handlers that give a message back to the control or menu
// it came from.
#include <afxwin.h>

#include "Handles.h"
#include "ThreadState.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

namespace {

// Menus nest a few levels deep; a menu that was made its own submenu would never end.
constexpr int MaxMenuDepth = 16;

/// The menu, this one or one below it, in which an owner-draw item stands; null when there is none.
HMENU FindMenuOfItem(HMENU menu, UINT itemId, int depth = 0) {
    if (menu == nullptr || depth > MaxMenuDepth) {
        return nullptr;
    }
    const int count = ::GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        MENUITEMINFO item = {};
        item.cbSize = sizeof(item);
        item.fMask = MIIM_ID | MIIM_FTYPE | MIIM_SUBMENU;
        if (!::GetMenuItemInfo(menu, static_cast<UINT>(i), TRUE, &item)) {
            continue;
        }
        // Windows names a popup item by the handle of its menu.
        const bool named = item.wID == itemId ||
                           (item.hSubMenu != nullptr &&
                            static_cast<UINT>(reinterpret_cast<UINT_PTR>(item.hSubMenu)) == itemId);
        if (named && (item.fType & MFT_OWNERDRAW) != 0) {
            return menu;
        }
        if (const HMENU found = FindMenuOfItem(item.hSubMenu, itemId, depth + 1)) {
            return found;
        }
    }
    return nullptr;
}

HMENU MenuBarOf(HWND hWnd) {
    return (::GetWindowLongPtr(hWnd, GWL_STYLE) & WS_CHILD) != 0 ? nullptr : ::GetMenu(hWnd);
}

} // namespace

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT brush = 0;
    if (ReflectLastMsg(afx::WindowOf(pWnd), &brush)) {
        return reinterpret_cast<HBRUSH>(brush);
    }
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        const auto menu = reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem);
        if (::IsMenu(menu)) {
            CMenu::FromHandle(menu)->DrawItem(lpDrawItemStruct);
        }
        return;
    }
    if (!ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        Default();
    }
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType == ODT_MENU) {
        // The message does not say which menu it is about.
        const HMENU open = afx::CurrentThread().openMenu;
        const UINT id = lpMeasureItemStruct->itemID;
        HMENU menu = ::IsMenu(open) ? FindMenuOfItem(open, id) : nullptr;
        if (menu == nullptr) {
            menu = FindMenuOfItem(MenuBarOf(m_hWnd), id);
        }
        if (menu != nullptr) {
            CMenu::FromHandle(menu)->MeasureItem(lpMeasureItemStruct);
        }
        return;
    }
    CWnd* const control = GetDescendantWindow(static_cast<int>(lpMeasureItemStruct->CtlID), TRUE);
    if (control == nullptr || !control->SendChildNotifyLastMsg()) {
        Default();
    }
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT order = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &order)) {
        return static_cast<int>(order);
    }
    return static_cast<int>(Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem)) {
        Default();
    }
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT item = 0;
    if (ReflectLastMsg(afx::WindowOf(pListBox), &item)) {
        return static_cast<int>(item);
    }
    return static_cast<int>(Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT item = 0;
    if (ReflectLastMsg(afx::WindowOf(pListBox), &item)) {
        return static_cast<int>(item);
    }
    return static_cast<int>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!ReflectLastMsg(afx::WindowOf(pScrollBar))) {
        Default();
    }
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!ReflectLastMsg(afx::WindowOf(pScrollBar))) {
        Default();
    }
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const UINT event = LOWORD(message);
    const bool namesChild = event == WM_CREATE || event == WM_DESTROY;
    if (!namesChild || !ReflectLastMsg(reinterpret_cast<HWND>(lParam))) {
        Default();
    }
}

void CWnd::OnSysColorChange() {
    // Windows tells top-level windows only; controls and bars keep brushes, too.
    if ((GetStyle() & WS_CHILD) == 0) {
        SendMessageToDescendants(WM_SYSCOLORCHANGE, 0, 0, TRUE, TRUE);
    }
    Default();
}
