// SPDX-License-Identifier: MIT
/// @file
/// CFrameWnd: a window with a menu, control bars and a client window.
#pragma once

#include "afx/CWnd.h"
#include "afx/ControlBarStyles.h"
#include "afx/CPtrList.h"
#include "afxres.h"

#include <vector>

class CControlBar;
class CDockBar;

namespace afx {
struct FrameAccess;
} // namespace afx

// Styles of frame windows, in the low word of the window style.
/// The title of what the frame shows is added to its own.
#define FWS_ADDTOTITLE 0x00008000L
/// That title comes first.
#define FWS_PREFIXTITLE 0x00004000L

/// A frame window. Create it on the heap: it deletes itself when its window is destroyed.
///
/// The child with the identifier AFX_IDW_PANE_FIRST fills what the control bars leave of the client
/// area. Commands go to the frame and then to the application. While the program is idle, the items
/// of menus and bars are updated through ON_UPDATE_COMMAND_UI. There are no documents and views.
class CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)

public:
    /// Lets Windows choose place and size of the window.
    static const CRect rectDefault;

    CFrameWnd();
    ~CFrameWnd() override;

    /// @param lpszMenuName menu resource, or null.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CWnd* pParentWnd = NULL, LPCTSTR lpszMenuName = NULL, DWORD dwExStyle = 0,
                        CCreateContext* pContext = NULL);
    /// Creates the window with the menu, accelerators, icon and title of that identifier.
    virtual BOOL LoadFrame(UINT nIDResource,
                           DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    /// Shows the frame and brings it to the front. @param nCmdShow -1: restores a minimized one.
    virtual void ActivateFrame(int nCmdShow = -1);
    /// The active MDI child; in other frames the frame itself.
    virtual CFrameWnd* GetActiveFrame();
    CString GetTitle() const;
    void SetTitle(LPCTSTR lpszTitle);

    /// @name Control bars
    /// @{
    /// The bar of that identifier, wherever it is docked or floats; null when there is none.
    CControlBar* GetControlBar(UINT nID);
    /// @param dwDockStyle the sides (CBRS_ALIGN_) where bars may be docked.
    void EnableDocking(DWORD dwDockStyle);
    /// @param nDockBarID AFX_IDW_DOCKBAR_ side; 0 for the first enabled of top, bottom, left, right.
    /// @param lpRect     in screen coordinates, where at that side; null for a row of its own.
    void DockControlBar(CControlBar* pBar, UINT nDockBarID = 0, LPCRECT lpRect = NULL);
    /// @param point   top left corner of the bar in screen coordinates.
    /// @param dwStyle CBRS_ALIGN_ side whose orientation the bar takes.
    void FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle = CBRS_ALIGN_TOP);
    /// @param bDelay the layout waits until the program is idle.
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
    /// Lays out the bars and the client window.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    /// Command of ID_VIEW_TOOLBAR and its like: shows or hides the bar of that identifier.
    afx_msg BOOL OnBarCheck(UINT nID);
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);
    /// @}

    /// @name Message line
    /// @{
    /// The status bar; null when there is none.
    virtual CWnd* GetMessageBar();
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    /// The text of a command: the string of that number, up to the tool tip's part.
    virtual void GetMessageString(UINT nID, CString& rMessage) const;
    /// @}

    /// @name Modal state: the frame and what it owns are disabled; calls nest
    /// @{
    void BeginModalState() override;
    void EndModalState() override;
    BOOL InModalState() const;
    /// @}

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    /// Menu items without a handler are disabled.
    BOOL m_bAutoMenuEnable;
    /// The control bars of the frame, dock bars included, oldest first: pointers to CControlBar.
    CPtrList m_listControlBars;

protected:
    /// Called to create what fills the client area, with the identifier AFX_IDW_PANE_FIRST. Nothing
    /// is created here. @return FALSE cancels the creation of the frame.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);

    DECLARE_MESSAGE_MAP()

private:
    friend class CMDIChildWnd;
    friend class CMDIFrameWnd;
    friend struct afx::FrameAccess;

    CFrameWnd* AsFrameWnd() override { return this; }
    /// What the creation parameters of the window hold.
    virtual CCreateContext* ContextOf(LPCREATESTRUCT created) const;
    void LoadResources(UINT id, CString& title, CString& className);
    CDockBar* DockBarFor(const CControlBar& bar, UINT id) const;
    CDockBar* DockBarOfSide(std::size_t side) const;
    void UpdatePopupItem(CCmdUI& item, CMenu& popup);
    LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
    LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    BOOL OnToolTipText(UINT id, NMHDR* header, LRESULT* result);
    void OnUpdateKeyIndicator(CCmdUI* item);

    HACCEL m_accelerators;
    /// Sides (CBRS_ALIGN_) with a dock bar.
    DWORD m_dockSides;
    CString m_title;
    UINT m_messageShown;
    int m_modalDepth;
    std::vector<HWND> m_disabled;
    bool m_layingOut;
    bool m_layoutPending;
};
