// SPDX-License-Identifier: MIT
#include "draw/MouseHoverTracker.h"

namespace {

void RequestTracking(HWND window, DWORD flags) {
    TRACKMOUSEEVENT request = {};
    request.cbSize = sizeof request;
    request.dwFlags = flags;
    request.hwndTrack = window;
    ::TrackMouseEvent(&request);
}

} // namespace

void CMouseHoverTracker::Attach(HWND owner, WORD options) {
    m_owner = owner;
    m_options = options;
    // A window destroyed under the mouse is never left; the object may have another one by now.
    m_tracked = nullptr;
    m_hover = false;
}

bool CMouseHoverTracker::OnMouseMove(HWND window) {
    if (window == nullptr)
        window = m_owner;

    if (!m_hover) {
        m_hover = true;
        ShowChange();
        Track(window);
        return true;
    }
    if (window != m_tracked) {
        RequestTracking(m_tracked, TME_CANCEL);
        Track(window);
    }
    return false;
}

bool CMouseHoverTracker::OnMouseLeave(HWND window) {
    if (window == nullptr)
        window = m_owner;
    if (window != m_tracked)
        return false;

    m_hover = false;
    ShowChange();
    return true;
}

void CMouseHoverTracker::Track(HWND window) {
    m_tracked = window;
    RequestTracking(window, TME_LEAVE);
}

void CMouseHoverTracker::ShowChange() const {
    if ((m_options & kRepaint) != 0)
        ::InvalidateRect(m_owner, nullptr, FALSE);
    if ((m_options & kRecalcFrame) != 0)
        ::SetWindowPos(m_owner, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED);
}
