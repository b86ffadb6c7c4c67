// SPDX-License-Identifier: MIT
// CWnd: focus, capture and activation; parents, owners and other windows; messages.
#include <afxwin.h>

#include "Handles.h"

// ---- Focus, capture, activation, clipboard ------------------------------------------------------

CWnd* PASCAL CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetFocus() {
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* PASCAL CWnd::GetCapture() {
    return FromHandle(::GetCapture());
}

CWnd* CWnd::SetCapture() {
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd* PASCAL CWnd::GetForegroundWindow() {
    return FromHandle(::GetForegroundWindow());
}

BOOL CWnd::SetForegroundWindow() {
    return ::SetForegroundWindow(m_hWnd);
}

BOOL CWnd::OpenClipboard() {
    return ::OpenClipboard(m_hWnd);
}

// ---- Relatives ----------------------------------------------------------------------------------

CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent) {
    return FromHandle(::SetParent(m_hWnd, afx::WindowOf(pWndNewParent)));
}

CWnd* CWnd::GetOwner() const {
    return m_ownerHandle != nullptr ? FromHandle(m_ownerHandle) : GetParent();
}

void CWnd::SetOwner(CWnd* pOwnerWnd) {
    m_ownerHandle = afx::WindowOf(pOwnerWnd);
}

namespace {

bool IsChildStyle(HWND hWnd) {
    return (::GetWindowLongPtr(hWnd, GWL_STYLE) & WS_CHILD) != 0;
}

/// The owner set by CWnd::SetOwner, else the parent or owner Windows knows.
HWND OwnerOf(HWND hWnd) {
    const CWnd* const wnd = CWnd::FromHandlePermanent(hWnd);
    const CWnd* const owner = wnd == nullptr ? nullptr : wnd->GetOwner();
    return owner != nullptr ? afx::WindowOf(owner) : ::GetParent(hWnd);
}

// Owners are set freely: a ring of them must not be followed for ever.
constexpr int MaxOwners = 256;

} // namespace

CWnd* CWnd::GetTopLevelParent() const {
    if (m_hWnd == nullptr) {
        return nullptr;
    }
    HWND top = m_hWnd;
    while (const HWND parent = ::GetParent(top)) {
        top = parent;
    }
    return FromHandle(top);
}

CWnd* CWnd::GetTopLevelOwner() const {
    HWND top = m_hWnd;
    for (int i = 0; top != nullptr && i < MaxOwners; ++i) {
        const HWND owner = OwnerOf(top);
        if (owner == nullptr) {
            break;
        }
        top = owner;
    }
    return FromHandle(top);
}

CFrameWnd* CWnd::GetParentFrame() const {
    if (m_hWnd == nullptr) {
        return nullptr;
    }
    for (HWND hWnd = ::GetParent(m_hWnd); hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        CWnd* const wnd = FromHandlePermanent(hWnd);
        CFrameWnd* const frame = wnd == nullptr ? nullptr : wnd->AsFrameWnd();
        if (frame != nullptr) {
            return frame;
        }
    }
    return nullptr;
}

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop) {
    const CWnd* const start = pParent != nullptr ? pParent : AfxGetMainWnd();
    HWND owner = afx::WindowOf(start);
    while (owner != nullptr && IsChildStyle(owner)) {
        owner = ::GetParent(owner);
    }
    HWND top = owner;
    while (const HWND above = top == nullptr ? nullptr : ::GetParent(top)) {
        top = above;
    }
    // Without a wish, whatever pops up lies above the popups that are there already.
    if (pParent == nullptr && owner != nullptr) {
        owner = ::GetLastActivePopup(owner);
    }
    if (pWndTop != nullptr) {
        const bool disable = top != nullptr && top != owner && ::IsWindowEnabled(top);
        if (disable) {
            ::EnableWindow(top, FALSE);
        }
        *pWndTop = disable ? top : nullptr;
    }
    return FromHandle(owner);
}

BOOL CWnd::IsChild(const CWnd* pWnd) const {
    return ::IsChild(m_hWnd, afx::WindowOf(pWnd));
}

CWnd* CWnd::GetWindow(UINT nCmd) const {
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetNextWindow(UINT nFlag) const {
    return FromHandle(::GetWindow(m_hWnd, nFlag));
}

// ---- Messages -----------------------------------------------------------------------------------

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                    BOOL bOnlyPerm) {
    HWND next = nullptr;
    for (HWND hWnd = ::GetTopWindow(m_hWnd); hWnd != nullptr; hWnd = next) {
        // Asked for first: the message may end the window.
        next = ::GetWindow(hWnd, GW_HWNDNEXT);
        if (!bOnlyPerm || FromHandlePermanent(hWnd) != nullptr) {
            ::SendMessage(hWnd, message, wParam, lParam);
        }
        if (bDeep && ::GetTopWindow(hWnd) != nullptr) {
            FromHandle(hWnd)->SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
        }
    }
}
