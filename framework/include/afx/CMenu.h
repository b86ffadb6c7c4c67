// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>

class CWnd;

/// A menu and the duty to destroy it.
///
/// Whatever is attached is destroyed with this object, its submenus too, unless Detach() took it
/// back before. A menu that was given to a window, or inserted as the submenu of another, belongs
/// to that one: detach it. The pointer FromHandle() or GetSubMenu() returns may be temporary: it
/// belongs to the framework, never destroys its handle and is valid for the handling of one
/// message.
///
/// An item is named by its command identifier (MF_BYCOMMAND) or by its position from zero
/// (MF_BYPOSITION). Functions that return BOOL give zero on failure, also without a menu.
class CMenu : public CObject {
    DECLARE_DYNAMIC(CMenu)

public:
    CMenu();
    ~CMenu() override;

    /// The attached handle or null. Read it; change it by Attach() and Detach() only.
    HMENU m_hMenu;

    operator HMENU() const;

    /// @name Creation, for an object that holds no menu
    /// @{
    BOOL CreateMenu();
    BOOL CreatePopupMenu();

    /// Loads a menu resource of the program.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);

    /// Zero for a null handle.
    BOOL Attach(HMENU hMenu);

    /// Gives the menu, and the duty to destroy it, back to the caller. Null if there is none.
    HMENU Detach();
    BOOL DestroyMenu();

    /// The attached object of a handle, else a temporary one. Null for a null handle.
    static CMenu* PASCAL FromHandle(HMENU hMenu);

    /// Destroys the calling thread's temporary objects.
    static void PASCAL DeleteTempMap();
    /// @}

    /// @name Items
    /// `nFlags` says what `lpszNewItem` is: a text (MF_STRING), any value for the owner-draw
    /// handlers (MF_OWNERDRAW), or nothing (MF_SEPARATOR). With MF_POPUP, `nIDNewItem` is a menu
    /// handle that then belongs to this menu.
    /// @{
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL);

    /// Inserts before the item `nPosition`.
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                    LPCTSTR lpszNewItem = NULL);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                    LPCTSTR lpszNewItem = NULL);

    /// Takes the item out; its submenu stays alive and becomes the caller's.
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);

    /// Takes the item out and destroys its submenu.
    BOOL DeleteMenu(UINT nPosition, UINT nFlags);
    /// @}

    /// @name State of items
    /// @{

    /// The previous state, 0xFFFFFFFF if there is no such item.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);

    /// Checks `nIDItem` with a bullet and unchecks the others from `nIDFirst` to `nIDLast`.
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);

    /// @param uItem  identifier or position; 0xFFFFFFFF for no default item.
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);

    /// Identifier or position of the default item, 0xFFFFFFFF if there is none.
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE);

    /// MF_ flags; for a submenu also the number of its items in the high byte. 0xFFFFFFFF if there
    /// is no such item.
    UINT GetMenuState(UINT nID, UINT nFlags) const;

    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    /// @}

    /// @name Contents
    /// @{

    /// 0xFFFFFFFF without a menu.
    UINT GetMenuItemCount() const;

    /// 0xFFFFFFFF for a submenu or beyond the last item, 0 for a separator.
    UINT GetMenuItemID(int nPos) const;

    /// Copies the label, cut to `nMaxCount` - 1 bytes; number of bytes without the terminator.
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;

    /// The whole label, empty for an item without one; its length.
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;

    /// Null if the item is no submenu; may be temporary.
    CMenu* GetSubMenu(int nPos) const;
    /// @}

    /// Shows a popup menu at a point of the screen and returns when it is closed.
    /// @param nFlags  TPM_ flags.
    /// @param pWnd    receives the messages of the menu.
    /// @param lpRect  ignored by the system.
    /// @return with TPM_RETURNCMD the chosen command or 0, else nonzero on success.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = 0);

    /// @name Owner-drawn menus: called by the window that owns the menu; do nothing here.
    /// @{
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    /// @}
};
