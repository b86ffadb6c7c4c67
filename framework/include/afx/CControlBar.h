// SPDX-License-Identifier: MIT
/// @file
/// CControlBar: a bar along a side of a frame window.
#pragma once

#include "afx/CWnd.h"
#include "afx/ControlBarStyles.h"

class CDockBar;

namespace afx {
struct BarAccess;
}

/// A window along a side of a frame: a toolbar, a status bar, or a dock bar that holds others.
///
/// A bar lays itself out when the frame asks it to (WM_SIZEPARENT): it takes its part of the client
/// area and leaves the rest to the next one. The bar's window consists of the borders, a gripper if
/// it has one, and the inside; see CalcInsideRect(). Messages of child windows that the bar does
/// not handle itself go to its owner, normally the frame.
class CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)

public:
    /// Destroys the window, if there still is one.
    ~CControlBar() override;

    /// Number of items that are not windows: buttons with separators, panes.
    int GetCount() const;
    /// The CBRS_ styles.
    DWORD GetBarStyle();
    void SetBarStyle(DWORD dwStyle);
    /// Widths of the four borders in pixels, for the bar lying horizontally. When it stands, the
    /// left one is at its top, and the top one at its left.
    CRect GetBorders() const;
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
    void SetBorders(LPCRECT lpRect);
    /// The frame around the bar: the mini frame while it floats. Null for a bar in another window.
    CFrameWnd* GetDockingFrame() const;
    BOOL IsFloating() const;
    /// @param dwDockStyle the sides of the frame (CBRS_ALIGN_) the bar may be docked to; 0 for none.
    void EnableDocking(DWORD dwDockStyle);

    /// The bar's size; a stretched dimension is 32767.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    /// The bar's size.
    /// @param nLength the dimension wished for, -1 for none.
    /// @param nMode   LM_ flags; only with LM_COMMIT the bar's contents are laid out.
    virtual CSize CalcDynamicLayout(int nLength, DWORD nMode);
    /// Takes borders and gripper off a rectangle.
    virtual void CalcInsideRect(CRect& rect, BOOL bHorz) const;

    /// Called to draw the borders and the gripper. @param pDC device context of the bar.
    virtual void DoPaint(CDC* pDC);
    /// Draws the CBRS_BORDER_ edges and takes all borders off `rect`.
    virtual void DrawBorders(CDC* pDC, CRect& rect);
    /// @param rect the bar without its borders.
    virtual void DrawGripper(CDC* pDC, const CRect& rect);

    /// Updates the items through the frame's update handlers. Called when the program is idle.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// The object is deleted when its window is destroyed.
    BOOL m_bAutoDelete;
    /// The frame the bar belongs to, also while it floats; null for a bar in another window.
    CFrameWnd* m_pDockSite;
    /// The dock bar that holds the bar; null when it lies in the frame itself.
    CDockBar* m_pDockBar;
    /// The CBRS_ styles. A class that creates its window itself sets them before.
    DWORD m_dwStyle;

protected:
    CControlBar();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpWndPos);

    int m_cxLeftBorder;
    int m_cxRightBorder;
    int m_cyTopBorder;
    int m_cyBottomBorder;

    DECLARE_MESSAGE_MAP()

private:
    friend class CDockBar;
    friend struct afx::BarAccess;

    /// What a ShowControlBar() that was to wait will do.
    enum class Pending { Nothing, Show, Hide };

    LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    DWORD LayoutMode(bool stretch) const;
    void FrameChanged();
    virtual int ItemCount() const { return 0; }
    void ShowStatusTextOfTool(INT_PTR tool) override;

    DWORD m_dockStyle;
    Pending m_pending;
    /// The tool under the mouse whose text the status bar shows; -1 for none.
    INT_PTR m_toolShown;
};
