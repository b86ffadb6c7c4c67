// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>
#include <afxext.h>

#include <vector>

/// A status bar whose panes have flat frames, one pixel wide, in the colour of the button shadow.
///
/// Use it in place of CStatusBar; nothing else changes.
class CStatusBarXP : public CStatusBar {
public:
    /// Sets the panes, as CStatusBar::SetIndicators does, and takes away their sunken borders.
    /// @param indicators  command identifiers, one a pane; null leaves the panes without any
    /// @return FALSE when an identifier has no string resource
    BOOL SetIndicators(const UINT* indicators, int count);

protected:
    afx_msg void OnPaint();
    afx_msg LRESULT OnSkinSwitch(WPARAM enabled, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    void ApplyLook(bool skinned);
    void PaintFrames();

    std::vector<UINT> m_ownStyles; ///< of the panes, as the base class set them
};
