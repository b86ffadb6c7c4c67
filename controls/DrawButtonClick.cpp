// SPDX-License-Identifier: MIT
// The click loop of CDrawButton.
#include "controls/DrawButton.h"

#include <windowsx.h>

namespace {

/// One for the program: at most one button is being clicked.
WORD g_repeatCode = 0;

} // namespace

namespace tint {

/// One click, from press to release.  The host may be destroyed meanwhile and take the button with it:
/// the button is only touched while the host has the capture or is known to be a window still.
class DrawButtonClick {
public:
    DrawButtonClick(const CDrawButton& button, HWND host, POINT point, UINT repeatTimer);

    UINT Run();

private:
    enum class Progress { Goes, Released, Ended };

    void ChooseHalf();
    void ShowWhereThePointIs();
    Progress TakeMessage();
    Progress Handle(const MSG& message);
    POINT PointOf(const MSG& message) const;
    bool HoldsMouse() const { return ::GetCapture() == m_host; }
    bool IsSpinPair() const { return m_kind == CDrawButton::kSpinPair; }

    const CDrawButton& m_button;
    HWND m_host;
    POINT m_point;
    UINT m_repeatTimer;
    UINT m_kind;
    UINT m_pressedBit = CDrawButton::kPressed;
    RECT m_active; ///< the rectangle that shows pressed
    bool m_nonClient;
    bool m_inside = false;
};

DrawButtonClick::DrawButtonClick(const CDrawButton& button, HWND host, POINT point,
                                 UINT repeatTimer)
    : m_button(button), m_host(host), m_point(point), m_repeatTimer(repeatTimer),
      m_kind(button.m_flags & CDrawButton::kKindMask), m_active(button.m_rect),
      m_nonClient((button.m_flags & CDrawButton::kNonClient) != 0) {
    if (IsSpinPair())
        ChooseHalf();
}

void DrawButtonClick::ChooseHalf() {
    // The sum is taken in 64 bits: the rectangle may be any.
    const auto middle = static_cast<LONG>((LONGLONG{m_active.top} + m_active.bottom) / 2);
    const bool upper = m_point.y < middle;
    if (upper) {
        m_active.bottom = middle;
    } else {
        m_active.top = middle;
        m_pressedBit = CDrawButton::kSecondPressed;
    }
    if (m_repeatTimer != 0)
        g_repeatCode = upper ? LOWORD(m_repeatTimer) : HIWORD(m_repeatTimer);
}

UINT DrawButtonClick::Run() {
    ::SetCapture(m_host);
    Progress progress = Progress::Goes;
    while (progress == Progress::Goes && HoldsMouse()) {
        ShowWhereThePointIs();
        progress = TakeMessage();
    }

    if (HoldsMouse())
        ::ReleaseCapture();
    if (!::IsWindow(m_host))
        return 0;
    if (IsSpinPair() && m_repeatTimer != 0)
        ::KillTimer(m_host, m_repeatTimer);
    if (m_inside)
        m_button.DrawOn(m_host, 0);
    return progress == Progress::Released ? m_kind | m_pressedBit : 0;
}

void DrawButtonClick::ShowWhereThePointIs() {
    const bool inside = ::PtInRect(&m_active, m_point) != FALSE;
    if (inside == m_inside)
        return;
    m_inside = inside;
    m_button.DrawOn(m_host, m_button.m_flags | (inside ? m_pressedBit : 0));
}

DrawButtonClick::Progress DrawButtonClick::TakeMessage() {
    MSG message = {};
    const BOOL got = ::GetMessageA(&message, nullptr, 0, 0);
    if (got == 0)
        ::PostQuitMessage(static_cast<int>(message.wParam)); // the outer loop is to end, too
    if (got <= 0)
        return Progress::Ended;
    if (!HoldsMouse()) { // lost in a message that was sent while waiting
        ::DispatchMessageA(&message);
        return Progress::Ended;
    }
    return Handle(message);
}

DrawButtonClick::Progress DrawButtonClick::Handle(const MSG& message) {
    switch (message.message) {
    case WM_LBUTTONUP:
        return m_inside ? Progress::Released : Progress::Ended;
    case WM_RBUTTONDOWN:
    case WM_CANCELMODE:
        return Progress::Ended;
    case WM_MOUSEMOVE:
        if (message.hwnd != m_host) // posted to it, as by another button's timer
            break;
        m_point = PointOf(message);
        return Progress::Goes;
    case WM_KEYDOWN:
        return message.wParam == VK_ESCAPE ? Progress::Ended : Progress::Goes;
    case WM_TIMER:
        if (m_repeatTimer != 0 && message.wParam == m_repeatTimer && !m_inside)
            return Progress::Goes;
        break;
    default:
        break;
    }
    ::DispatchMessageA(&message);
    return Progress::Goes;
}

POINT DrawButtonClick::PointOf(const MSG& message) const {
    POINT point = {GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
    if (m_nonClient) {
        RECT window = {};
        ::GetWindowRect(m_host, &window);
        ::ClientToScreen(m_host, &point);
        point.x -= window.left;
        point.y -= window.top;
    }
    return point;
}

} // namespace tint

UINT CDrawButton::TrackClick(HWND host, POINT point, UINT repeatTimer) {
    if (::GetCapture() != nullptr || (m_flags & kDisabled) != 0 || !::IsWindow(host))
        return 0;
    return tint::DrawButtonClick(*this, host, point, repeatTimer).Run();
}

WORD CDrawButton::RepeatCode() {
    return g_repeatCode;
}
