// SPDX-License-Identifier: MIT
// CFrameWnd: creation, commands, activation, end.
#include <afxext.h>

#include <algorithm>
#include <memory>

#include "Handles.h"
#include "ThreadState.h"
#include "afxpriv.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
    ON_COMMAND_EX(ID_VIEW_REBAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_REBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd()
    : m_bAutoMenuEnable(TRUE), m_accelerators(nullptr), m_dockSides(0), m_messageShown(0),
      m_modalDepth(0), m_layingOut(false), m_layoutPending(false) {
    afx::CurrentThread().frames.push_back(this);
}

CFrameWnd::~CFrameWnd() {
    std::vector<CFrameWnd*>& frames = afx::CurrentThread().frames;
    frames.erase(std::remove(frames.begin(), frames.end(), this), frames.end());
    // Bars that outlive the frame must not come back to it.
    for (POSITION place = m_listControlBars.GetHeadPosition(); place != nullptr;) {
        static_cast<CControlBar*>(m_listControlBars.GetNext(place))->m_pDockSite = nullptr;
    }
}

// ---- Creation -----------------------------------------------------------------------------------

namespace {

LPCTSTR RegisterFrameClass(HICON icon) {
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                               ::GetSysColorBrush(COLOR_WINDOW), icon);
}

} // namespace

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = RegisterFrameClass(nullptr);
    }
    if ((cs.style & FWS_ADDTOTITLE) != 0) {
        cs.style |= FWS_PREFIXTITLE;
    }
    return TRUE;
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                       const RECT& rect, CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle,
                       CCreateContext* pContext) {
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr) {
        menu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == nullptr) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_title = lpszWindowName;
    if (!CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                  rect.right - rect.left, rect.bottom - rect.top, afx::WindowOf(pParentWnd), menu,
                  pContext)) {
        // A window that got as far as to have the menu has taken it along.
        if (menu != nullptr && ::IsMenu(menu)) {
            ::DestroyMenu(menu);
        }
        return FALSE;
    }
    return TRUE;
}

/// The title and the window class that the resources of that identifier ask for.
void CFrameWnd::LoadResources(UINT id, CString& title, CString& className) {
    CString strings;
    if (strings.LoadString(id)) {
        AfxExtractSubString(title, strings, 0);
    }
    LPCTSTR const name = MAKEINTRESOURCE(id);
    const HICON icon = ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    className = RegisterFrameClass(icon);
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                          CCreateContext* pContext) {
    CString title;
    CString className;
    LoadResources(nIDResource, title, className);
    LPCTSTR const name = MAKEINTRESOURCE(nIDResource);
    if (!Create(className, title, dwDefaultStyle, rectDefault, pParentWnd, name, 0, pContext)) {
        return FALSE;
    }
    LoadAccelTable(name);
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    // Windows frees a table from a resource at the end of the program.
    m_accelerators = ::LoadAccelerators(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR),
                                        lpszResourceName);
    return m_accelerators != nullptr;
}

CCreateContext* CFrameWnd::ContextOf(LPCREATESTRUCT created) const {
    return static_cast<CCreateContext*>(created->lpCreateParams);
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1 ||
        !OnCreateClient(lpCreateStruct, ContextOf(lpCreateStruct))) {
        return -1;
    }
    // Later, when the bars exist that the derived class creates.
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    RecalcLayout();
    return 0;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext*) {
    return TRUE;
}

// ---- End ----------------------------------------------------------------------------------------

void CFrameWnd::OnClose() {
    DestroyWindow();
}

void CFrameWnd::OnDestroy() {
    CancelToolTips();
    CWnd::OnDestroy();
}

void CFrameWnd::PostNcDestroy() {
    const std::unique_ptr<CFrameWnd> ended(this);
}

// ---- Commands -----------------------------------------------------------------------------------

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CWinApp* const app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    return isKey && m_accelerators != nullptr &&
           ::TranslateAccelerator(m_hWnd, m_accelerators, pMsg) != 0;
}

// ---- Title, activation, modal state -------------------------------------------------------------

CString CFrameWnd::GetTitle() const {
    return m_title;
}

void CFrameWnd::SetTitle(LPCTSTR lpszTitle) {
    m_title = lpszTitle;
}

CFrameWnd* CFrameWnd::GetActiveFrame() {
    return this;
}

void CFrameWnd::ActivateFrame(int nCmdShow) {
    if (nCmdShow == -1) {
        nCmdShow = IsIconic() ? SW_RESTORE : IsWindowVisible() ? SW_SHOWNA : SW_SHOWNORMAL;
    }
    BringWindowToTop();
    ShowWindow(nCmdShow);
    ::SetActiveWindow(m_hWnd);
}

namespace {

BOOL CALLBACK CollectOwned(HWND window, LPARAM found) {
    reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    return TRUE;
}

/// The popups of this thread that belong to the window, directly or not.
std::vector<HWND> OwnedBy(HWND owner) {
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), CollectOwned, reinterpret_cast<LPARAM>(&windows));
    const auto other = [owner](HWND window) {
        HWND above = ::GetWindow(window, GW_OWNER);
        while (above != nullptr && above != owner) {
            above = ::GetWindow(above, GW_OWNER);
        }
        return above == nullptr;
    };
    windows.erase(std::remove_if(windows.begin(), windows.end(), other), windows.end());
    return windows;
}

} // namespace

BOOL CFrameWnd::InModalState() const {
    return m_modalDepth != 0;
}

void CFrameWnd::BeginModalState() {
    if (m_modalDepth++ != 0) {
        return;
    }
    std::vector<HWND> windows = OwnedBy(m_hWnd);
    windows.push_back(m_hWnd);
    for (const HWND window : windows) {
        if (::IsWindowEnabled(window) && ::SendMessage(window, WM_DISABLEMODAL, 0, 0) == 0) {
            ::EnableWindow(window, FALSE);
            m_disabled.push_back(window);
        }
    }
}

void CFrameWnd::EndModalState() {
    if (m_modalDepth == 0 || --m_modalDepth != 0) {
        return;
    }
    for (const HWND window : m_disabled) {
        if (::IsWindow(window)) {
            ::EnableWindow(window, TRUE);
        }
    }
    m_disabled.clear();
}

// ---- Window messages ----------------------------------------------------------------------------

void CFrameWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED) {
        RecalcLayout();
    }
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd) {
    // The keyboard belongs to what the frame shows.
    CWnd* const client = GetDlgItem(AFX_IDW_PANE_FIRST);
    if (client != nullptr && client->IsWindowVisible() && client->IsWindowEnabled()) {
        client->SetFocus();
    } else {
        CWnd::OnSetFocus(pOldWnd);
    }
}

BOOL CFrameWnd::OnEraseBkgnd(CDC* pDC) {
    // The client window covers everything and draws it itself.
    const CWnd* const client = GetDlgItem(AFX_IDW_PANE_FIRST);
    return client != nullptr && client->IsWindowVisible() ? TRUE : CWnd::OnEraseBkgnd(pDC);
}
