// SPDX-License-Identifier: MIT
/// @file
/// afx::ToolBarLayout: the part of CToolBar that measures and wraps.
#pragma once

#include "afx/CControlBar.h"

#include <vector>

namespace afx {

/// A bar whose window is a toolbar control, and the layout of its buttons in rows.
///
/// The buttons are fetched with TB_GETBUTTON through the virtual DefWindowProc(), so that a derived
/// class can have the layout see other states than the control has.
class ToolBarLayout : public CControlBar {
public:
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    CSize CalcDynamicLayout(int nLength, DWORD nMode) override;

protected:
    ToolBarLayout();

    /// Lays the buttons out now if that was put off.
    void Layout();

    /// The buttons were changed and are to be laid out before they are next shown or asked for.
    BOOL m_bDelayedButtonLayout;
    /// Size of a button's image in pixels.
    CSize m_sizeImage;

private:
    using Buttons = std::vector<TBBUTTON>;

    Buttons FetchButtons();
    CSize LayOut(int length, DWORD mode);
    void Wrap(Buttons& buttons, int width);
    void WrapToHeight(Buttons& buttons, int height);
    CSize Measure(const Buttons& buttons);
    void Commit(const Buttons& buttons);
    int WidthOf(const Buttons& buttons, std::size_t index);
    CSize ButtonSize();

    /// Width of the rows while the bar floats: as last committed.
    int m_floatingWidth;
};

} // namespace afx
