// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

namespace tint {

/// Paints the buttons of a toolbar as they are now: one object for one paint.
class ToolBarPainter {
public:
    /// @param dc         the buffer to draw into, in the toolbar's client coordinates; its clip box is
    ///                   what gets painted
    /// @param toolBar    a window of class "ToolbarWindow32"
    /// @param imageSize  of the toolbar's images, in pixels
    ToolBarPainter(CDC& dc, const CWnd& toolBar, CSize imageSize);

    void Paint();

    /// What the buttons lie on.
    static COLORREF BackgroundColor();

private:
    struct Item {
        TBBUTTON button = {};
        CRect rect;
        bool hot = false;
        bool pressed = false;

        bool Has(BYTE state) const { return (button.fsState & state) != 0; }
        bool Is(BYTE style) const { return (button.fsStyle & style) != 0; }
        bool IsOpen() const { return Has(TBSTATE_INDETERMINATE); }
        bool IsEnabled() const { return Has(TBSTATE_ENABLED); }
    };

    void PaintItem(Item& item, bool underMouse);
    void PaintOpenOutline(const CRect& rect);
    void PaintFace(Item& item);
    void PaintSplit(Item& item);
    void PaintSeparator(const Item& item);
    void PaintArrow(const Item& item);
    void PaintSilhouette(const Item& item);
    bool IsPressedInto(const CRect& rect) const;
    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    CDC& m_dc;
    HWND m_toolBar;
    CSize m_imageSize;
    HIMAGELIST m_images;
    CRect m_client;
    bool m_buttonDown;
    CPoint m_mouse; ///< while the button is down
};

} // namespace tint
