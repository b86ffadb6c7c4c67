// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace tint {

/// The sizes that the conversion of a menu stores in each item's dwItemData, for WM_MEASUREITEM and
/// WM_DRAWITEM, which bring that word along.
///
/// | bits  | popup item                              | item of a menu bar   |
/// |-------|-----------------------------------------|----------------------|
/// | 0-7   | height of the item, never 0             | 0, which tells it so |
/// | 8-15  | widest accelerator text of the popup    | 0                    |
/// | 16-31 | widest label of the popup               | width of its label   |
///
/// All in pixels.  What does not fit into its bits is cut off.
class MenuItemData {
public:
    explicit constexpr MenuItemData(ULONG_PTR word) : m_word(static_cast<DWORD>(word)) {}

    static constexpr MenuItemData BarItem(int labelWidth) {
        return MenuItemData(static_cast<DWORD>(labelWidth) << 16);
    }

    static constexpr MenuItemData PopupItem(int height, int acceleratorWidth, int labelWidth) {
        return MenuItemData((static_cast<DWORD>(height) & 0xFF) |
                            (static_cast<DWORD>(acceleratorWidth) & 0xFF) << 8 |
                            static_cast<DWORD>(labelWidth) << 16);
    }

    /// A separator carries its height alone.
    static constexpr MenuItemData Separator(int height) {
        return MenuItemData(static_cast<DWORD>(height));
    }

    constexpr ULONG_PTR Word() const { return m_word; }
    constexpr UINT Height() const { return m_word & 0xFF; }
    constexpr UINT AcceleratorWidth() const { return m_word >> 8 & 0xFF; }
    constexpr UINT LabelWidth() const { return m_word >> 16 & 0xFFFF; }
    constexpr bool IsBarItem() const { return Height() == 0; }

private:
    DWORD m_word;
};

} // namespace tint
