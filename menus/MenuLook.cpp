// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include "menus/MenuLook.h"

#include <algorithm>

#include "draw/ColorMarkers.h"
#include "menus/SystemTints.h"

namespace tint {
namespace {

constexpr char kMenuXP[] = "MenuXP";
constexpr char kMenuEx[] = "MenuEx";

int Value(std::optional<int>& kept, LPCSTR section, LPCSTR key, int otherwise) {
    if (!kept) {
        CWinApp* const application = ::AfxGetApp();
        kept = application == nullptr
                   ? otherwise
                   : static_cast<int>(application->GetProfileInt(section, key, otherwise));
    }
    return *kept;
}

COLORREF ColorOrDerived(int value, int luminance) {
    const auto color = static_cast<COLORREF>(value);
    return color == kNoColor ? FaceTint(luminance) : color;
}

} // namespace

MenuLook& MenuLook::Get() {
    static MenuLook look;
    return look;
}

bool MenuLook::ShowGradient() {
    return Value(m_showGradient, kMenuXP, "ShowGradient", 1) != 0;
}

bool MenuLook::ShowGradientSel() {
    return Value(m_showGradientSel, kMenuEx, "ShowGradientSel", 1) != 0;
}

COLORREF MenuLook::GradientStart() {
    return ColorOrDerived(Value(m_gradientStart, kMenuXP, "GradientStart", 0xE4C4B4), 20);
}

COLORREF MenuLook::GradientEnd() {
    return ColorOrDerived(Value(m_gradientEnd, kMenuXP, "GradientEnd", 0xFFFFFF), 75);
}

int MenuLook::GradientWidth() {
    return std::clamp(Value(m_gradientWidth, kMenuXP, "GradientWidth", 30), 0, 0x7FFF);
}

} // namespace tint
