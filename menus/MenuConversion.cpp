// SPDX-License-Identifier: MIT
// CMenuXP: turning items into owner-drawn ones.
#include <algorithm>

#include "draw/Selectors.h"
#include "menus/CommandImages.h"
#include "menus/Contained.h"
#include "menus/MenuBar.h"
#include "menus/MenuItemData.h"
#include "menus/MenuItemXP.h"
#include "menus/MenuRecords.h"
#include "menus/MenuState.h"
#include "menus/MenuXP.h"

namespace {

using tint::MenuItemData;

/// One item by its position, with its caption.
///
/// Type, string and bitmap are asked for apart (rather than with MIIM_TYPE, which cannot tell an
/// owner-drawn item's string), and only the type is written back: so the string stays with the item
/// for the application and for assistive tools to read.
class MenuItem {
public:
    MenuItem(HMENU menu, int position) : m_menu(menu), m_position(static_cast<UINT>(position)) {
        m_info.cbSize = sizeof m_info;
        m_info.fMask = MIIM_ID | MIIM_SUBMENU | MIIM_FTYPE | MIIM_STRING | MIIM_BITMAP;
        m_info.dwTypeData = m_caption;
        m_info.cch = kCaptionSize;
        m_read = ::GetMenuItemInfoA(menu, m_position, TRUE, &m_info) != FALSE;
        m_caption[kCaptionSize - 1] = '\0'; // some systems leave a cut text without its end
    }

    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;

    bool IsRead() const { return m_read; }
    bool IsOwnerDrawn() const { return (m_info.fType & MFT_OWNERDRAW) != 0; }
    bool IsSeparator() const { return (m_info.fType & MFT_SEPARATOR) != 0; }
    bool IsBitmap() const { return (m_info.fType & MFT_BITMAP) != 0 || m_info.hbmpItem != nullptr; }
    const MENUITEMINFOA& Info() const { return m_info; }
    LPCSTR Caption() const { return m_caption; }

    void MakeOwnerDrawn() { Write(MIIM_FTYPE, OwnerDrawnType(), MenuItemData(0)); }
    void MakeOwnerDrawn(MenuItemData data) {
        Write(MIIM_FTYPE | MIIM_DATA, OwnerDrawnType(), data);
    }
    void MakeSystemDrawn() {
        Write(MIIM_FTYPE, m_info.fType & ~UINT{MFT_OWNERDRAW | MFT_BITMAP}, MenuItemData(0));
    }
    void SetData(MenuItemData data) { Write(MIIM_DATA, 0, data); }

private:
    static constexpr UINT kCaptionSize = 255; ///< bytes, with the terminator

    /// A bitmap is no type any more where it is asked for apart; it stays with the item.
    UINT OwnerDrawnType() const { return (m_info.fType & ~UINT{MFT_BITMAP}) | MFT_OWNERDRAW; }

    void Write(UINT mask, UINT type, MenuItemData data) const {
        MENUITEMINFOA info = {};
        info.cbSize = sizeof info;
        info.fMask = mask;
        info.fType = type;
        info.dwItemData = data.Word();
        ::SetMenuItemInfoA(m_menu, m_position, TRUE, &info);
    }

    HMENU m_menu;
    UINT m_position;
    char m_caption[kCaptionSize + 1] = {};
    MENUITEMINFOA m_info = {};
    bool m_read = false;
};

/// Measures texts as menus show them: with the menu font, on the screen of the main window.
class MeasuringContext {
public:
    MeasuringContext() : m_dc(::AfxGetMainWnd()), m_font(m_dc, DEFAULT_GUI_FONT) {}

    CDC& dc() { return m_dc; }

    int LineHeight() {
        TEXTMETRICA metrics = {};
        ::GetTextMetricsA(m_dc, &metrics);
        return metrics.tmHeight;
    }

private:
    CClientDC m_dc;
    CDCObjectSaver m_font;
};

/// Converts the items of one menu.
class Conversion {
public:
    Conversion(HMENU menu, bool menuBar, const tint::CommandImages& images)
        : m_menu(menu), m_menuBar(menuBar), m_images(images) {}

