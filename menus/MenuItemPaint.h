// SPDX-License-Identifier: MIT
#pragma once

#include "menus/MenuItemXP.h"

namespace tint {

/// How a menu item is to be shown; what the system tells with WM_DRAWITEM.
struct MenuItemState {
    bool barItem = false; ///< of a menu bar rather than a popup
    bool selected = false;
    bool hot = false;
    bool inactive = false; ///< the menu bar's window is not the active one
    bool noCues = false;   ///< underlines may be hidden

    static MenuItemState Of(const DRAWITEMSTRUCT& item);
};

/// Paints one item, colours from the system's of the moment.
///
/// The menu's font must be selected.  The text colour, background colour and background mode of `dc`
/// are left changed; everything else is put back.
/// @param rect  logical coordinates; painted wholly
/// @return true for the open item of a menu bar; then MenuState::openBarItem is the rectangle that was
///         framed, in the coordinates of `dc`
bool DrawMenuItem(const CMenuItemXP& item, CDC& dc, const RECT& rect, const MenuItemState& state);

} // namespace tint
