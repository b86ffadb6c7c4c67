// SPDX-License-Identifier: MIT
// CFrameWnd: the control bars and their layout.
#include <afxext.h>

#include <algorithm>
#include <memory>

#include "BarAccess.h"
#include "MiniDockFrame.h"
#include "ThreadState.h"
#include "afxpriv.h"

CControlBar* CFrameWnd::GetControlBar(UINT nID) {
    for (POSITION place = m_listControlBars.GetHeadPosition(); place != nullptr;) {
        auto* const bar = static_cast<CControlBar*>(m_listControlBars.GetNext(place));
        if (bar->m_hWnd != nullptr && static_cast<UINT>(bar->GetDlgCtrlID()) == nID) {
            return bar;
        }
    }
    return nullptr;
}

// ---- Layout -------------------------------------------------------------------------------------

void CFrameWnd::RecalcLayout(BOOL) {
    // Bars that change while they are laid out ask for a layout again.
    if (m_layingOut || m_hWnd == nullptr) {
        return;
    }
    m_layingOut = true;
    m_layoutPending = false;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
    // What is laid out may have ended the frame.
    const std::vector<CFrameWnd*>& frames = afx::CurrentThread().frames;
    if (std::find(frames.begin(), frames.end(), this) != frames.end()) {
        m_layingOut = false;
    }
}

namespace {

/// The bar of a window; null when it has ended. Showing a bar calls handlers that may end any.
CControlBar* BarOf(HWND window) {
    return DYNAMIC_DOWNCAST(CControlBar, CWnd::FromHandlePermanent(window));
}

/// Fits the mini frame of a bar that floats and still exists.
void FitMiniFrame(HWND window) {
    CControlBar* const bar = BarOf(window);
    afx::MiniDockFrame* const mini = bar == nullptr ? nullptr : afx::MiniDockFrame::Of(*bar);
    if (mini != nullptr) {
        mini->RecalcLayout();
    }
}

} // namespace

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay) {
    if (bDelay) {
        afx::BarAccess::ShowLater(*pBar, bShow != FALSE);
        m_layoutPending = true;
        return;
    }
    const HWND frame = m_hWnd;
    const HWND window = pBar->m_hWnd;
    afx::BarAccess::Show(*pBar, bShow != FALSE);
    FitMiniFrame(window);
    if (::IsWindow(frame)) {
        RecalcLayout();
    }
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM) {
    if (!m_layoutPending) {
        return 0;
    }
    const HWND frame = m_hWnd;
    std::vector<HWND> windows;
    for (POSITION place = m_listControlBars.GetHeadPosition(); place != nullptr;) {
        windows.push_back(static_cast<CControlBar*>(m_listControlBars.GetNext(place))->m_hWnd);
    }
    for (const HWND window : windows) {
        if (CControlBar* const bar = BarOf(window)) {
            afx::BarAccess::ShowPending(*bar);
            FitMiniFrame(window);
        }
    }
    if (::IsWindow(frame)) {
        RecalcLayout();
    }
    return 0;
}

