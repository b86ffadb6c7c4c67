// SPDX-License-Identifier: MIT
#include "CreationHook.h"

#include <new>

#include "ThreadState.h"
#include "WndAccess.h"

namespace {

/// True for the input method's hidden window, which Windows creates in the middle of the creation
/// of a thread's first window.
bool IsInputMethodWindow(HWND window) {
    return (::GetClassLongPtr(window, GCL_STYLE) & CS_IME) != 0;
}

} // namespace

afx::CreationHook::CreationHook(CWnd* wnd)
    : m_object(wnd), m_wnd(wnd), m_window(nullptr),
      m_hook(::SetWindowsHookEx(WH_CBT, HookProc, nullptr, ::GetCurrentThreadId())),
      m_outer(CurrentThread().creation) {
    CurrentThread().creation = this;
}

afx::CreationHook::~CreationHook() {
    CurrentThread().creation = m_outer;
    if (m_hook != nullptr) {
        ::UnhookWindowsHookEx(m_hook);
    }
}

BOOL afx::CreationHook::Finish(HWND created) const {
    if (created != nullptr) {
        return TRUE;
    }
    // A window that got as far as its first message has ended with WM_NCDESTROY. The object may be
    // gone by then: the map knows whether it is still there.
    if (m_window == nullptr) {
        WndAccess::PostNcDestroy(*m_object);
    } else if (CWnd::FromHandlePermanent(m_window) == m_object) {
        m_object->Detach();
        WndAccess::PostNcDestroy(*m_object);
    }
    return FALSE;
}

bool afx::CreationHook::AttachTo(HWND window) {
    CWnd* const wnd = m_wnd;
    m_wnd = nullptr;
    m_window = window;
    try {
        if (!wnd->Attach(window)) {
            return false;
        }
        wnd->PreSubclassWindow();
        InstallWndProc(*wnd);
        return true;
    } catch (CException* e) {
        // The system called us: an exception must not go on through it.
        e->Delete();
    } catch (const std::bad_alloc&) {
        TRACE("Error: no memory to attach a window to its object.\n");
    }
    return false;
}

LRESULT CALLBACK afx::CreationHook::HookProc(int code, WPARAM wParam, LPARAM lParam) {
    CreationHook* const creation = CurrentThread().creation;
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && creation != nullptr && creation->m_wnd != nullptr &&
        !IsInputMethodWindow(window) && !creation->AttachTo(window)) {
        return 1; // cancels the creation
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void afx::InstallWndProc(CWnd& wnd) {
    const auto previous = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(wnd.m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (previous != &AfxWndProc) {
        WndAccess::SuperProc(wnd) = previous;
    }
}
