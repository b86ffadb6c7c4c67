// SPDX-License-Identifier: MIT
#include "menus/WndMenuXP.h"

#include "draw/ColorMarkers.h"
#include "draw/DrawUtil.h"
#include "draw/Selectors.h"
#include "menus/Contained.h"
#include "menus/MenuPaint.h"
#include "menus/MenuState.h"
#include "menus/MenuXP.h"
#include "menus/OsClass.h"
#include "menus/SystemTints.h"

namespace {

constexpr char kOldProcProperty[] = "XPWndProp_OldProc";
constexpr int kShadow = 4; // pixels

/// Whether the shadow is ours to paint.  On the one system that casts one by itself it is not.
bool HasOwnShadow() {
    return CWndMenuXP::GetOSClass() < 8;
}

WNDPROC OldProcOf(HWND window) {
    return reinterpret_cast<WNDPROC>(::GetPropA(window, kOldProcProperty));
}

LRESULT CallOldProc(WNDPROC old, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // Without one, somebody has put our procedure back after we had left.
    return old == nullptr ? ::DefWindowProcA(window, message, wParam, lParam)
                          : ::CallWindowProcA(old, window, message, wParam, lParam);
}

/// Whether the system gives its popups no non-client border, so that what it paints covers ours.
bool ClientStartsAtWindow(HWND window) {
    RECT rect = {};
    POINT client = {};
    ::GetWindowRect(window, &rect);
    ::ClientToScreen(window, &client);
    return client.x == rect.left && client.y == rect.top;
}

} // namespace

CWndMenuXP::CWndMenuXP(HWND popup) : m_window(popup), m_lastFrame(0, 0, 0, 0) {}

CWndMenuXP::~CWndMenuXP() {
    Unsubclass(m_window);
}

int CWndMenuXP::GetOSClass() {
    return tint::GetOsClass();
}

// --- The procedure ------------------------------------------------------------------------------

bool CWndMenuXP::Subclass(HWND popup) {
    if (OldProcOf(popup) != nullptr)
        return true;
    const LONG_PTR old = ::GetWindowLongPtrA(popup, GWLP_WNDPROC);
    if (old == 0 || !::SetPropA(popup, kOldProcProperty, reinterpret_cast<HANDLE>(old)))
        return false;
    if (::SetWindowLongPtrA(popup, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&PopupWndProc)) != 0)
        return true;
    ::RemovePropA(popup, kOldProcProperty);
    return false;
}

void CWndMenuXP::Unsubclass(HWND popup) {
    const WNDPROC old = OldProcOf(popup);
    if (old == nullptr ||
        ::GetWindowLongPtrA(popup, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(&PopupWndProc))
        return;
    ::SetWindowLongPtrA(popup, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(old));
    ::RemovePropA(popup, kOldProcProperty);
}

LRESULT CALLBACK CWndMenuXP::PopupWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC old = OldProcOf(window);
    const auto callOld = [=] { return CallOldProc(old, window, message, wParam, lParam); };
    // Looked up again after the old procedure, which may end the popup's life.
    const auto find = [window] { return CMenuXP::FindMenuWindow(window, true); };
    CWndMenuXP* const popup = find();

    switch (message) {
    case WM_ERASEBKGND:
        if (popup != nullptr)
            tint::Contained([popup] { popup->OnEraseBackground(); });
        break;
    case WM_SHOWWINDOW:
        if (wParam == FALSE)
            CMenuXP::DestroyMenuWindow(window);
        break;
    case WM_NCDESTROY:
        CMenuXP::DestroyMenuWindow(window);
        ::RemovePropA(window, kOldProcProperty); // still there when somebody else has subclassed it
        break;
    case WM_WINDOWPOSCHANGING:
        if (popup != nullptr)
            tint::Contained(
                [=] { popup->OnWindowPosChanging(*reinterpret_cast<WINDOWPOS*>(lParam)); });
        break;
    case WM_NCCALCSIZE: {
        const LRESULT result = callOld();
        if (HasOwnShadow()) {
            // Either form of the message starts with the rectangle.
            auto& client = *reinterpret_cast<RECT*>(lParam);
            client.right -= kShadow;
            client.bottom -= kShadow;
        }
        return result;
    }
    case WM_NCPAINT:
        if (popup == nullptr)
            break;
        tint::Contained([popup] { popup->PaintNonClient(); });
        return 0;
    case WM_PAINT: {
        const LRESULT result = callOld();
        if (CWndMenuXP* const still = find())
            tint::Contained([still] { still->PaintOverClient(); });
        return result;
    }
    case WM_PRINT: {
        const BYTE paintCount = tint::GetMenuState().paintCount;
        const LRESULT result = callOld();
        const bool joined = tint::GetMenuState().paintCount != paintCount;
        if (CWndMenuXP* const still = find())
            tint::Contained([=] { still->Print(reinterpret_cast<HDC>(wParam), joined); });
        return result;
    }
    default:
        break;
    }
    return callOld();
}

