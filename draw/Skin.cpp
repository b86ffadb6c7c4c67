// SPDX-License-Identifier: MIT
#include "draw/Skin.h"

namespace {

/// A property that is there while the skin is off.  Its value is a mark and not a resource, so it may go
/// with the window that has it.
constexpr char kSkinOff[] = "TintKit.SkinOff";

HANDLE Mark() {
    return reinterpret_cast<HANDLE>(INT_PTR{1});
}

} // namespace

UINT tint::skinSwitchMessage = 0;

void tint::EnableSkin(HWND window, bool enabled) {
    if (enabled == IsSkinEnabled(window))
        return;
    if (skinSwitchMessage == 0)
        skinSwitchMessage = ::RegisterWindowMessageA("TintKit.SkinSwitch");
    if (enabled)
        ::RemovePropA(window, kSkinOff);
    else if (!::SetPropA(window, kSkinOff, Mark()))
        return;

    ::SendMessageA(window, skinSwitchMessage, enabled ? TRUE : FALSE, 0);
    ::RedrawWindow(window, nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

bool tint::IsSkinEnabled(HWND window) {
    // Where no skin was ever switched off, which is nearly everywhere, the window need not be asked.
    return skinSwitchMessage == 0 || ::GetPropA(window, kSkinOff) == nullptr;
}
