// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/// @file
/// The switch that turns the skin of one window off and on again while the program runs: to tell the
/// toolkit's doing from the system's when something looks wrong, or to leave a single control as it is.
///
///     tint::EnableSkin(m_ok, false); // the system's own button again, at once

namespace tint {

/// Turns the skin of one window off or on and repaints it at once.  Its children have switches of their
/// own, which stay as they are.
///
/// The window handles tint::skinSwitchMessage before it is repainted.  A window without a skin only
/// remembers the switch, so it may be set before the window is subclassed.
/// @param window  anything that is no window is ignored
void EnableSkin(HWND window, bool enabled);

/// Whether a window shows its skin, which it does until EnableSkin says otherwise; true for what is no
/// window.  Cheap enough to be asked at each paint: it costs nothing until some skin is switched off.
bool IsSkinEnabled(HWND window);

/// Sent to a window whose skin was switched: `wParam` is TRUE for on.  For a control that has to put
/// styles, fonts or metrics back:
///
///     ON_REGISTERED_MESSAGE(tint::skinSwitchMessage, &CMyControl::OnSkinSwitch)
///
/// Registered by the first EnableSkin and 0, which no registered message is, before: nothing of the
/// toolkit runs when a program is loaded.
extern UINT skinSwitchMessage;

} // namespace tint
