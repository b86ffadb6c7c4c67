// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>
#include <afxext.h>

#include "draw/MouseHoverTracker.h"

/// A docking toolbar in the flat look: highlight-framed hot and checked buttons, images lifted over
/// their silhouette when hot, split drop-down buttons, and controls that stand among the buttons.
///
///     if (!m_toolBar.CreateEx(this) || !m_toolBar.LoadToolBar(IDR_MAINFRAME))
///         return -1;
///     m_toolBar.InsertControl(4, m_zoom); // a combo box that is a child of the toolbar
///
/// Skinned menus find the toolbar by its window class and take the pictures of their items from its
/// image list.
///
/// A control stands in the bar by a placeholder: a button of style TBSTYLE_SEP whose command is the
/// control's identifier (a plain separator has the command 0) and whose image index is the width in
/// pixels.  Where the bar is docked vertically, controls and placeholders are hidden.
///
/// The arrow of a drop-down button sends the owner WM_COMMAND with the negated command identifier,
/// so the two halves are told apart in the message map:
///
///     ON_COMMAND(ID_FILE_OPEN, &CMainFrame::OnFileOpen)
///     ON_COMMAND(static_cast<WORD>(-ID_FILE_OPEN), &CMainFrame::OnRecentFiles) // TrackDropDownMenu
class CToolBarXP : public CToolBar {
    DECLARE_DYNCREATE(CToolBarXP)

public:
    /// Loads buttons and images of an RT_TOOLBAR resource, and sets the borders and the split look of
    /// drop-down buttons.
    /// @return FALSE when the resource cannot be had
    BOOL LoadToolBar(UINT resourceId);
    BOOL LoadToolBar(LPCTSTR resourceName);

    /// Makes room among the buttons for a control, which the next layout moves there.
    /// @param index    where; below 0 or above the number of buttons means at the end
    /// @param control  a child of this toolbar with an identifier other than 0; its width now is the
    ///                 width of the place.  Not owned.
    BOOL InsertControl(int index, const CWnd& control);

    /// Shows a menu below a button, which looks open meanwhile; returns when the menu has closed.
    /// Its commands go to the frame window that the bar belongs to, also while the bar floats.
    /// @param commandId  the button's command; without such a button nothing happens
    void TrackDropDownMenu(UINT commandId, HMENU menu);

    CSize CalcDynamicLayout(int length, DWORD mode) override;

protected:
    void PreSubclassWindow() override;

    /// Hides the placeholders from the base class while it lays out a vertical bar.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Tells the owner that the arrow of a drop-down button was pressed: WM_COMMAND with the 16-bit
    /// two's complement of the button's command.  The bar should outlive the owner's handler, although a
    /// menu may run in it: the system's part of the control goes on with the click afterwards.
    /// @param result  TBDDRET_DEFAULT when the owner handled it, else TBDDRET_TREATPRESSED: the button
    ///                is then pressed as a whole
    afx_msg void OnDropDown(NMHDR* notification, LRESULT* result);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    enum class LayoutMode : BYTE { kNone, kVertical, kOther };

    BOOL FinishLoading();
    HWND FrameOfCommands() const;
    void SetOpen(UINT commandId, bool open);
    void PlaceControls(bool vertical);
    void PlaceControl(int index, const TBBUTTON& placeholder, CWnd& control, bool vertical);

    CMouseHoverTracker m_hover;
    LayoutMode m_layoutMode = LayoutMode::kNone; ///< other than kNone during one CalcDynamicLayout
};
