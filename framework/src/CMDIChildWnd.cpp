// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include "CreationHook.h"

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
    ON_WM_MDIACTIVATE()
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

CMDIChildWnd::CMDIChildWnd() : m_ownMenu(nullptr), m_menu(nullptr), m_givenAccelerators(nullptr) {}

CMDIChildWnd::~CMDIChildWnd() {
    if (m_ownMenu != nullptr) {
        ::DestroyMenu(m_ownMenu);
    }
}

// ---- Creation -----------------------------------------------------------------------------------

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style |= WS_CHILD;
    return CFrameWnd::PreCreateWindow(cs);
}

CCreateContext* CMDIChildWnd::ContextOf(LPCREATESTRUCT created) const {
    // Around our parameters is what the client window creates its children from.
    const auto* const mdi = static_cast<const MDICREATESTRUCT*>(created->lpCreateParams);
    return mdi == nullptr ? nullptr : reinterpret_cast<CCreateContext*>(mdi->lParam);
}

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CMDIFrameWnd* pParentWnd, CCreateContext* pContext) {
    auto* const frame =
        pParentWnd != nullptr ? pParentWnd : DYNAMIC_DOWNCAST(CMDIFrameWnd, AfxGetMainWnd());
    ASSERT(frame != nullptr && frame->m_client != nullptr);
    SetTitle(lpszWindowName);
    CREATESTRUCT cs = {};
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = rect.left;
    cs.y = rect.top;
    cs.cx = rect.right - rect.left;
    cs.cy = rect.bottom - rect.top;
    cs.hwndParent = frame == nullptr ? nullptr : frame->m_hWnd;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = pContext;
    if (frame == nullptr || !PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    return CreateInFrame(*frame, cs);
}

BOOL CMDIChildWnd::CreateInFrame(CMDIFrameWnd& frame, CREATESTRUCT cs) {
    MDICREATESTRUCT mdi = {};
    mdi.szClass = cs.lpszClass;
    mdi.szTitle = cs.lpszName;
    mdi.hOwner = cs.hInstance;
    mdi.x = cs.x;
    mdi.y = cs.y;
    mdi.cx = cs.cx == 0 ? CW_USEDEFAULT : cs.cx;
    mdi.cy = cs.cy == 0 ? CW_USEDEFAULT : cs.cy;
    mdi.style = static_cast<DWORD>(cs.style) & ~(WS_MAXIMIZE | WS_MINIMIZE);
    mdi.lParam = reinterpret_cast<LPARAM>(cs.lpCreateParams);
    const afx::CreationHook hook(this);
    return hook.Finish(reinterpret_cast<HWND>(
        ::SendMessage(frame.m_client, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&mdi))));
}

BOOL CMDIChildWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                             CCreateContext* pContext) {
    LPCTSTR const name = MAKEINTRESOURCE(nIDResource);
    if (m_menu == nullptr) {
        m_ownMenu = ::LoadMenu(AfxFindResourceHandle(name, RT_MENU), name);
        m_menu = m_ownMenu;
    }
    if (m_givenAccelerators == nullptr) {
        LoadAccelTable(name);
    }
    CString title;
    CString className;
    LoadResources(nIDResource, title, className);
    return Create(className, title, dwDefaultStyle | WS_CHILD | WS_VISIBLE, rectDefault,
                  DYNAMIC_DOWNCAST(CMDIFrameWnd, pParentWnd), pContext);
}

void CMDIChildWnd::SetHandles(HMENU hMenu, HACCEL hAccel) {
    m_menu = hMenu;
    m_givenAccelerators = hAccel;
}

// ---- Relation to the frame ----------------------------------------------------------------------

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() {
    const HWND client = ::GetParent(m_hWnd);
    return DYNAMIC_DOWNCAST(CMDIFrameWnd, FromHandlePermanent(::GetParent(client)));
}

CWnd* CMDIChildWnd::GetMessageBar() {
    CMDIFrameWnd* const frame = GetMDIFrame();
    return frame == nullptr ? nullptr : frame->GetMessageBar();
}

void CMDIChildWnd::MDIActivate() {
    ::SendMessage(::GetParent(m_hWnd), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIDestroy() {
    ::SendMessage(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

BOOL CMDIChildWnd::DestroyWindow() {
    if (m_hWnd == nullptr) {
        return FALSE;
    }
    // The client window activates another child; it has to be asked.
    MDIDestroy();
    return TRUE;
}

void CMDIChildWnd::ActivateFrame(int nCmdShow) {
    ShowWindow(nCmdShow == -1 ? IsIconic() ? SW_RESTORE : SW_SHOW : nCmdShow);
    MDIActivate();
}

// ---- Messages -----------------------------------------------------------------------------------

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProc(m_hWnd, message, wParam, lParam);
}

BOOL CMDIChildWnd::PreTranslateMessage(MSG* pMsg) {
    // Not the frame window's way: a child has no menu that could disable a command.
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    const HACCEL table = m_givenAccelerators != nullptr ? m_givenAccelerators : m_accelerators;
    if (!isKey || table == nullptr) {
        return FALSE;
    }
    // The commands are the frame's: it passes them on to the active child.
    const CMDIFrameWnd* const frame = GetMDIFrame();
    return frame != nullptr && ::TranslateAccelerator(frame->m_hWnd, table, pMsg) != 0;
}

int CMDIChildWnd::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    const int answer = CFrameWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    CMDIFrameWnd* const frame = GetMDIFrame();
    if (answer != MA_NOACTIVATE && frame != nullptr && frame->MDIGetActive() != this) {
        MDIActivate();
    }
    return answer;
}

void CMDIChildWnd::OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd*) {
    Default();
    CMDIFrameWnd* const frame = GetMDIFrame();
    if (frame == nullptr) {
        return;
    }
    // The menu of the child that comes; when the last one goes, the frame's own.
    HMENU menu = nullptr;
    if (bActivate) {
        menu = m_menu;
    } else if (pActivateWnd != nullptr) {
        return;
    }
    if (menu == nullptr) {
        menu = frame->m_defaultMenu;
    }
    if (menu != nullptr && menu != ::GetMenu(frame->m_hWnd)) {
        const HMENU windowMenu = frame->GetWindowMenuPopup(menu);
        ::SendMessage(frame->m_client, WM_MDISETMENU, reinterpret_cast<WPARAM>(menu),
                      reinterpret_cast<LPARAM>(windowMenu));
        frame->DrawMenuBar();
    }
}
