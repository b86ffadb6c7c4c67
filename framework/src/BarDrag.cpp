// SPDX-License-Identifier: MIT
#include <afxext.h>

#include <algorithm>
#include <cstdlib>

#include "BarAccess.h"
#include "afxpriv.h"

namespace {

/// The outline of a bar under way, drawn over all windows by inverting what is there.
class Outline {
public:
    Outline()
        : m_desktop(::GetDesktopWindow()), m_locked(::LockWindowUpdate(m_desktop) != FALSE),
          m_dc(::GetDCEx(m_desktop, nullptr,
                         DCX_WINDOW | DCX_CACHE |
                             (m_locked ? static_cast<DWORD>(DCX_LOCKWINDOWUPDATE) : 0))) {}
    ~Outline() {
        Invert();
        ::ReleaseDC(m_desktop, m_dc);
        if (m_locked) {
            ::LockWindowUpdate(nullptr);
        }
    }
    Outline(const Outline&) = delete;
    Outline& operator=(const Outline&) = delete;

    void Show(const CRect& rect) {
        if (rect != m_shown) {
            Invert();
            m_shown = rect;
            Invert();
        }
    }

private:
    void Invert() const {
        constexpr int width = 2;
        if (m_shown.IsRectEmpty()) {
            return;
        }
        const CRect& r = m_shown;
        ::PatBlt(m_dc, r.left, r.top, r.Width(), width, DSTINVERT);
        ::PatBlt(m_dc, r.left, r.bottom - width, r.Width(), width, DSTINVERT);
        ::PatBlt(m_dc, r.left, r.top + width, width, r.Height() - 2 * width, DSTINVERT);
        ::PatBlt(m_dc, r.right - width, r.top + width, width, r.Height() - 2 * width, DSTINVERT);
    }

    const HWND m_desktop;
    const bool m_locked;
    const HDC m_dc;
    CRect m_shown = CRect(0, 0, 0, 0);
};

/// One movement of a bar with the mouse.
class BarDrag {
public:
    BarDrag(CControlBar& bar, CPoint start)
        : m_bar(bar), m_window(bar.m_hWnd), m_frame(*bar.m_pDockSite), m_start(start) {
        CRect present;
        bar.GetWindowRect(present);
        m_grip = start - present.TopLeft();
        m_lies = SizeAt(true);
        m_stands = SizeAt(false);
    }

    void Run() {
        ::SetCapture(m_window);
        const bool dropped = Follow();
        if (::GetCapture() == m_window) {
            ::ReleaseCapture();
        }
        if (dropped && ::IsWindow(m_window)) {
            Drop();
        }
    }

private:
    /// True when the button was released somewhere else than where it was pressed.
    bool Follow() {
        Outline outline;
        MSG msg;
        while (::GetCapture() == m_window) {
            const BOOL fetched = ::GetMessage(&msg, nullptr, 0, 0);
            if (fetched == 0) {
                // The program's own loop has to end, too.
                ::PostQuitMessage(static_cast<int>(msg.wParam));
            }
            if (fetched == 0 || fetched == -1) {
                return false;
            }
            if (::GetCapture() != m_window) {
                // While it waited, what was sent may have ended the bar.
                ::DispatchMessage(&msg);
                return false;
            }
            switch (msg.message) {
            case WM_MOUSEMOVE:
                Move(msg.pt);
                if (m_moved) {
                    outline.Show(m_target);
                }
                break;
            case WM_LBUTTONUP:
                Move(msg.pt);
                return m_moved;
            case WM_RBUTTONDOWN:
                return false;
            case WM_KEYDOWN:
                if (msg.wParam == VK_ESCAPE) {
                    return false;
                }
                break;
            default:
                ::DispatchMessage(&msg);
                break;
            }
        }
        return false;
    }

    void Move(CPoint point) {
        m_moved = m_moved || std::abs(point.x - m_start.x) > ::GetSystemMetrics(SM_CXDRAG) ||
                  std::abs(point.y - m_start.y) > ::GetSystemMetrics(SM_CYDRAG);
        m_point = point;
        m_side = SideAt(point);
        const bool lies =
            m_side == nullptr ? FloatsLying() : (m_side->align & CBRS_ORIENT_HORZ) != 0;
        const CSize size = lies ? m_lies : m_stands;
        // The bar stays under the mouse also when it turns round.
        const CPoint grip((std::min)(m_grip.cx, size.cx - 1), (std::min)(m_grip.cy, size.cy - 1));
        m_target = CRect(CPoint(point.x - grip.x, point.y - grip.y), size);
    }

    void Drop() {
        if (m_side == nullptr) {
            m_frame.FloatControlBar(&m_bar, m_target.TopLeft(),
                                    FloatsLying() ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT);
            return;
        }
        // Across, it is the mouse that says which row is meant.
        CRect place = m_target;
        const CPoint toMouse = m_point - place.CenterPoint();
        if ((m_side->align & CBRS_ORIENT_HORZ) != 0) {
            place.OffsetRect(0, toMouse.y);
        } else {
            place.OffsetRect(toMouse.x, 0);
        }
        m_frame.DockControlBar(&m_bar, m_side->id, place);
    }

    bool FloatsLying() const {
        return (m_bar.m_dwStyle & CBRS_SIZE_DYNAMIC) != 0 ||
               (m_bar.m_dwStyle & CBRS_ORIENT_HORZ) != 0;
    }

    CSize SizeAt(bool horizontal) {
        return m_bar.CalcDynamicLayout(-1, afx::DockedMode(horizontal));
    }

    /// The side of the frame at which a bar dropped there is docked; null when it is to float.
    const afx::DockSide* SideAt(CPoint point) const {
        const DWORD allowed =
            afx::BarAccess::DockStyle(m_bar) & afx::FrameAccess::DockSides(m_frame);
        for (std::size_t i = 0; i < std::size(afx::DockSides); ++i) {
            const afx::DockSide& side = afx::DockSides[i];
            const CDockBar* const dock = afx::FrameAccess::DockBarOfSide(m_frame, i);
            if ((allowed & side.align) == 0 || dock == nullptr) {
                continue;
            }
            CRect reach;
            dock->GetWindowRect(reach);
            // Half a bar inside and outside: an empty side has no room of its own.
            if ((side.align & CBRS_ORIENT_HORZ) != 0) {
                reach.InflateRect(0, m_lies.cy / 2);
            } else {
                reach.InflateRect(m_stands.cx / 2, 0);
            }
            if (reach.PtInRect(point)) {
                return &side;
            }
        }
        return nullptr;
    }

    CControlBar& m_bar;
    const HWND m_window;
    CFrameWnd& m_frame;
    const CPoint m_start;
    /// Where in the bar the mouse holds it.
    CSize m_grip;
    CSize m_lies;
    CSize m_stands;
    bool m_moved = false;
    CPoint m_point;
    CRect m_target;
    const afx::DockSide* m_side = nullptr;
};

} // namespace

void afx::DragBar(CControlBar& bar, CPoint start) {
    if (bar.m_pDockSite != nullptr) {
        BarDrag(bar, start).Run();
    }
}
