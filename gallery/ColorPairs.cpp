// SPDX-License-Identifier: MIT
#include "gallery/ColorPairs.h"

#include <algorithm>
#include <cmath>

#include "menus/MenuLook.h"
#include "menus/SystemTints.h"

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kNearlyWhite = RGB(0xF0, 0xF0, 0xF0);

COLORREF System(int index) {
    return ::GetSysColor(index);
}

using MenuPairs = std::array<ColorPair, 7>;

MenuPairs SkinnedMenus() {
    auto& look = tint::MenuLook::Get();
    const COLORREF text = System(COLOR_MENUTEXT);
    const COLORREF pale = tint::FaceTint(-18);
    return {{
        {"Menu bar", text, System(COLOR_BTNFACE), false},
        {"Menu bar, hot", text, tint::HighlightTint(70, -57), false},
        {"Menu bar, open", text, tint::FaceTint(20), false},
        {"Menu bar, inactive", System(COLOR_BTNSHADOW), System(COLOR_BTNFACE), true},
        {"Menu", text, look.GradientEnd(), false},
        {"Menu, selected", text, look.GradientStart(), false}, // the dark end of the gradient
        {"Menu, disabled", pale, look.GradientEnd(), true},
    }};
}

/// When the user asks for high contrast: the system's colours as they are.
MenuPairs PlainMenus() {
    const COLORREF text = System(COLOR_MENUTEXT);
    const COLORREF grey = System(COLOR_GRAYTEXT);
    const COLORREF selectedText = System(COLOR_HIGHLIGHTTEXT);
    const COLORREF selected = System(COLOR_HIGHLIGHT);
    return {{
        {"Menu bar", text, System(COLOR_BTNFACE), false},
        {"Menu bar, hot", selectedText, selected, false},
        {"Menu bar, open", text, tint::FaceTint(20), false},
        {"Menu bar, inactive", grey, System(COLOR_BTNFACE), true},
        {"Menu", text, System(COLOR_MENU), false},
        {"Menu, selected", selectedText, selected, false},
        {"Menu, disabled", grey, System(COLOR_MENU), true},
    }};
}

double Linear(int channel) {
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(COLORREF color) {
    return 0.2126 * Linear(GetRValue(color)) + 0.7152 * Linear(GetGValue(color)) +
           0.0722 * Linear(GetBValue(color));
}

} // namespace

std::array<ColorPair, 22> ColorPairs() {
    const MenuPairs menus = tint::IsHighContrast() ? PlainMenus() : SkinnedMenus();
    return {{
        {"Button", System(COLOR_BTNTEXT), tint::FaceTint(15), false},
        {"Button, hot", kBlack, tint::HighlightTint(80, -66), false},
        {"Button, pressed", kNearlyWhite, tint::HighlightTint(50, -50), false},
        {"Button, disabled", System(COLOR_GRAYTEXT), tint::FaceTint(15), true},
        {"Glyph", System(COLOR_BTNTEXT), System(COLOR_BTNFACE), false},
        {"Glyph, hot", kBlack, tint::HighlightTint(70, -57), false},
        {"Glyph, pressed", kNearlyWhite, tint::HighlightTint(50, -50), false},
        {"Glyph, disabled", System(COLOR_GRAYTEXT), System(COLOR_BTNFACE), true},
        {"List", System(COLOR_WINDOWTEXT), System(COLOR_WINDOW), false},
        {"List, selected", System(COLOR_HIGHLIGHTTEXT), System(COLOR_HIGHLIGHT), false},
        {"Toolbar arrow", System(COLOR_BTNTEXT), tint::FaceTint(20), false},
        {"Toolbar arrow, hot", kBlack, tint::HighlightTint(70, -57), false},
        menus[0],
        menus[1],
        menus[2],
        menus[3],
        menus[4],
        menus[5],
        menus[6],
        // A link's own colours do not follow the scheme; a program may set others.
        {"Link", RGB(0, 0, 238), System(COLOR_BTNFACE), false},
        {"Link, visited", RGB(85, 26, 139), System(COLOR_BTNFACE), false},
        {"Link, hot", RGB(255, 0, 0), System(COLOR_BTNFACE), false},
    }};
}

double ContrastRatio(COLORREF text, COLORREF background) {
    const auto [darker, lighter] = std::minmax({Luminance(text), Luminance(background)});
    return (lighter + 0.05) / (darker + 0.05);
}
