// SPDX-License-Identifier: MIT
#pragma once

#include <afxext.h>
#include <afxpriv.h>

#include <memory>

/// A frame with a toolbar and a status bar.  Its window deletes it.
class BarFrame : public CFrameWnd {
public:
    CToolBar m_tools;
    CStatusBar m_status;
    int m_handled = 0;
    bool m_checked = false;
    bool m_enabled = true;

    /// A frame of that client size, visible, with all of its bars docked.
    static BarFrame* Open(CSize client = CSize(400, 300),
                          DWORD barStyle = CBRS_TOP | CBRS_GRIPPER) {
        auto* const frame = std::make_unique<BarFrame>().release();
        frame->m_barStyle = barStyle;
        frame->LoadFrame(102, WS_POPUP);
        CRect window(CPoint(50, 50), client);
        frame->SetWindowPos(nullptr, 50, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        ::AdjustWindowRectEx(window, frame->GetStyle(), TRUE, frame->GetExStyle());
        frame->MoveWindow(50, 50, window.Width(), window.Height());
        frame->ShowWindow(SW_SHOW);
        frame->SetForegroundWindow();
        AfxGetApp()->m_pMainWnd = frame;
        return frame;
    }
    /// Without ending the program's loop.
    void Close() {
        AfxGetApp()->m_pMainWnd = nullptr;
        DestroyWindow();
    }

    /// Where a window lies in the frame's client area.
    CRect PlaceOf(const CWnd& wnd) const {
        CRect rect;
        wnd.GetWindowRect(rect);
        ScreenToClient(rect);
        return rect;
    }
    CRect Client() const {
        CRect rect;
        GetClientRect(rect);
        return rect;
    }
    CRect Pane() const { return PlaceOf(*GetDlgItem(AFX_IDW_PANE_FIRST)); }

protected:
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override {
        return ::CreateWindowEx(0, WC_EDIT, "", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, m_hWnd,
                                reinterpret_cast<HMENU>(UINT_PTR{AFX_IDW_PANE_FIRST}), nullptr,
                                nullptr) != nullptr;
    }
    afx_msg int OnCreate(LPCREATESTRUCT created) {
        constexpr UINT panes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_INDICATOR_NUM};
        if (CFrameWnd::OnCreate(created) == -1 ||
            !m_tools.CreateEx(this, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | m_barStyle) ||
            !m_tools.LoadToolBar(101) || !m_status.Create(this) ||
            !m_status.SetIndicators(panes, 3))
            return -1;
        m_tools.EnableDocking(CBRS_ALIGN_ANY);
        EnableDocking(CBRS_ALIGN_ANY);
        DockControlBar(&m_tools);
        return 0;
    }
    void OnHandled() { ++m_handled; }
    void OnUpdateChecked(CCmdUI* item) {
        item->Enable(m_enabled);
        item->SetCheck(m_checked ? 1 : 0);
    }
    DECLARE_MESSAGE_MAP()

private:
    DWORD m_barStyle = 0;
};
