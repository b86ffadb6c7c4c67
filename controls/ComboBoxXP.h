// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "controls/ComboEditXP.h"
#include "draw/MouseHoverTracker.h"

/// A flat combo box with a tinted arrow button.  The system draws the text and the list; this draws the
/// frame and the arrow over it.
///
///     class CMyDialog : public CDialog {
///         CComboBoxXP m_units;
///         void DoDataExchange(CDataExchange* exchange) override { DDX_Control(exchange, IDC_UNITS, m_units); }
///     };
///
/// For the styles CBS_DROPDOWN and CBS_DROPDOWNLIST.  In a dialog it always has a frame.  On a control
/// bar it rests without one and lights up under the mouse and with the focus; there Enter sends the
/// parent its command, and Escape closes the list or leaves the bar.
///
/// | condition                       | outer frame   | arrow button            |
/// |---------------------------------|---------------|-------------------------|
/// | list open                       | highlight     | pressed face            |
/// | hot, or focused on a bar        | highlight     | hot face                |
/// | resting or disabled in a dialog | button shadow | button face, grey arrow when disabled |
/// | resting or disabled on a bar    | window        | as above, frame of the window colour  |
///
/// Height: unlike with the system's own, the height given to Create or to a resize is that of the closed
/// field.  The list shows GetVisibleRows() rows (fewer when it has fewer items).  In a dialog the field
/// keeps the height that the dialog's font gives it, until it is resized.
///
/// tint::EnableSkin switches between this look and the system's own; heights and keys stay as they are.
class CComboBoxXP : public CComboBox {
public:
    ~CComboBoxXP() override;

    void PreSubclassWindow() override;
    BOOL PreTranslateMessage(MSG* message) override;

    /// Creates the combo box, with the system's dialog font.
    /// @param rect  its bottom is that of the closed field
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override;

    int GetVisibleRows() const { return m_visibleRows; }

    /// @param rows  1 to kMostVisibleRows; others count as the nearest of these
    void SetVisibleRows(int rows);

    static constexpr int kMostVisibleRows = 1000;

    // For the edit field:

    CMouseHoverTracker& GetHoverTracker() { return m_hover; }

    /// Repaints all when the combo box is on a control bar, where the focus shows.
    void RepaintOnBar();

protected:
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    afx_msg void OnWindowPosChanged(WINDOWPOS* position);
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* oldFocus);
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnListOpensOrCloses();
    DECLARE_MESSAGE_MAP()

private:
    static constexpr UINT kNone = 0xFFFFFFFF;

    CFrameWnd* BarFrame() const;
    bool IsOnControlBar() const { return BarFrame() != nullptr; }
    void SetUp();
    int HeightWithList();
    void ApplyRequestedHeight();
    bool HasFocusWithin() const;
    void DrawSkin(const CRect& client, const CRect& arrow);
    void LeaveBar();

    int m_visibleRows = 7;
    UINT m_fieldHeight = kNone;     ///< of the moment; kNone: to be read
    UINT m_requestedHeight = kNone; ///< of the closed field, between the two halves of a resize
    CComboEditXP m_edit;            ///< without a window for CBS_DROPDOWNLIST
    CMouseHoverTracker m_hover;
    bool m_appliesHeight = false; ///< what the system does meanwhile is no further request
};
