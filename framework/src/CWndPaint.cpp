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

// ---- Scrolling and timers -----------------------------------------------------------------------

CScrollBar* CWnd::GetScrollBarCtrl(int) const {
    return nullptr;
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