BOOL CFrameWnd::OnBarCheck(UINT nID) {
    CControlBar* const bar = GetControlBar(nID);
    if (bar == nullptr) {
        return FALSE;
    }
    ShowControlBar(bar, !afx::BarAccess::IsShown(*bar), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* pCmdUI) {
    const CControlBar* const bar = GetControlBar(pCmdUI->m_nID);
    if (bar == nullptr) {
        pCmdUI->ContinueRouting();
    } else {
        pCmdUI->SetCheck(afx::BarAccess::IsShown(*bar) ? 1 : 0);
    }
}

// ---- Docking ------------------------------------------------------------------------------------

CDockBar* CFrameWnd::DockBarOfSide(std::size_t side) const {
    auto& self = const_cast<CFrameWnd&>(*this);
    return DYNAMIC_DOWNCAST(CDockBar, self.GetControlBar(afx::DockSides[side].id));
}

void CFrameWnd::EnableDocking(DWORD dwDockStyle) {
    for (const afx::DockSide& side : afx::DockSides) {
        if ((dwDockStyle & ~m_dockSides & side.align) == 0) {
            continue;
        }
        auto dock = std::make_unique<CDockBar>();
        dock->m_bAutoDelete = TRUE;
        // The window deletes the object, also when it cannot be created.
        if (dock.release()->CreateSide(this, side.align, side.id)) {
            m_dockSides |= side.align;
        }
    }
}

/// The side at which the bar may be docked; null when there is none.
CDockBar* CFrameWnd::DockBarFor(const CControlBar& bar, UINT id) const {
    const DWORD allowed = m_dockSides & afx::BarAccess::DockStyle(bar);
    for (std::size_t i = 0; i < std::size(afx::DockSides); ++i) {
        const afx::DockSide& side = afx::DockSides[i];
        if ((side.align & allowed) != 0 && (id == 0 || id == side.id)) {
            return DockBarOfSide(i);
        }
    }
    return nullptr;
}

namespace {

/// The styles of a bar in its new place. Docked and floating bars have no edges of their own.
DWORD StyleAt(const CControlBar& bar, DWORD align, DWORD floating) {
    constexpr DWORD ofPlace = CBRS_ALIGN_ANY | CBRS_BORDER_ANY | CBRS_FLOATING;
    return (bar.m_dwStyle & ~ofPlace) | (align & CBRS_ALIGN_ANY) | floating;
}

/// Puts the bar into a dock bar and ends the mini frame it leaves empty.
void MoveTo(CDockBar& dock, CControlBar& bar, DWORD style, LPCRECT place) {
    afx::MiniDockFrame* const left = afx::MiniDockFrame::Of(bar);
    dock.Dock(&bar, place);
    afx::BarAccess::ChangeStyle(bar, style);
    if (left != nullptr && left->Dock().FirstBar() == nullptr) {
        left->DestroyWindow();
    }
}

} // namespace

void CFrameWnd::DockControlBar(CControlBar* pBar, UINT nDockBarID, LPCRECT lpRect) {
    ASSERT(pBar->m_pDockSite == this);
    CDockBar* const dock = DockBarFor(*pBar, nDockBarID);
    if (dock == nullptr) {
        // With no side in common the bar floats.
        CRect present;
        pBar->GetWindowRect(present);
        FloatControlBar(pBar, present.TopLeft());
        return;
    }
    const DWORD align = dock->m_dwStyle & CBRS_ALIGN_ANY;
    MoveTo(*dock, *pBar, StyleAt(*pBar, align, 0), lpRect);
    RecalcLayout();
}

void CFrameWnd::FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle) {
    ASSERT(pBar->m_pDockSite == this);
    // Lying when in doubt: the bars of the top and the bottom lie.
    const DWORD align = (dwStyle & CBRS_ORIENT_VERT) != 0 && (dwStyle & CBRS_ORIENT_HORZ) == 0
                            ? CBRS_ALIGN_LEFT
                            : CBRS_ALIGN_TOP;
    afx::MiniDockFrame* mini = afx::MiniDockFrame::Of(*pBar);
    if (mini == nullptr || mini->Dock().m_dwStyle != align) {
        // The frame deletes itself, also when it cannot be created.
        mini = std::make_unique<afx::MiniDockFrame>().release();
        if (!mini->CreateFor(*pBar, *this, align)) {
            return;
        }
        MoveTo(mini->Dock(), *pBar, StyleAt(*pBar, align, CBRS_FLOATING), nullptr);
    }
    CRect frame(point, CSize(0, 0));
    ::AdjustWindowRectEx(frame, mini->GetStyle(), FALSE, mini->GetExStyle());
    mini->SetWindowPos(nullptr, frame.left, frame.top, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    mini->RecalcLayout();
    RecalcLayout();
}
