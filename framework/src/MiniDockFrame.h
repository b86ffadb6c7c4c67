// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CDockBar.h"
#include "afx/CMiniFrameWnd.h"

namespace afx {

/// The mini frame around a floating bar. It has the size of the bar: the user moves it, but does
/// not size it. It ends when the bar is docked.
class MiniDockFrame : public CMiniFrameWnd {
public:
    MiniDockFrame();
    ~MiniDockFrame() override;

    /// @param align the side whose orientation the bar takes.
    bool CreateFor(CControlBar& bar, CFrameWnd& owner, DWORD align);
    CDockBar& Dock() { return m_dock; }

    /// Takes the size of the bar; hides the frame around a hidden one.
    void RecalcLayout(BOOL bNotify = TRUE) override;

    /// The mini frame of a floating bar; null when the bar is docked.
    static MiniDockFrame* Of(const CControlBar& bar);

protected:
    afx_msg void OnClose();
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CDockBar m_dock;
};

} // namespace afx
