// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

class CWndMenuXP;

/// Gives the menus of windows the flat look: items become owner-drawn, with the toolbar's images in a
/// column of their own, and each popup gets a flat frame and a shadow.
///
/// A window gets all of it by deriving from CSkinnedMenus (menus/SkinnedMenus.h), which calls these
/// operations at the right moments; they are here for windows that want to do it themselves:
///
/// | when                                | call                                                      |
/// |-------------------------------------|-----------------------------------------------------------|
/// | the window is created               | InstallHook, EnableMenuXP(window, true), UpdateMenuBar    |
/// | WM_INITMENUPOPUP, after the default | ConvertMenu(window, popup, IsMenuXPEnabled(window), false) |
/// | WM_MEASUREITEM                      | OnMeasureItem                                             |
/// | WM_DRAWITEM                         | OnDrawItem                                                |
/// | WM_MENUCHAR                         | OnMenuChar                                                |
/// | the window is destroyed             | EnableMenuXP(window, false), UninstallHook                |
///
/// All state is the process's, kept for its one user-interface thread: call everything from there.
/// Nothing here throws or reports errors; what cannot be had is left to the system's drawing.
///
/// What a converted item is to the application and to assistive tools:
/// - its string stays with it: GetMenuString and MIIM_STRING read it, ampersand and tab included;
/// - state, identifier, submenu and bitmaps are untouched: EnableMenuItem, CheckMenuItem and
///   GetMenuState work as ever;
/// - MFT_OWNERDRAW is set in its type, and dwItemData holds sizes (menus/MenuItemData.h): an application
///   cannot keep data of its own there, and items that it draws itself lose theirs too;
/// - setting a string by ModifyMenu, or with MIIM_TYPE, takes the flag off, and the next conversion
///   records the new caption; setting it with MIIM_STRING alone leaves the flag on, and the caption
///   that was recorded goes on being shown;
/// - an item is found again by its identifier when it is painted: submenus that are inserted without
///   one (MIIM_SUBMENU alone) all have 0 and look alike, so give each its own;
/// - captions are recorded up to 254 bytes; an item with a bitmap and no string shows no text.
class CMenuXP {
public:
    CMenuXP() = delete;

    /// @name The hook that catches popup windows as the system creates them
    /// @{

    /// Installs the hook of the calling thread, or counts one more that wants it.
    ///
    /// After the last UninstallHook() the handle is kept although its hook is gone, so an install that
    /// follows only counts and popups are no longer caught.  That is deliberate: a program installs
    /// early (its main window, or InitInstance) and uninstalls when it ends.
    /// @return the hook's handle, or the new count when a handle was there before
    static UINT_PTR InstallHook();

    /// Takes one install back.  The last one gives every popup its own procedure back and removes the
    /// hook.  Does nothing without an install.
    static void UninstallHook();

    /// The hook itself (WH_CALLWNDPROC); `lParam` is a CWPSTRUCT.
    static LRESULT CALLBACK CallWndProcHook(int code, WPARAM wParam, LPARAM lParam);
    /// @}

    /// @name The windows whose menus are skinned
    /// Popups are caught while such a window is in the foreground.
    /// @{
    static void EnableMenuXP(CWnd* window, bool on);
    static bool IsMenuXPEnabled(const CWnd* window);
    /// @}

    /// @name Converting menus
    /// @{

    /// Converts the menu bar of an enabled window; to be called again when its items have changed.
    static void UpdateMenuBar(CWnd* window);

    /// Turns the items of one menu (not of its submenus) into owner-drawn ones.  Converting it again
    /// takes in items that are not owner-drawn yet and works out the sizes of all of them anew.
    ///
    /// The menu bar keeps items that show a bitmap, and an MDI child's system menu (which hangs in the
    /// bar while the child is maximised) is left as it is.
    /// @param window   whose toolbars lend their images; null: none
    /// @param enable   false: nothing happens
    /// @param menuBar  it is the menu bar of the window rather than a popup
    static void ConvertMenu(CWnd* window, HMENU menu, bool enable, bool menuBar);

    /// Gives the items of one menu (not of its submenus) back to the system's drawing.
    static void RestoreMenu(HMENU menu);
    /// @}

    /// @name What a window answers for its converted menus
    /// Requests for anything but menus are ignored.
    /// @{
    static void OnMeasureItem(MEASUREITEMSTRUCT* request);

    /// @param owner  the window that was asked
    /// @return false when it is no request for a menu
    static bool OnDrawItem(DRAWITEMSTRUCT* request, HWND owner);

    /// Finds the item of a mnemonic, which the system does not do for owner-drawn items without a
    /// string.  A doubled ampersand, which shows one, makes no mnemonic.
    /// @return the answer to WM_MENUCHAR: 0, or the first item's position and MNC_EXECUTE
    static LRESULT OnMenuChar(HMENU menu, UINT character, UINT flags);
    /// @}

    /// The object of a popup window.
    /// @param lookupOnly  false: make one when there is none
    /// @return owned by the toolkit, dies with the window or when that is hidden; may be null
    static CWndMenuXP* FindMenuWindow(HWND popup, bool lookupOnly);

    /// Destroys the object of a popup window, which gets its own procedure back.
    static void DestroyMenuWindow(HWND popup);
};
