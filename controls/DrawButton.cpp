// SPDX-License-Identifier: MIT
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include "controls/DrawButton.h"

#include "controls/GlyphPainter.h"
#include "controls/HostDC.h"

using tint::GlyphPainter;
using tint::HostDC;

namespace {

constexpr UINT kHoverPeriod = 300; // milliseconds

} // namespace

void CDrawButton::Draw(HDC dc, UINT state) const {
    if (GlyphPainter::CanDraw(m_rect))
        GlyphPainter(dc, m_flags, state != 0 ? state : m_flags, m_rect).Draw();
}

void CDrawButton::OnMouseMove(HWND host, POINT point) {
    if ((m_flags & kFlat) == 0)
        return;
    const bool over = ::PtInRect(&m_rect, point) != FALSE;
    const bool hot = (m_flags & kHot) != 0;
    if (over && !hot) {
        // Without a window it would be a timer of the thread, which nobody stops.
        if (host == nullptr || ::SetTimer(host, kHoverTimer, kHoverPeriod, &OnHoverTimer) == 0)
            return;
        m_flags |= kHot;
        DrawOn(host, 0);
    } else if (!over && hot) {
        ::KillTimer(host, kHoverTimer);
        m_flags &= ~kHot;
        InvalidateIn(host);
    }
}

void CALLBACK CDrawButton::OnHoverTimer(HWND host, UINT, UINT_PTR, DWORD) {
    POINT cursor = {};
    if (!::GetCursorPos(&cursor) || ::WindowFromPoint(cursor) == host)
        return;
    ::ScreenToClient(host, &cursor);
    ::PostMessageA(host, WM_MOUSEMOVE, 0, MAKELPARAM(cursor.x, cursor.y));
}

void CDrawButton::DrawOn(HWND host, UINT state) const {
    const bool nonClient = (m_flags & kNonClient) != 0;
    const HostDC dc(host, nonClient ? HostDC::Area::WholeWindow : HostDC::Area::Client);
    Draw(dc, state);
}

void CDrawButton::InvalidateIn(HWND host) const {
    if ((m_flags & kNonClient) == 0) {
        ::InvalidateRect(host, &m_rect, TRUE);
        return;
    }
    // The frame, too, is invalidated in client coordinates.
    RECT window = {};
    POINT client = {};
    if (!::GetWindowRect(host, &window) || !::ClientToScreen(host, &client))
        return;
    RECT rect = m_rect;
    ::OffsetRect(&rect, window.left - client.x, window.top - client.y);
    ::RedrawWindow(host, &rect, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}
