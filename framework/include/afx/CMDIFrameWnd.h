// SPDX-License-Identifier: MIT
/// @file
/// CMDIFrameWnd: the main window of a program with many child frames.
#pragma once

#include "afx/CFrameWnd.h"

class CMDIChildWnd;

/// A frame whose client window holds child frames. Commands go to the active child first; its menu
/// takes the place of the frame's own.
class CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)

public:
    CMDIFrameWnd();

    /// Creates the client window. @param pWindowMenu menu that lists the children; may be null.
    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);
    /// Creates a child of a class derived from CMDIChildWnd. Menu and accelerators stay the caller's.
    /// @return null on failure.
    CMDIChildWnd* CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu = NULL,
                                 HACCEL hAccel = NULL);
    /// The popup menu of a menu bar that holds the standard window commands; null when none does.
    virtual HMENU GetWindowMenuPopup(HMENU hMenuBar);

    void MDIActivate(CWnd* pWndActivate);
    void MDICascade();
    void MDICascade(int nType);
    /// The active child; null when there is none.
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = NULL) const;
    void MDIIconArrange();
    void MDIMaximize(CWnd* pWnd);
    void MDINext();
    void MDIRestore(CWnd* pWnd);
    /// @return the menu that was replaced. Call DrawMenuBar() afterwards.
    CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);
    void MDITile();
    void MDITile(int nType);

    CFrameWnd* GetActiveFrame() override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    friend class CMDIChildWnd;

    BOOL OnWindowCommand(UINT id);
    void OnUpdateWindowCommand(CCmdUI* item);

    HWND m_client;
    /// Scroll bar styles asked for the frame, which are for the client window.
    LONG m_clientStyle;
    /// The menu without a child.
    HMENU m_defaultMenu;
};
