// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// An off-screen device context for one paint: everything drawn into it reaches the target in one
/// copy when it goes out of scope, so nothing flickers.
///
///     void CMyButton::DrawItem(LPDRAWITEMSTRUCT item)
///     {
///         CBufferDC dc(item->hDC, nullptr);
///         CPenSelector pen(dc, ::GetSysColor(COLOR_BTNSHADOW)); // after the buffer: released first
///         dc.Rectangle(&item->rcItem);
///     }                                                         // here the picture appears
///
/// Coordinates are those of the target; nothing is translated.  The bitmap therefore reaches from the
/// origin to the right and bottom edge of the rectangle, and what lies above and to the left of the
/// rectangle is clipped away.  Open one buffer a paint, and deselect whatever was selected into it
/// before it closes (the selectors of draw/Selectors.h, declared after it, do that by themselves).
///
/// Where no buffer can be had (out of memory, an absurd rectangle) it draws straight on the target:
/// the rectangle shows, if with a flicker, and the target's state is put back at the end.  A null or
/// invalid target draws nowhere.  Neither is reported.
class CBufferDC : public CDC {
public:
    /// Opens the buffer.
    /// @param target  the surface that receives the picture; not owned, must outlive the buffer
    /// @param rect    the rectangle to paint, in the target's logical coordinates; null or empty means
    ///                the target's clip box
    [[nodiscard]] CBufferDC(HDC target, const RECT* rect);

    /// Copies the rectangle to the target and releases everything.
    ~CBufferDC() override;

    CBufferDC(const CBufferDC&) = delete;
    CBufferDC& operator=(const CBufferDC&) = delete;

    // The forms that are not overridden stay reachable.
    using CDC::DrawText;
    using CDC::DrawTextEx;
    using CDC::Escape;
    using CDC::ExtTextOut;
    using CDC::PtVisible;
    using CDC::TabbedTextOut;
    using CDC::TextOut;

    // Each hands its arguments unchanged to the system call of the same name on the buffer.
    BOOL PtVisible(int x, int y) const override;
    BOOL RectVisible(LPCRECT rect) const override;
    BOOL TextOut(int x, int y, LPCTSTR text, int count) override;
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count,
                    LPINT widths) override;
    CSize TabbedTextOut(int x, int y, LPCTSTR text, int count, int tabCount, LPINT tabPositions,
                        int tabOrigin) override;
    int DrawText(LPCTSTR text, int count, LPRECT rect, UINT format) override;
    int DrawTextEx(LPTSTR text, int count, LPRECT rect, UINT format,
                   LPDRAWTEXTPARAMS parameters) override;
    BOOL GrayString(CBrush* brush, BOOL(CALLBACK* output)(HDC, LPARAM, int), LPARAM data, int count,
                    int x, int y, int width, int height) override;
    int Escape(int escape, int count, LPCSTR input, LPVOID output) override;

private:
    bool OpenBuffer();
    void ClipToRect();
    void DrawOnTarget();

    HDC m_target;
    CBitmap m_bitmap;
    RECT m_rect = {};
    HGDIOBJ m_previousBitmap = nullptr; ///< null: there is no buffer
    bool m_drawsOnTarget = false;
};
