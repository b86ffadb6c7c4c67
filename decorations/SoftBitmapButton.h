// SPDX-License-Identifier: MIT
#pragma once

#include <afxext.h>

/// A push button that is nothing but pictures: one for rest, one while pressed, one under the mouse,
/// one while disabled.
///
///     class CMyDialog : public CDialog {
///         CSoftBitmapButton m_play;
///         void DoDataExchange(CDataExchange* exchange) override {
///             DDX_Control(exchange, IDC_PLAY, m_play);
///         }
///         BOOL OnInitDialog() override {
///             CDialog::OnInitDialog();
///             m_play.LoadBitmapStrip(IDB_PLAY, 4);
///             m_play.SizeToContent();
///             return TRUE;
///         }
///     };
///
/// Subclass any push button of a dialog with it.  The first of these whose picture there is decides:
///
/// | condition       | picture                                            |
/// |-----------------|----------------------------------------------------|
/// | pressed         | the base class's "selected" one                    |
/// | disabled        | the "disabled" one                                 |
/// | under the mouse | the "focus" one; the keyboard focus shows nowhere  |
/// | otherwise       | the normal one                                     |
///
/// A picture is shown at its own size from the button's upper left corner on, cut where the button
/// ends.  Nothing else is drawn: no text, border, focus mark or background.  Where a picture ends
/// before the button, what was on the screen stays.
class CSoftBitmapButton : public CBitmapButton {
    DECLARE_DYNCREATE(CSoftBitmapButton)

public:
    /// Replaces all pictures by the frames of one bitmap resource, side by side and equally wide:
    /// normal, pressed, hover, disabled.
    ///
    /// Fewer frames leave the later pictures empty; frames beyond the fourth are ignored, and so are
    /// the columns left over where the width is no multiple of `count`.  Nothing is invalidated.
    /// @param resourceId  an RT_BITMAP resource of this program or the resource module in use
    /// @param count       frames in the strip
    /// @return 0 when `count` is 0 or larger than the strip is wide, or the resource is missing or
    ///         does not fit in memory: then the button has no picture at all
    BOOL LoadBitmapStrip(UINT resourceId, UINT count);

    void PreSubclassWindow() override;
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    DECLARE_MESSAGE_MAP()

private:
    void DeleteBitmaps();
    BOOL CutFrames(CBitmap& strip, UINT count);
    CBitmap& BitmapFor(UINT itemState);

    int m_mouseOver = 0; ///< 1: over the button, and its WM_MOUSELEAVE is asked for
};
