// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <optional>

namespace tint {

/// The look of menus that a user may choose: values of the application's profile (registry or INI
/// file), each read on its first use and then kept for the life of the process.
///
/// | section | key             | default  | meaning                                                  |
/// |---------|-----------------|----------|----------------------------------------------------------|
/// | MenuXP  | ShowGradient    | 1        | the icon column of popups is a gradient                   |
/// | MenuEx  | ShowGradientSel | 1        | so is a selected item (the other section is deliberate)   |
/// | MenuXP  | GradientStart   | 14992564 | left colour, a COLORREF                                   |
/// | MenuXP  | GradientEnd     | 16777215 | right colour, also that of the text area                  |
/// | MenuXP  | GradientWidth   | 30       | of the icon column, pixels                                |
///
/// A colour of 0xFFFFFFFF (-1) means: derive it from the system's button face.
class MenuLook {
public:
    /// The values of the process.
    static MenuLook& Get();

    bool ShowGradient();
    bool ShowGradientSel();

    /// Derived colours are worked out anew at each call, so they follow the system's scheme.
    COLORREF GradientStart();
    COLORREF GradientEnd();

    /// 0 to 32767, whatever the profile says.
    int GradientWidth();

    /// Forgets what was read, so that the next use reads the profile again; for an application that
    /// lets its user change these values.
    void Forget() { *this = MenuLook(); }

private:
    std::optional<int> m_showGradient;
    std::optional<int> m_showGradientSel;
    std::optional<int> m_gradientStart;
    std::optional<int> m_gradientEnd;
    std::optional<int> m_gradientWidth;
};

} // namespace tint
