// SPDX-License-Identifier: MIT
// CWnd: painting, scrolling, timers and menus.
#include <afxwin.h>

#include "Handles.h"

// ---- Painting -----------------------------------------------------------------------------------

namespace {

HRGN RegionOf(const CRgn* region) {
    return afx::HandleOf<HRGN>(region);
}

} // namespace

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) {
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint) {
    ::EndPaint(m_hWnd, lpPaint);
}

CDC* CWnd::GetDC() {
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, RegionOf(prgnClip), flags));
}

CDC* CWnd::GetWindowDC() {
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

int CWnd::ReleaseDC(CDC* pDC) {
    return ::ReleaseDC(m_hWnd, afx::OutputOf(pDC));
}

void CWnd::Invalidate(BOOL bErase) {
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase) {
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    ::InvalidateRgn(m_hWnd, RegionOf(pRgn), bErase);
}

void CWnd::ValidateRect(LPCRECT lpRect) {
    ::ValidateRect(m_hWnd, lpRect);
}

void CWnd::ValidateRgn(CRgn* pRgn) {
    ::ValidateRgn(m_hWnd, RegionOf(pRgn));
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase) {
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase) {
    return ::GetUpdateRgn(m_hWnd, RegionOf(pRgn), bErase);
}

void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    return ::RedrawWindow(m_hWnd, lpRectUpdate, RegionOf(prgnUpdate), flags);
}

void CWnd::SetRedraw(BOOL bRedraw) {
    ::SendMessage(m_hWnd, WM_SETREDRAW, static_cast<WPARAM>(bRedraw), 0);
}

BOOL CWnd::LockWindowUpdate() {
    return ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate() {
    ::LockWindowUpdate(nullptr);
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(afx::OutputOf(pDC)),
                  static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(afx::OutputOf(pDC)),
                  static_cast<LPARAM>(dwFlags));
}

BOOL CWnd::PrintWindow(CDC* pDC, UINT nFlags) const {
    return ::PrintWindow(m_hWnd, afx::OutputOf(pDC), nFlags);
}

BOOL CWnd::DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags) {
    return ::DrawCaption(m_hWnd, afx::OutputOf(pDC), lprc, uFlags);
}

BOOL CWnd::DrawAnimatedRects(int idAni, const RECT* lprcFrom, const RECT* lprcTo) {
    return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
}

// ---- Scrolling ----------------------------------------------------------------------------------

namespace {

/// A scroll bar: the sibling control that serves as one, or the window's own.
struct Bar {
    HWND window;
    int which;
};

Bar BarOf(const CWnd& wnd, int bar) {
    if (const CScrollBar* const control = wnd.GetScrollBarCtrl(bar)) {
        return {control->m_hWnd, SB_CTL};
    }
    return {wnd.m_hWnd, bar};
}

} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const {
    return nullptr;
}

int CWnd::GetScrollPos(int nBar) const {
    const Bar bar = BarOf(*this, nBar);
    return ::GetScrollPos(bar.window, bar.which);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw) {
    const Bar bar = BarOf(*this, nBar);
    return ::SetScrollPos(bar.window, bar.which, nPos, bRedraw);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
    const Bar bar = BarOf(*this, nBar);
    ::GetScrollRange(bar.window, bar.which, lpMinPos, lpMaxPos);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw) {
    const Bar bar = BarOf(*this, nBar);
    ::SetScrollRange(bar.window, bar.which, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    const Bar bar = BarOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(bar.window, bar.which, lpScrollInfo);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    const Bar bar = BarOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(bar.window, bar.which, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const {
    psbi->cbSize = sizeof(*psbi);
    return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
}

int CWnd::GetScrollLimit(int nBar) {
    SCROLLINFO info = {};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE)) {
        return 0;
    }
    // The last page starts at the limit.
    return info.nPage > 1 ? info.nMax - static_cast<int>(info.nPage - 1) : info.nMax;
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow) {
    ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

BOOL CWnd::EnableScrollBar(int nBar, UINT nArrowFlags) {
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nBar), nArrowFlags);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    if (nBar == SB_BOTH) {
        EnableScrollBarCtrl(SB_HORZ, bEnable);
        EnableScrollBarCtrl(SB_VERT, bEnable);
        return;
    }
    if (CScrollBar* const control = GetScrollBarCtrl(nBar)) {
        control->EnableWindow(bEnable);
    } else {
        EnableScrollBar(nBar, bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
    }
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect) {
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, RegionOf(prgnUpdate),
                            lpRectUpdate, flags);
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                        void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD)) {
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent) {
    return ::KillTimer(m_hWnd, nIDEvent);
}

// ---- Menus --------------------------------------------------------------------------------------

CMenu* CWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu) {
    return ::SetMenu(m_hWnd, pMenu == nullptr ? nullptr : pMenu->m_hMenu);
}

void CWnd::DrawMenuBar() {
    ::DrawMenuBar(m_hWnd);
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const {
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite) {
    return ::HiliteMenuItem(m_hWnd, pMenu == nullptr ? nullptr : pMenu->m_hMenu, nIDHiliteItem,
                            nHilite);
}

BOOL CWnd::GetMenuBarInfo(LONG idObject, LONG idItem, PMENUBARINFO pmbi) const {
    pmbi->cbSize = sizeof(*pmbi);
    return ::GetMenuBarInfo(m_hWnd, idObject, idItem, pmbi);
}
