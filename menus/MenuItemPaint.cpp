// SPDX-License-Identifier: MIT
#include "menus/MenuItemPaint.h"

#include "draw/ColorMarkers.h"
#include "draw/Selectors.h"
#include "menus/MenuLook.h"
#include "menus/MenuPaint.h"
#include "menus/MenuState.h"
#include "menus/Silhouette.h"
#include "menus/SystemTints.h"

namespace tint {
namespace {

constexpr int kFlatColumn = 22;     // width of the icon column without a gradient
constexpr int kTextLeft = 30;       // where labels and separators begin
constexpr int kBarShadow = 4;       // on the right of a bar item
constexpr int kImageSize = 16;      // the toolbar images' width and height
constexpr int kCheckWidth = 15;     // of the box a check mark or bullet stands in
constexpr int kAcceleratorGap = 12; // on the right of accelerator texts

/// The system's check mark (OBM_CHECK, which windows.h shows only to those who ask for OEM resources).
constexpr UINT kOemCheckMark = 32760;

COLORREF System(int index) {
    return ::GetSysColor(index);
}

/// Paints one item, a layer after the other.
class Painter {
public:
    Painter(const CMenuItemXP& item, CDC& dc, const RECT& rect, const MenuItemState& state)
        : m_item(item), m_dc(dc), m_rect(rect), m_state(state), m_disabled(item.IsDisabled()) {}

    bool Paint() {
        const bool open = m_state.barItem && m_state.selected;
        DrawBackground();
        if (m_item.IsSeparator())
            DrawSeparator();
        else if (m_item.HasLabel())
            DrawContents();
        return open;
    }

private:
    void DrawBackground();
    void DrawOpenBarItem();
    void DrawResting();
    void DrawHighlight();
    void DrawSeparator();
    void DrawContents();
    void DrawBarLabel(UINT prefix);
    void DrawTexts(UINT prefix);
    void DrawCheckedFrame();
    void DrawImage();
    void DrawCheckMark();
    void DrawRadioBullet();

    COLORREF TextColor() const;
    COLORREF CheckedFill() const;

    bool HasGradient() const {
        return MenuLook::Get().ShowGradient() && m_dc.GetDeviceCaps(BITSPIXEL) > 8;
    }

    /// The rectangle without the strip that is kept for a bar item's shadow.
    CRect BarItemRect() const {
        return {m_rect.left, m_rect.top, m_rect.right - kBarShadow, m_rect.bottom};
    }

    CRect BarStrip() const {
        return {m_rect.right - kBarShadow, m_rect.top, m_rect.right, m_rect.bottom};
    }

