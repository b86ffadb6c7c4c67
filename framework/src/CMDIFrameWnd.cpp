// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include <memory>

#include "Handles.h"

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_COMMAND_EX(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnWindowCommand)
    ON_COMMAND_EX(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnWindowCommand)
    ON_COMMAND_EX(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnWindowCommand)
    ON_COMMAND_EX(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnWindowCommand)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnUpdateWindowCommand)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnUpdateWindowCommand)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnUpdateWindowCommand)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnUpdateWindowCommand)
END_MESSAGE_MAP()

CMDIFrameWnd::CMDIFrameWnd() : m_client(nullptr), m_clientStyle(0), m_defaultMenu(nullptr) {}

// ---- Creation and end ---------------------------------------------------------------------------

BOOL CMDIFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    // The scroll bars are the client window's.
    m_clientStyle = cs.style & (WS_HSCROLL | WS_VSCROLL);
    cs.style &= ~(WS_HSCROLL | WS_VSCROLL);
    return CFrameWnd::PreCreateWindow(cs);
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*) {
    const HMENU bar = ::GetMenu(m_hWnd);
    return CreateClient(lpcs, CMenu::FromHandle(GetWindowMenuPopup(bar)));
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT, CMenu* pWindowMenu) {
    CLIENTCREATESTRUCT created = {};
    created.hWindowMenu = pWindowMenu == nullptr ? nullptr : pWindowMenu->m_hMenu;
    created.idFirstChild = AFX_IDM_FIRST_MDICHILD;
    m_defaultMenu = ::GetMenu(m_hWnd);
    m_client = ::CreateWindowEx(WS_EX_CLIENTEDGE, "MDICLIENT", nullptr,
                                WS_VISIBLE | WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS |
                                    MDIS_ALLCHILDSTYLES | static_cast<DWORD>(m_clientStyle),
                                0, 0, 0, 0, m_hWnd,
                                reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                                AfxGetInstanceHandle(), &created);
    return m_client != nullptr;
}

void CMDIFrameWnd::OnDestroy() {
    // Windows destroys the menu that the frame shows: that has to be its own, not a child's.
    if (m_defaultMenu != nullptr && ::IsMenu(m_defaultMenu)) {
        ::SetMenu(m_hWnd, m_defaultMenu);
    }
    CFrameWnd::OnDestroy();
}

namespace {

bool HoldsWindowCommand(HMENU menu) {
    const int count = ::GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        const UINT id = ::GetMenuItemID(menu, i);
        if (id >= AFX_IDM_WINDOW_FIRST && id <= AFX_IDM_WINDOW_LAST) {
            return true;
        }
    }
    return false;
}

} // namespace

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU hMenuBar) {
    const int count = hMenuBar == nullptr ? 0 : ::GetMenuItemCount(hMenuBar);
    // It is usually the last but one.
    for (int i = count; i-- > 0;) {
        const HMENU popup = ::GetSubMenu(hMenuBar, i);
        if (popup != nullptr && HoldsWindowCommand(popup)) {
            return popup;
        }
    }
    return nullptr;
}

CMDIChildWnd* CMDIFrameWnd::CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu,
                                           HACCEL hAccel) {
    std::unique_ptr<CObject> object(pClass->CreateObject());
    auto* const child = DYNAMIC_DOWNCAST(CMDIChildWnd, object.get());
    if (child == nullptr) {
        return nullptr;
    }
    // From here on the child deletes itself, also when it cannot be created.
    UNUSED_ALWAYS(object.release());
    child->SetHandles(hMenu, hAccel);
    CString title;
    CString className;
    LoadResources(nResource, title, className);
    if (!child->Create(className, title, WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, rectDefault,
                       this)) {
        return nullptr;
    }
    return child;
}