    void Run() {
        const int count = ::GetMenuItemCount(m_menu);
        for (int position = 0; position < count; ++position)
            Take(position);
        for (int position = 0; position < count && !m_menuBar; ++position)
            StoreSizes(position);
    }

private:
    void Take(int position) {
        MenuItem item(m_menu, position);
        if (!item.IsRead())
            return;
        if (!item.IsOwnerDrawn() && !(m_menuBar && item.IsBitmap()))
            Convert(item);
        if (!m_menuBar)
            Measure(position);
    }

    void Convert(MenuItem& item) {
        if (m_menuBar)
            item.MakeOwnerDrawn(MenuItemData::BarItem(BarLabelWidth(item.Caption())));
        else
            item.MakeOwnerDrawn();
        if (item.IsSeparator())
            return;
        auto& records = tint::MenuRecords::Get();
        records.SetText(item.Info(), item.Caption());
        const auto found = m_images.Find(item.Info().wID);
        if (found.toolbar != nullptr)
            records.SetImage(item.Info(), found.image, found.toolbar);
    }

    int BarLabelWidth(LPCSTR caption) {
        CRect rect(0, 0, 1000, 0);
        m_context.dc().DrawText(caption, -1, rect, DT_CALCRECT | DT_SINGLELINE);
        return rect.Width();
    }

    void Measure(int position) {
        const CMenuItemXP item(m_menu, static_cast<UINT>(position), true);
        m_labelWidth = (std::max)(m_labelWidth, item.LabelWidth(m_context.dc()));
        m_acceleratorWidth = (std::max)(m_acceleratorWidth, item.AcceleratorWidth(m_context.dc()));
    }

    /// Also for items that were owner-drawn before: their labels take part in the width of the popup.
    void StoreSizes(int position) {
        MenuItem item(m_menu, position);
        if (!item.IsRead())
            return;
        const int line = m_context.LineHeight();
        item.SetData(item.IsSeparator()
                         ? MenuItemData::Separator(line / 2 + 2)
                         : MenuItemData::PopupItem((std::max)(line + 2, 16) + 4, m_acceleratorWidth,
                                                   m_labelWidth));
    }

    HMENU m_menu;
    bool m_menuBar;
    const tint::CommandImages& m_images;
    MeasuringContext m_context;
    int m_labelWidth = 0;
    int m_acceleratorWidth = 0;
};

bool IsSystemMenuOfActiveChild(CWnd* window, HMENU menu) {
    auto* const frame = dynamic_cast<CMDIFrameWnd*>(window);
    const CMDIChildWnd* const child = frame == nullptr ? nullptr : frame->MDIGetActive();
    return child != nullptr && ::GetSystemMenu(child->GetSafeHwnd(), FALSE) == menu;
}

} // namespace

void CMenuXP::UpdateMenuBar(CWnd* window) {
    if (!IsMenuXPEnabled(window))
        return;
    if (const HMENU bar = tint::MenuBarOf(window->m_hWnd))
        ConvertMenu(window, bar, true, true);
}

void CMenuXP::ConvertMenu(CWnd* window, HMENU menu, bool enable, bool menuBar) {
    if (!enable)
        return;
    tint::Contained([=] {
        tint::MenuRecords::Get().PurgeDeadSubmenus();
        tint::CommandImages images;
        if (window != nullptr && !menuBar) {
            if (IsSystemMenuOfActiveChild(window, menu)) {
                // It is not one of the bar's items that this popup hangs below.
                ::SetRectEmpty(&tint::GetMenuState().openBarItem);
                return;
            }
            images = tint::CommandImages(*window);
        }
        Conversion(menu, menuBar, images).Run();
    });
}

void CMenuXP::RestoreMenu(HMENU menu) {
    const int count = ::GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position) {
        MenuItem item(menu, position);
        if (item.IsRead() && item.IsOwnerDrawn())
            item.MakeSystemDrawn();
    }
}