    const CMenuItemXP& m_item;
    CDC& m_dc;
    const CRect m_rect;
    const MenuItemState m_state;
    const bool m_disabled;
    COLORREF m_fill = kNoColor; ///< what lies under a check mark, once it is known
};

void Painter::DrawBackground() {
    if (m_state.barItem && m_state.selected)
        DrawOpenBarItem();
    else if (m_state.selected || (m_state.hot && !m_state.inactive))
        DrawHighlight();
    else
        DrawResting();
}

void Painter::DrawOpenBarItem() {
    const CRect framed = BarItemRect();
    GetMenuState().openBarItem = framed;
    {
        const CPenSelector pen(m_dc, System(COLOR_3DDKSHADOW));
        const CBrushSelector brush(m_dc, FaceTint(20));
        m_dc.Rectangle(framed);
    }
    m_dc.FillSolidRect(BarStrip(), System(COLOR_BTNFACE));
    DrawBarItemShadow(m_dc, BarStrip());
}

void Painter::DrawResting() {
    if (m_state.barItem) {
        m_dc.FillSolidRect(m_rect, System(COLOR_BTNFACE));
        return;
    }
    CRect column = m_rect;
    CRect rest = m_rect;
    if (HasGradient()) {
        MenuLook& look = MenuLook::Get();
        column.right = rest.left = m_rect.left + look.GradientWidth();
        DrawGradient(m_dc, look.GradientStart(), look.GradientEnd(), column);
        m_dc.FillSolidRect(rest, look.GradientEnd());
    } else {
        column.right = rest.left = m_rect.left + kFlatColumn;
        m_dc.FillSolidRect(column, FaceTint(20));
        m_dc.FillSolidRect(rest, FaceTint(75));
    }
}

void Painter::DrawHighlight() {
    m_fill = m_disabled ? FaceTint(73) : HighlightTint(70, -57);
    const CPenSelector pen(m_dc, System(COLOR_HIGHLIGHT));
    CBrushSelector brush(m_dc, m_fill);
    if (m_state.barItem) {
        m_dc.Rectangle(BarItemRect());
        m_dc.FillSolidRect(BarStrip(), System(COLOR_BTNFACE));
        return;
    }
    MenuLook& look = MenuLook::Get();
    if (HasGradient() && look.ShowGradientSel()) {
        const COLORREF start = m_disabled ? m_fill : look.GradientStart();
        DrawGradient(m_dc, start, look.GradientEnd(), m_rect);
        brush.SetColor(kNoColor);
    }
    m_dc.Rectangle(m_rect);
}

COLORREF Painter::TextColor() const {
    if (m_state.inactive)
        return System(COLOR_BTNSHADOW);
    return m_disabled ? FaceTint(-18) : System(COLOR_MENUTEXT);
}

COLORREF Painter::CheckedFill() const {
    if (m_disabled)
        return FaceTint(73);
    return m_state.selected ? HighlightTint(50, -50) : HighlightTint(70, -57);
}

void Painter::DrawSeparator() {
    const CPenSelector pen(m_dc, FaceTint(-18));
    const int y = (m_rect.top + m_rect.bottom) / 2;
    m_dc.MoveTo(m_rect.left + kTextLeft, y);
    m_dc.LineTo(m_rect.right - 1, y);
}

void Painter::DrawContents() {
    m_dc.SetTextColor(TextColor());
    m_dc.SetBkMode(TRANSPARENT);
    BOOL cues = TRUE;
    if (!::SystemParametersInfoA(SPI_GETKEYBOARDCUES, 0, &cues, 0))
        cues = TRUE;
    const UINT prefix = m_state.noCues && !cues ? DT_HIDEPREFIX : 0;

    if (m_state.barItem) {
        DrawBarLabel(prefix);
        return;
    }
    DrawTexts(prefix);
    if (m_item.IsChecked())
        DrawCheckedFrame();
    if (m_item.HasImage())
        DrawImage();
    else if (m_item.IsChecked() && m_item.IsRadio())
        DrawRadioBullet();
    else if (m_item.IsChecked())
        DrawCheckMark();
}

void Painter::DrawBarLabel(UINT prefix) {
    CRect place = BarItemRect();
    m_dc.DrawText(m_item.LabelText(), place, DT_CENTER | DT_VCENTER | DT_SINGLELINE | prefix);
}

void Painter::DrawTexts(UINT prefix) {
    const CFontWeightSelector weight(m_dc, m_item.IsDefault());
    CRect place = m_rect;
    place.left += kTextLeft;
    m_dc.DrawText(m_item.LabelText(), place, DT_VCENTER | DT_SINGLELINE | prefix);
    const CString accelerator = m_item.AcceleratorText();
    if (!accelerator.IsEmpty()) {
        place.right -= kAcceleratorGap;
        m_dc.DrawText(accelerator, place, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    }
}

void Painter::DrawCheckedFrame() {
    m_fill = CheckedFill();
    const CPenSelector pen(m_dc, System(COLOR_HIGHLIGHT));
    const CBrushSelector brush(m_dc, m_fill);
    m_dc.Rectangle(m_rect.left + 1, m_rect.top + 1, m_rect.left + 20, m_rect.bottom - 1);
}

void Painter::DrawImage() {
    const CImgDesc& image = m_item.Image();
    const bool raised = m_state.selected && !m_item.IsChecked();
    const auto silhouette = [&](int offset, COLORREF color) {
        DrawSilhouette(m_dc, image, {m_rect.left + offset, m_rect.top + offset},
                       {kImageSize, kImageSize}, color);
    };
    if (m_disabled) {
        silhouette(3, FaceTint(-27)); // is all there is to see
        return;
    }
    if (raised)
        silhouette(4, HighlightTint(50, -66));
    const int offset = raised ? 2 : 3;
    ::ImageList_Draw(image.imageList, image.index, m_dc, m_rect.left + offset, m_rect.top + offset,
                     ILD_TRANSPARENT);
}

void Painter::DrawCheckMark() {
    CBitmap check;
    if (!check.LoadOEMBitmap(kOemCheckMark))
        return;
    m_dc.SetBkColor(m_fill);
    m_dc.DrawState(CPoint(m_rect.left + 5, m_rect.top + 3), CSize(kCheckWidth, m_rect.Height()),
                   &check, DSS_NORMAL);
}

void Painter::DrawRadioBullet() {
    const COLORREF color = m_disabled ? FaceTint(-27) : System(COLOR_MENUTEXT);
    const CPenSelector pen(m_dc, color);
    const CBrushSelector brush(m_dc, color);
    const int x = (m_rect.left + 5 + m_rect.left + 5 + kCheckWidth) / 2;
    const int y = (m_rect.top + m_rect.bottom) / 2;
    // Off centre, with a glint on its lower right: deliberate, it makes the bullet look round.
    m_dc.Ellipse(x - 4, y - 3, x + 3, y + 4);
    m_dc.SetPixel(x + 1, y + 2, m_fill);
}

} // namespace

MenuItemState MenuItemState::Of(const DRAWITEMSTRUCT& item) {
    MenuItemState state;
    state.barItem = (item.itemData & 0xFF) == 0;
    state.selected = (item.itemState & ODS_SELECTED) != 0;
    state.hot = (item.itemState & ODS_HOTLIGHT) != 0;
    state.inactive = (item.itemState & ODS_INACTIVE) != 0;
    state.noCues = (item.itemState & ODS_NOACCEL) != 0;
    return state;
}

bool DrawMenuItem(const CMenuItemXP& item, CDC& dc, const RECT& rect, const MenuItemState& state) {
    return Painter(item, dc, rect, state).Paint();
}

} // namespace tint
