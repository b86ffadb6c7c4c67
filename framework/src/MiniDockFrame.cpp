// SPDX-License-Identifier: MIT
#include "MiniDockFrame.h"

#include <afxext.h>

#include "BarAccess.h"

BEGIN_MESSAGE_MAP(afx::MiniDockFrame, CMiniFrameWnd)
    ON_WM_CLOSE()
    ON_WM_NCLBUTTONDOWN()
END_MESSAGE_MAP()

afx::MiniDockFrame::MiniDockFrame() : m_dock(true) {}

afx::MiniDockFrame::~MiniDockFrame() = default;

bool afx::MiniDockFrame::CreateFor(CControlBar& bar, CFrameWnd& owner, DWORD align) {
    CString title;
    bar.GetWindowText(title);
    if (!Create(nullptr, title, WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                CRect(0, 0, 0, 0), &owner)) {
        return false;
    }
    if (!m_dock.CreateSide(this, align, AFX_IDW_DOCKBAR_FLOAT)) {
        DestroyWindow();
        return false;
    }
    return true;
}

afx::MiniDockFrame* afx::MiniDockFrame::Of(const CControlBar& bar) {
    if (!bar.IsFloating()) {
        return nullptr;
    }
    return dynamic_cast<MiniDockFrame*>(bar.m_pDockBar->GetParentFrame());
}

void afx::MiniDockFrame::RecalcLayout(BOOL) {
    if (m_hWnd == nullptr || m_dock.m_hWnd == nullptr) {
        return;
    }
    const CSize size = m_dock.CalcDynamicLayout(-1, LM_HORZ | LM_COMMIT);
    CRect window(CPoint(0, 0), size);
    ::AdjustWindowRectEx(window, GetStyle(), FALSE, GetExStyle());
    m_dock.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE |
                     (m_dock.ShowsBars() ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

void afx::MiniDockFrame::OnClose() {
    CControlBar* const bar = m_dock.FirstBar();
    if (bar == nullptr) {
        DestroyWindow();
    } else if (bar->m_pDockSite != nullptr) {
        // The bar stays floating and comes back where it was.
        bar->m_pDockSite->ShowControlBar(bar, FALSE, FALSE);
    }
}

void afx::MiniDockFrame::OnNcLButtonDown(UINT nHitTest, CPoint point) {
    CControlBar* const bar = m_dock.FirstBar();
    if (nHitTest != HTCAPTION || bar == nullptr || bar->m_pDockSite == nullptr) {
        CMiniFrameWnd::OnNcLButtonDown(nHitTest, point);
        return;
    }
    // The frame may be gone afterwards.
    DragBar(*bar, point);
}
