// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace tint {

/// What painting an item leaves for painting the popup's frame.  One for the process: menus are used
/// by its one user-interface thread.
struct MenuState {
    /// Where the open item of a menu bar is on the screen; empty when none is open.  A popup that hangs
    /// below it opens its frame there, so that both read as one shape.
    RECT openBarItem = {};

    /// Goes up with every item painted, and around.  Whether it changed tells whether an item was
    /// painted in the meantime.
    BYTE paintCount = 0;
};

inline MenuState& GetMenuState() {
    static MenuState state;
    return state;
}

} // namespace tint
