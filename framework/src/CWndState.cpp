// SPDX-License-Identifier: MIT
// CWnd: state, style, text, font, size and position.
#include <afxwin.h>

#include <algorithm>

#include "Handles.h"

// ---- State and style ----------------------------------------------------------------------------

DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const {
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE));
}

namespace {

BOOL ChangeStyle(HWND hWnd, int which, DWORD remove, DWORD add, UINT flags) {
    const auto before = static_cast<DWORD>(::GetWindowLongPtr(hWnd, which));
    const DWORD after = (before & ~remove) | add;
    if (after == before) {
        return FALSE;
    }
    ::SetWindowLongPtr(hWnd, which, static_cast<LONG_PTR>(after));
    if (flags != 0) {
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0,
                       flags | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return TRUE;
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::EnableWindow(BOOL bEnable) {
    return ::EnableWindow(m_hWnd, bEnable);
}

BOOL CWnd::IsWindowEnabled() const {
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::IsIconic() const {
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const {
    return ::IsZoomed(m_hWnd);
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    return ::ShowWindow(m_hWnd, nCmdShow);
}

// ---- Text, font, icon, identifier ---------------------------------------------------------------

void CWnd::SetWindowText(LPCTSTR lpszString) {
    ::SetWindowText(m_hWnd, lpszString);
}

void CWnd::GetWindowText(CString& rString) const {
    const int length = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, rString.GetBufferSetLength(length), length + 1);
    rString.ReleaseBuffer();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    ::SendMessage(m_hWnd, WM_SETFONT,
                  reinterpret_cast<WPARAM>(pFont == nullptr ? nullptr : pFont->m_hObject),
                  MAKELPARAM(bRedraw, 0));
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID) {
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}

// ---- Size and position --------------------------------------------------------------------------

void CWnd::GetWindowRect(LPRECT lpRect) const {
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const {
    ::GetClientRect(m_hWnd, lpRect);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left,
               lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, afx::WindowOf(pWndInsertAfter), x, y, cx, cy, nFlags);
}

void CWnd::BringWindowToTop() {
    ::BringWindowToTop(m_hWnd);
}

namespace {

/// The window to centre on; null for the screen.
HWND CenterReference(HWND hWnd, const CWnd* alternate, bool isChild) {
    if (alternate != nullptr) {
        return afx::WindowOf(alternate);
    }
    const HWND reference = isChild ? ::GetParent(hWnd) : ::GetWindow(hWnd, GW_OWNER);
    if (isChild || reference == nullptr) {
        return reference;
    }
    const bool shown = ::IsWindowVisible(reference) && !::IsIconic(reference);
    return shown ? reference : nullptr;
}

CRect WorkArea(HWND nearest) {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromWindow(nearest, MONITOR_DEFAULTTOPRIMARY), &info);
    return info.rcWork;
}

/// The start of a span of that length, centred between first and last and kept inside the area.
LONG CenteredStart(LONG first, LONG last, LONG length, LONG areaFirst, LONG areaLast) {
    const LONG start = first + (last - first - length) / 2;
    return std::max(areaFirst, std::min(start, areaLast - length));
}

} // namespace

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    const HWND reference = CenterReference(m_hWnd, pAlternateOwner, isChild);
    CRect area;
    CRect target;
    if (isChild) {
        const HWND parent = ::GetParent(m_hWnd);
        ::GetClientRect(parent, &area);
        ::GetClientRect(reference, &target);
        ::MapWindowPoints(reference, parent, reinterpret_cast<LPPOINT>(&target), 2);
    } else {
        area = WorkArea(reference != nullptr ? reference : m_hWnd);
        target = area;
        if (reference != nullptr && reference != ::GetDesktopWindow()) {
            ::GetWindowRect(reference, &target);
        }
    }
    CRect own;
    GetWindowRect(&own);
    SetWindowPos(nullptr,
                 CenteredStart(target.left, target.right, own.Width(), area.left, area.right),
                 CenteredStart(target.top, target.bottom, own.Height(), area.top, area.bottom), -1,
                 -1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    DWORD exStyle = GetExStyle();
    if (nAdjustType == adjustBorder) {
        exStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    }
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, exStyle);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const {
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const {
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
    ::MapWindowPoints(m_hWnd, afx::WindowOf(pwndTo), lpPoint, nCount);
}
