// SPDX-License-Identifier: MIT
// CWnd: the connection of object and window, creation and destruction.
#include <afxcmn.h>

#include <cstdio>

#include "CommonControls.h"
#include "CreationHook.h"
#include "HandleMap.h"
#include "Handles.h"
#include "ModuleState.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

namespace {

auto& WindowMap() {
    return afx::ThreadHandleMap<HWND, CWnd>(&CWnd::m_hWnd);
}

/// The temporary objects of windows that a handler wants to see as a control.
template <class Control>
auto& ControlMap() {
    return afx::ThreadHandleMap<HWND, Control>(&CWnd::m_hWnd);
}

template <class Control>
Control* ControlFromHandle(HWND hWnd) {
    if (auto* const attached = DYNAMIC_DOWNCAST(Control, CWnd::FromHandlePermanent(hWnd))) {
        return attached;
    }
    return ControlMap<Control>().FromHandle(hWnd);
}

} // namespace

CScrollBar* afx::ScrollBarFromHandle(HWND hWnd) {
    return ControlFromHandle<CScrollBar>(hWnd);
}

CListBox* afx::ListBoxFromHandle(HWND hWnd) {
    return ControlFromHandle<CListBox>(hWnd);
}

CHeaderCtrl* afx::HeaderFromHandle(HWND hWnd) {
    return ControlFromHandle<CHeaderCtrl>(hWnd);
}

CWnd::CWnd()
    : m_hWnd(nullptr), m_superProc(nullptr), m_ownerHandle(nullptr), m_modal(false),
      m_modalResult(0) {}

CWnd::~CWnd() {
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this) {
        TRACE("Warning: a window is destroyed by the destructor of its object; overrides of "
              "OnDestroy and PostNcDestroy are not called.\n");
        DestroyWindow();
    }
}

HWND CWnd::GetSafeHwnd() const {
    // A plain test of `this` could be optimized away.
    const CWnd* const volatile wnd = this;
    return wnd == nullptr ? nullptr : wnd->m_hWnd;
}

// ---- Handles and objects ------------------------------------------------------------------------

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    return WindowMap().FromHandle(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    return WindowMap().FindPermanent(hWnd);
}

void PASCAL CWnd::DeleteTempMap() {
    WindowMap().DeleteTemp();
    ControlMap<CScrollBar>().DeleteTemp();
    ControlMap<CListBox>().DeleteTemp();
    ControlMap<CHeaderCtrl>().DeleteTemp();
}

BOOL CWnd::Attach(HWND hWnd) {
    ASSERT(m_hWnd == nullptr);
    ASSERT(FromHandlePermanent(hWnd) == nullptr);
    if (hWnd == nullptr) {
        return FALSE;
    }
    WindowMap().SetPermanent(hWnd, this);
    m_hWnd = hWnd;
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND hWnd = m_hWnd;
    if (hWnd != nullptr) {
        WindowMap().RemovePermanent(hWnd, this);
        m_hWnd = nullptr;
    }
    return hWnd;
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!::IsWindow(hWnd) || !Attach(hWnd)) {
        return FALSE;
    }
    PreSubclassWindow();
    afx::InstallWndProc(*this);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    const HWND hWnd = ::GetDlgItem(afx::WindowOf(pParent), static_cast<int>(nID));
    return hWnd != nullptr && SubclassWindow(hWnd);
}

HWND CWnd::UnsubclassWindow() {
    ASSERT(::IsWindow(m_hWnd));
    if (m_superProc != nullptr) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_superProc));
        m_superProc = nullptr;
    }
    return Detach();
}

// ---- Creation and destruction -------------------------------------------------------------------

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext) {
    ASSERT(pParentWnd != nullptr);
    ASSERT((dwStyle & WS_POPUP) == 0);
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID,
                    pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, afx::WindowOf(pParentWnd),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                    LPVOID lpParam) {
    CREATESTRUCT cs = {};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = afx::InstanceHandle();
    cs.lpCreateParams = lpParam;
    return CreateHandle(cs);
}

BOOL CWnd::CreateHandle(CREATESTRUCT& cs) {
    ASSERT(m_hWnd == nullptr);
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    const afx::CreationHook hook(this);
    const HWND created = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName,
                                          static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx, cs.cy,
                                          cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    return hook.Finish(created);
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                                           ::LoadCursor(nullptr, IDC_ARROW));
    }
    if (cs.hMenu == nullptr && (cs.style & WS_CHILD) != 0) {
        cs.hMenu = reinterpret_cast<HMENU>(this);
    }
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    const HWND hWnd = m_hWnd;
    if (hWnd == nullptr) {
        return FALSE;
    }
    const BOOL destroyed = ::DestroyWindow(hWnd);
    // An object that was only attached is not told by WM_NCDESTROY; one that was told may be gone.
    if (destroyed && FromHandlePermanent(hWnd) == this) {
        Detach();
    }
    return destroyed;
}

void CWnd::PostNcDestroy() {}

void CWnd::ForgetAsMainWindow() {
    CWinThread* const thread = AfxGetThread();
    if (thread == nullptr) {
        return;
    }
    if (thread->m_pMainWnd == this) {
        thread->m_pMainWnd = nullptr;
        ::PostQuitMessage(0);
    }
    if (thread->m_pActiveWnd == this) {
        thread->m_pActiveWnd = nullptr;
    }
}

void CWnd::OnNcDestroy() {
    ForgetAsMainWindow();
    Default();
    // Someone who has subclassed the window after us keeps the procedure that is installed now.
    const auto present = reinterpret_cast<WNDPROC>(::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC));
    if (m_superProc != nullptr && present == &AfxWndProc) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_superProc));
    }
    m_superProc = nullptr;
    m_ownerHandle = nullptr;
    if (m_modal) {
        // Nothing else would end the loop of a window that is gone.
        m_modal = false;
        m_modalResult = -1;
        ::PostMessage(nullptr, WM_NULL, 0, 0);
    }
    Detach();
    PostNcDestroy();
}

// ---- Window classes -----------------------------------------------------------------------------

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass) {
    WNDCLASS existing;
    return ::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &existing) ||
           ::RegisterClass(lpWndClass) != 0;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground,
                                   HICON hIcon) {
    // The arguments make the name: with the same ones the class is found again.
    thread_local char name[96];
    const HINSTANCE instance = afx::InstanceHandle();
    std::snprintf(name, sizeof(name), "Afx:%p:%x:%p:%p:%p", static_cast<void*>(instance),
                  nClassStyle, static_cast<void*>(hCursor), static_cast<void*>(hbrBackground),
                  static_cast<void*>(hIcon));
    WNDCLASS wndClass = {};
    wndClass.style = nClassStyle == 0 ? CS_DBLCLKS : nClassStyle;
    wndClass.lpfnWndProc = &AfxWndProc;
    wndClass.hInstance = instance;
    wndClass.hCursor = hCursor == nullptr ? ::LoadCursor(nullptr, IDC_ARROW) : hCursor;
    wndClass.hbrBackground = hbrBackground;
    wndClass.hIcon = hIcon == nullptr ? ::LoadIcon(nullptr, IDI_WINLOGO) : hIcon;
    wndClass.lpszClassName = name;
    if (!AfxRegisterClass(&wndClass)) {
        AfxThrowResourceException();
    }
    return name;
}