void CWndMenuXP::OnWindowPosChanging(WINDOWPOS& position) {
    if (HasOwnShadow()) {
        position.cx += kShadow;
        position.cy += kShadow;
    }
    position.y -= 1;
    if ((position.flags & SWP_NOMOVE) == 0) { // else these are no position
        m_x = position.x;
        m_y = position.y;
    }
    // Not every system erases a popup before it is visible; this is the last moment before.
    if ((position.flags & SWP_SHOWWINDOW) != 0) {
        CRect window;
        ::GetWindowRect(m_window, window);
        const bool sized = (position.flags & SWP_NOSIZE) == 0;
        CaptureBackground(sized ? CSize(position.cx, position.cy) : window.Size());
    }
}

void CWndMenuXP::OnEraseBackground() {
    constexpr int margin = 10; // the frame and the shadow, which are not of the client area
    CRect client;
    ::GetClientRect(m_window, client);
    CaptureBackground(CSize(client.right + margin, client.bottom + margin));
}

void CWndMenuXP::CaptureBackground(SIZE size) {
    if (::IsWindowVisible(m_window))
        return; // it would capture itself
    m_background.DeleteObject();
    m_background.Attach(CopyScreenToBitmap({m_x, m_y, m_x + size.cx, m_y + size.cy}));
}

// --- The frame ----------------------------------------------------------------------------------

void CWndMenuXP::PaintNonClient() {
    CWindowDC dc(CWnd::FromHandle(m_window));
    RememberPosition();
    const CRect frame = FrameAtOrigin();
    if (frame == m_lastFrame)
        return; // it is there, and a shadow painted twice would be twice as dark
    m_lastFrame = frame;
    DrawFrame(dc, frame, true);
    if (!HasOwnShadow())
        return;
    // Where each window has a surface of its own, nothing lies under a new one's shadow: there the
    // picture from before takes the place of what a shared screen would still show.
    if (m_background.GetSafeHandle() != nullptr)
        RestoreBackground(dc, frame);
    DrawMenuShadow(dc, dc, frame);
}

void CWndMenuXP::PaintOverClient() {
    if (!ClientStartsAtWindow(m_window))
        return;
    CWindowDC dc(CWnd::FromHandle(m_window));
    RememberPosition();
    DrawFrame(dc, FrameAtOrigin(), true);
}

void CWndMenuXP::Print(HDC target, bool joined) {
    const CRect frame = FrameAtOrigin();
    m_lastFrame = frame;
    CDC* const dc = CDC::FromHandle(target); // it is the sender's
    if (dc == nullptr)
        return;
    DrawFrame(*dc, frame, joined);
    if (HasOwnShadow())
        PrintShadow(*dc, frame);
}

CRect CWndMenuXP::FrameAtOrigin() const {
    CRect frame;
    ::GetWindowRect(m_window, frame);
    frame.OffsetRect(-frame.left, -frame.top);
    return frame;
}

void CWndMenuXP::RememberPosition() {
    CRect window;
    ::GetWindowRect(m_window, window);
    m_x = window.left;
    m_y = window.top;
}

void CWndMenuXP::DrawFrame(CDC& dc, CRect frame, bool join) const {
    if (HasOwnShadow()) {
        frame.right -= kShadow;
        frame.bottom -= kShadow;
    }
    const CBrushSelector brush(dc, tint::kNoColor);
    CPenSelector pen(dc, ::GetSysColor(COLOR_3DDKSHADOW));
    dc.Rectangle(frame);
    pen.SetColor(tint::FaceTint(75));
    for (int line = 0; line < 2; ++line) {
        frame.DeflateRect(1, 1);
        dc.Rectangle(frame);
    }
    if (join)
        DrawJoin(dc);
}

void CWndMenuXP::DrawJoin(CDC& dc) const {
    const RECT& item = tint::GetMenuState().openBarItem;
    if (::IsRectEmpty(&item) || item.bottom != m_y + 1)
        return;
    const int left = item.left - m_x;
    const CPenSelector pen(dc, tint::FaceTint(20));
    dc.MoveTo(left - 3, 0);
    dc.LineTo(left + (item.right - item.left) - 5, 0);
}

void CWndMenuXP::PrintShadow(CDC& dc, const CRect& frame) {
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    tint::ObjectSelection background(memory.GetSafeHdc());
    background.Select(m_background.GetSafeHandle());
    const auto restore = [&](int x, int y, int width, int height) {
        dc.BitBlt(x, y, width, height, &memory, x, y, SRCCOPY);
    };
    // Where the rounded shadow does not reach, what lies under the popup shows.
    const int right = frame.right - kShadow;
    const int bottom = frame.bottom - kShadow;
    restore(0, bottom, 2 * kShadow, kShadow);
    restore(right, bottom, kShadow, kShadow);
    restore(right, 0, kShadow, 2 * kShadow);
    DrawMenuShadow(memory, dc, frame);
}

/// Puts the picture from before under the whole shadow.
void CWndMenuXP::RestoreBackground(CDC& dc, const CRect& frame) {
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    tint::ObjectSelection background(memory.GetSafeHdc());
    background.Select(m_background.GetSafeHandle());
    const int right = frame.right - kShadow;
    const int bottom = frame.bottom - kShadow;
    dc.BitBlt(0, bottom, frame.right, kShadow, &memory, 0, bottom, SRCCOPY);
    dc.BitBlt(right, 0, kShadow, bottom, &memory, right, 0, SRCCOPY);
}
