// SPDX-License-Identifier: MIT
#include "afx/CMenu.h"

#include "HandleMap.h"
#include "ModuleState.h"
#include "afx/CWnd.h"

IMPLEMENT_DYNAMIC(CMenu, CObject)

namespace {

afx::HandleMap<HMENU, CMenu>& MenuMap() {
    return afx::ThreadHandleMap<HMENU, CMenu>(&CMenu::m_hMenu);
}

} // namespace

CMenu::CMenu() : m_hMenu(nullptr) {}

CMenu::~CMenu() {
    DestroyMenu();
}

CMenu::operator HMENU() const {
    return m_hMenu;
}

// Creation

BOOL CMenu::CreateMenu() {
    return Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu() {
    return Attach(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return Attach(::LoadMenu(afx::ResourceHandle(), lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource) {
    return LoadMenu(MAKEINTRESOURCE(nIDResource));
}

BOOL CMenu::Attach(HMENU hMenu) {
    ASSERT(m_hMenu == nullptr);
    if (hMenu == nullptr) {
        return FALSE;
    }
    Detach();
    m_hMenu = hMenu;
    MenuMap().SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU handle = m_hMenu;
    if (handle != nullptr) {
        MenuMap().RemovePermanent(handle, this);
        m_hMenu = nullptr;
    }
    return handle;
}

BOOL CMenu::DestroyMenu() {
    return m_hMenu != nullptr && ::DestroyMenu(Detach());
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) {
    return MenuMap().FromHandle(hMenu);
}

void PASCAL CMenu::DeleteTempMap() {
    MenuMap().DeleteTemp();
}

// Items

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem) {
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem) {
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags) {
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags) {
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}

// State of items

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
    return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos) {
    return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
}

UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos) {
    return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
}

UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const {
    return ::GetMenuState(m_hMenu, nID, nFlags);
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) {
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) {
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

// Contents

UINT CMenu::GetMenuItemCount() const {
    return static_cast<UINT>(::GetMenuItemCount(m_hMenu));
}

UINT CMenu::GetMenuItemID(int nPos) const {
    return ::GetMenuItemID(m_hMenu, nPos);
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const {
    const int length = ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
    if (lpString == nullptr || nMaxCount <= 0 || length < nMaxCount - 1) {
        return length;
    }
    // A label that fills the buffer: Wine leaves out the terminator of one that it cuts.
    lpString[nMaxCount - 1] = '\0';
    return lstrlen(lpString);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    rString.Empty();
    const int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length > 0) {
        ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length), length + 1, nFlags);
        rString.ReleaseBuffer();
    }
    return rString.GetLength();
}

CMenu* CMenu::GetSubMenu(int nPos) const {
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    const HWND owner = pWnd == nullptr ? nullptr : pWnd->m_hWnd;
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, owner, lpRect);
}

// Owner-drawn menus

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