// ---- Children -----------------------------------------------------------------------------------

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const {
    BOOL maximized = FALSE;
    const auto active =
        m_client == nullptr
            ? nullptr
            : reinterpret_cast<HWND>(::SendMessage(m_client, WM_MDIGETACTIVE, 0,
                                                   reinterpret_cast<LPARAM>(&maximized)));
    if (pbMaximized != nullptr) {
        *pbMaximized = maximized;
    }
    // A child whose window is on its way is active before it is visible.
    return DYNAMIC_DOWNCAST(CMDIChildWnd, FromHandlePermanent(active));
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame() {
    CMDIChildWnd* const active = MDIGetActive();
    return active == nullptr ? static_cast<CFrameWnd*>(this) : active;
}

void CMDIFrameWnd::MDIActivate(CWnd* pWndActivate) {
    ::SendMessage(m_client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(afx::WindowOf(pWndActivate)),
                  0);
}

void CMDIFrameWnd::MDICascade() {
    MDICascade(0);
}

void CMDIFrameWnd::MDICascade(int nType) {
    ::SendMessage(m_client, WM_MDICASCADE, static_cast<WPARAM>(nType), 0);
}

void CMDIFrameWnd::MDIIconArrange() {
    ::SendMessage(m_client, WM_MDIICONARRANGE, 0, 0);
}

void CMDIFrameWnd::MDIMaximize(CWnd* pWnd) {
    ::SendMessage(m_client, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(afx::WindowOf(pWnd)), 0);
}

void CMDIFrameWnd::MDINext() {
    ::SendMessage(m_client, WM_MDINEXT, 0, FALSE);
}

void CMDIFrameWnd::MDIRestore(CWnd* pWnd) {
    ::SendMessage(m_client, WM_MDIRESTORE, reinterpret_cast<WPARAM>(afx::WindowOf(pWnd)), 0);
}

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu) {
    const HMENU frameMenu = pFrameMenu == nullptr ? nullptr : pFrameMenu->m_hMenu;
    const HMENU windowMenu = pWindowMenu == nullptr ? nullptr : pWindowMenu->m_hMenu;
    return CMenu::FromHandle(reinterpret_cast<HMENU>(
        ::SendMessage(m_client, WM_MDISETMENU, reinterpret_cast<WPARAM>(frameMenu),
                      reinterpret_cast<LPARAM>(windowMenu))));
}

void CMDIFrameWnd::MDITile() {
    MDITile(MDITILE_VERTICAL);
}

void CMDIFrameWnd::MDITile(int nType) {
    ::SendMessage(m_client, WM_MDITILE, static_cast<WPARAM>(nType), 0);
}

// ---- Messages -----------------------------------------------------------------------------------

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefFrameProc(m_hWnd, m_client, message, wParam, lParam);
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    CMDIChildWnd* const active = MDIGetActive();
    if (active != nullptr && active->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    // The system menu of a maximized child, and the children listed in the window menu.
    const bool forSystem =
        lParam == 0 && (id >= AFX_IDM_FIRST_MDICHILD || (id >= SC_SIZE && id <= SC_HOTKEY));
    if (forSystem) {
        DefWindowProc(WM_COMMAND, wParam, lParam);
        return TRUE;
    }
    return CFrameWnd::OnCommand(wParam, lParam);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg) {
    CMDIChildWnd* const active = MDIGetActive();
    if (active != nullptr && active->PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    if (CFrameWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    const bool isKey = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    return isKey && m_client != nullptr && ::TranslateMDISysAccel(m_client, pMsg);
}

void CMDIFrameWnd::OnSize(UINT nType, int cx, int cy) {
    // Not the system's way, which gives the client window all of the client area.
    UNUSED_ALWAYS(cx);
    UNUSED_ALWAYS(cy);
    if (nType != SIZE_MINIMIZED) {
        RecalcLayout();
    }
}

BOOL CMDIFrameWnd::OnWindowCommand(UINT id) {
    switch (id) {
    case ID_WINDOW_ARRANGE:
        MDIIconArrange();
        return TRUE;
    case ID_WINDOW_CASCADE:
        MDICascade();
        return TRUE;
    case ID_WINDOW_TILE_HORZ:
        MDITile(MDITILE_HORIZONTAL);
        return TRUE;
    case ID_WINDOW_TILE_VERT:
        MDITile(MDITILE_VERTICAL);
        return TRUE;
    default:
        return FALSE;
    }
}

void CMDIFrameWnd::OnUpdateWindowCommand(CCmdUI* item) {
    item->Enable(MDIGetActive() != nullptr);
}
