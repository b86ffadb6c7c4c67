// SPDX-License-Identifier: MIT
/// @file
/// CMDIChildWnd: a child frame of a CMDIFrameWnd.
#pragma once

#include "afx/CFrameWnd.h"

class CMDIFrameWnd;

/// A frame inside the client window of an MDI frame. It has no menu bar of its own: while it is
/// active, the frame shows the one given with SetHandles() or loaded by LoadFrame().
class CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)

public:
    CMDIChildWnd();
    ~CMDIChildWnd() override;

    /// @param pParentWnd null for the main window.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CMDIFrameWnd* pParentWnd = NULL,
                        CCreateContext* pContext = NULL);
    /// @param pParentWnd the MDI frame; null for the main window.
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL) override;
    CMDIFrameWnd* GetMDIFrame();
    void MDIActivate();
    void MDIDestroy();
    /// Menu and accelerators to be used while the child is active. They stay the caller's.
    void SetHandles(HMENU hMenu, HACCEL hAccel);

    void ActivateFrame(int nCmdShow = -1) override;
    BOOL DestroyWindow() override;
    CWnd* GetMessageBar() override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);

    DECLARE_MESSAGE_MAP()

private:
    CCreateContext* ContextOf(LPCREATESTRUCT created) const override;
    BOOL CreateInFrame(CMDIFrameWnd& frame, CREATESTRUCT cs);

    /// Loaded by LoadFrame() and destroyed with the child.
    HMENU m_ownMenu;
    /// What is shown while the child is active: the one loaded or the one given.
    HMENU m_menu;
    HACCEL m_givenAccelerators;
};
