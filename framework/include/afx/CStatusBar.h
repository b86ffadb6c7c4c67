// SPDX-License-Identifier: MIT
/// @file
/// CStatusBar: a control bar of text panes.
#pragma once

#include "afx/CControlBar.h"
#include "afxres.h"

#include <vector>

/// A status bar: its window is a status bar control. A pane is named by its position from zero.
///
/// The pane with SBPS_STRETCH takes the width that the others leave; by default that is the first.
class CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar();
    ~CStatusBar() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);
    /// @param dwCtrlStyle SBARS_ styles of the control.
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                          UINT nID = AFX_IDW_STATUS_BAR);

    /// Makes one pane for each identifier, with the string of that number as text and width. An
    /// identifier of 0 has no string.
    /// @param lpIDArray null to allocate panes only.
    /// @return zero when a string is missing; the panes stay as they were then.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    /// In client coordinates; empty when there is no such pane.
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    /// @param nStyle SBPS_ styles. @param cxWidth of the text in pixels.
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    CString GetPaneText(int nIndex) const;
    /// @param bUpdate shows the text at once.
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    /// Called for a pane with SBPS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnNcHitTest(CPoint point);

    DECLARE_MESSAGE_MAP()

private:
    struct Pane {
        UINT id = 0;
        UINT style = 0;
        int width = 0;
        CString text;
        /// The control shows another text still.
        bool stale = false;
    };

    int ItemCount() const override;
    bool Has(int index) const;
    void LayOutPanes();
    void ShowPane(int index);
    int TextWidth(const CString& text) const;
    LRESULT OnSetMinHeight(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);

    int m_minHeight;
    std::vector<Pane> m_panes;
};
