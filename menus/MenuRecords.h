// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>
#include <afxtempl.h>

#include "menus/ImgDesc.h"

namespace tint {

/// Captions and images of the items that were converted: those of commands by their identifier, those
/// of items that open a submenu by the submenu's handle.  One for the process.
///
/// A submenu's records go once its menu is destroyed (PurgeDeadSubmenus).  A command's stay, and are
/// overwritten when an item with the same identifier is converted: two menus that use one identifier
/// for different captions show the one converted last.
struct MenuRecords {
    CMap<int, int, CString, CString&> textOfCommand;
    CMap<HMENU, HMENU, CString, CString&> textOfSubmenu;
    CMap<int, int, CImgDesc, CImgDesc&> imageOfCommand;
    CMap<HMENU, HMENU, CImgDesc, CImgDesc&> imageOfSubmenu;
    CMap<HIMAGELIST, HIMAGELIST, HWND, HWND> toolbarOfList; ///< whose image list it is

    static MenuRecords& Get();

    /// @name By an item of which the system has filled in wID and hSubMenu
    /// @{
    void SetText(const MENUITEMINFOA& item, CString text);

    /// @param toolbar  the window that lends the image
    void SetImage(const MENUITEMINFOA& item, CImgDesc image, HWND toolbar);

    /// Empty when nothing was recorded.
    CString Text(const MENUITEMINFOA& item) const;

    /// No image when none was recorded, or when the toolbar that lent it has gone or has another
    /// image list now: a list that may be destroyed is not touched.
    CImgDesc Image(const MENUITEMINFOA& item) const;
    /// @}

    void PurgeDeadSubmenus();

private:
    bool IsAlive(const CImgDesc& image) const;
};

} // namespace tint
