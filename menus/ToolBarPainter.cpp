// SPDX-License-Identifier: MIT
#include "menus/ToolBarPainter.h"

#include "draw/Selectors.h"
#include "menus/Silhouette.h"
#include "menus/SystemTints.h"

namespace tint {
namespace {

constexpr int kArrowWidth = 13; ///< of the arrow half of a drop-down button

/// The face of a framed button: the stronger the state, the stronger the tint.
COLORREF FaceColor(bool hot, bool pressed, bool checked) {
    if (pressed || (hot && checked))
        return HighlightTint(50, -50);
    return hot ? HighlightTint(70, -57) : HighlightTint(80, -66);
}

COLORREF SilhouetteColor(bool hot, bool open) {
    if (!hot)
        return FaceTint(-27);
    return open ? FaceTint(-20) : HighlightTint(50, -66);
}

} // namespace

COLORREF ToolBarPainter::BackgroundColor() {
    return FaceTint(20);
}

ToolBarPainter::ToolBarPainter(CDC& dc, const CWnd& toolBar, CSize imageSize)
    : m_dc(dc), m_toolBar(toolBar.m_hWnd), m_imageSize(imageSize) {
    m_images = reinterpret_cast<HIMAGELIST>(Ask(TB_GETIMAGELIST));
    ::GetClientRect(m_toolBar, &m_client);
    m_buttonDown = ::GetKeyState(VK_LBUTTON) < 0;
    if (!m_buttonDown)
        return; // where the mouse is shows only then, and to ask takes a while
    ::GetCursorPos(&m_mouse);
    ::ScreenToClient(m_toolBar, &m_mouse);
}

void ToolBarPainter::Paint() {
    CRect clip;
    m_dc.GetClipBox(clip);
    m_dc.SetBkMode(TRANSPARENT);
    const CDCObjectSaver font(m_dc, DEFAULT_GUI_FONT);
    m_dc.FillSolidRect(clip, BackgroundColor());

    const int count = static_cast<int>(Ask(TB_BUTTONCOUNT));
    const int hot = static_cast<int>(Ask(TB_GETHOTITEM));
    for (int index = 0; index < count; ++index) {
        Item item;
        if (!Ask(TB_GETBUTTON, index, reinterpret_cast<LPARAM>(&item.button)) ||
            item.Has(TBSTATE_HIDDEN))
            continue;
        Ask(TB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item.rect));
        CRect visible;
        if (visible.IntersectRect(item.rect, clip))
            PaintItem(item, index == hot);
    }
}

void ToolBarPainter::PaintItem(Item& item, bool underMouse) {
    item.hot = underMouse && item.IsEnabled();
    if (item.IsOpen()) {
        PaintOpenOutline(item.rect);
        item.hot = true;
    } else if (item.hot || item.Has(TBSTATE_CHECKED)) {
        PaintFace(item);
    }
    if (item.Is(TBSTYLE_SEP)) {
        if (item.button.idCommand == 0)
            PaintSeparator(item);
        return; // a control stands in the place of any other
    }
    if (item.Is(TBSTYLE_DROPDOWN)) {
        PaintArrow(item);
        item.rect.right -= kArrowWidth + 1;
    }
    if (item.button.iBitmap < 0)
        return;
    const bool lifted = item.hot && !item.pressed;
    if (lifted || !item.IsEnabled())
        PaintSilhouette(item);
    if (item.IsEnabled()) {
        const int offset = lifted ? 2 : 3;
        ::ImageList_Draw(m_images, item.button.iBitmap, m_dc, item.rect.left + offset,
                         item.rect.top + offset, ILD_TRANSPARENT);
    }
}

/// The outline of the menu that hangs below; the line on the left goes on to it.
void ToolBarPainter::PaintOpenOutline(const CRect& rect) {
    CPenSelector pen(m_dc, ::GetSysColor(COLOR_3DDKSHADOW));
    POINT outline[] = {{rect.left, rect.bottom},
                       {rect.left, rect.top},
                       {rect.right - 1, rect.top},
                       {rect.right - 1, rect.bottom - 1},
                       {rect.left, rect.bottom - 1}};
    m_dc.Polyline(outline, static_cast<int>(std::size(outline)));
}

void ToolBarPainter::PaintFace(Item& item) {
    const bool dropDown = item.Is(TBSTYLE_DROPDOWN);
    item.pressed = IsPressedInto(item.rect);
    if (dropDown && item.pressed) {
        // On the arrow, the button half is not pressed.
        item.pressed = m_mouse.x < item.rect.right - kArrowWidth;
        if (item.pressed)
            item.rect.right -= kArrowWidth;
    }
    CPenSelector pen(m_dc, ::GetSysColor(COLOR_HIGHLIGHT));
    CBrushSelector brush(m_dc, FaceColor(item.hot, item.pressed, item.Has(TBSTATE_CHECKED)));
    m_dc.Rectangle(item.rect);
    if (dropDown)
        PaintSplit(item);
}

/// The arrow half of a framed drop-down button.  While the button half is pressed, the rectangle has
/// been cut to it, and is made whole here.
void ToolBarPainter::PaintSplit(Item& item) {
    CRect& rect = item.rect;
    if (item.pressed) {
        CBrushSelector brush(m_dc, HighlightTint(70, -66));
        m_dc.Rectangle(rect.right - 1, rect.top, rect.right + kArrowWidth, rect.bottom);
        rect.right += kArrowWidth;
        return;
    }
    m_dc.MoveTo(rect.right - kArrowWidth - 1, rect.top);
    m_dc.LineTo(rect.right - kArrowWidth - 1, rect.bottom);
}

void ToolBarPainter::PaintSeparator(const Item& item) {
    CPenSelector pen(m_dc, FaceTint(-15));
    const CRect& rect = item.rect;
    if (item.Has(TBSTATE_WRAP)) {
        m_dc.MoveTo(m_client.left + 2, rect.bottom - 4);
        m_dc.LineTo(m_client.right - 2, rect.bottom - 4);
        return;
    }
    const int x = (rect.left + rect.right) / 2 - 1;
    m_dc.MoveTo(x, rect.top + 2);
    m_dc.LineTo(x, rect.bottom - 2);
}

/// A triangle of three rows: five, three and one pixels.
void ToolBarPainter::PaintArrow(const Item& item) {
    COLORREF color = ::GetSysColor(item.IsEnabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
    if (item.hot && !item.IsOpen())
        color = RGB(0, 0, 0); // the tint below is light under every colour scheme
    const int right = item.rect.right;
    const int middle = (item.rect.top + item.rect.bottom) / 2;
    CPenSelector pen(m_dc, color);
    m_dc.MoveTo(right - 9, middle - 1);
    m_dc.LineTo(right - 4, middle - 1);
    m_dc.MoveTo(right - 8, middle);
    m_dc.LineTo(right - 5, middle);
    m_dc.SetPixelV(right - 7, middle + 1, color);
}

void ToolBarPainter::PaintSilhouette(const Item& item) {
    const int offset = item.hot ? 4 : 3;
    DrawSilhouette(m_dc, {m_images, item.button.iBitmap},
                   {item.rect.left + offset, item.rect.top + offset}, m_imageSize,
                   SilhouetteColor(item.hot, item.IsOpen()));
}

bool ToolBarPainter::IsPressedInto(const CRect& rect) const {
    return m_buttonDown && rect.PtInRect(m_mouse);
}

LRESULT ToolBarPainter::Ask(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageA(m_toolBar, message, wParam, lParam);
}

} // namespace tint
