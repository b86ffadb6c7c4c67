// SPDX-License-Identifier: MIT
#include <afxext.h>

#include <algorithm>
#include <memory>

#include "BarAccess.h"
#include "MiniDockFrame.h"
#include "WndAccess.h"
#include "afxpriv.h"

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_TIMER()
    ON_WM_WINDOWPOSCHANGED()
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

namespace {

// What a size that is to fill its side begins with; the layout cuts it to the room there is.
constexpr int Stretched = 32767;

// The gripper: a raised line with some room at both sides.
constexpr int GripperRoom = 2;
constexpr int GripperWidth = 3;
constexpr int GripperTotal = GripperRoom + GripperWidth + GripperRoom;

constexpr UINT_PTR StatusTextTimer = 0xE000;
constexpr UINT StatusTextInterval = 100; // milliseconds

int EdgeWidth(DWORD style, DWORD edge) {
    if ((style & edge) == 0) {
        return 0;
    }
    return (style & CBRS_BORDER_3D) != 0 ? 2 : 1;
}

bool HasGripper(DWORD style) {
    return (style & (CBRS_GRIPPER | CBRS_FLOATING)) == CBRS_GRIPPER;
}

} // namespace

CControlBar::CControlBar()
    : m_bAutoDelete(FALSE), m_pDockSite(nullptr), m_pDockBar(nullptr), m_dwStyle(0),
      m_cxLeftBorder(6), m_cxRightBorder(6), m_cyTopBorder(1), m_cyBottomBorder(1), m_dockStyle(0),
      m_pending(Pending::Nothing), m_toolShown(-1) {}

CControlBar::~CControlBar() {
    // Here and not only in the base class: OnDestroy() tells the frame and the dock bar.
    DestroyWindow();
}

void CControlBar::PostNcDestroy() {
    if (m_bAutoDelete) {
        const std::unique_ptr<CControlBar> ended(this);
    }
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style |= WS_CLIPSIBLINGS;
    return CWnd::PreCreateWindow(cs);
}

int CControlBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    CWnd* const parent = FromHandlePermanent(lpCreateStruct->hwndParent);
    CFrameWnd* const frame = parent == nullptr ? nullptr : afx::WndAccess::AsFrameWnd(*parent);
    if (frame != nullptr) {
        m_pDockSite = frame;
        frame->m_listControlBars.AddTail(this);
    }
    return 0;
}

void CControlBar::OnDestroy() {
    if (m_pDockBar != nullptr) {
        afx::MiniDockFrame* const mini = afx::MiniDockFrame::Of(*this);
        m_pDockBar->Remove(this);
        m_pDockBar = nullptr;
        if (mini != nullptr && mini->Dock().FirstBar() == nullptr) {
            // Later: the frame may be what is being destroyed.
            mini->PostMessage(WM_CLOSE);
        }
    }
    if (m_pDockSite != nullptr) {
        CPtrList& bars = m_pDockSite->m_listControlBars;
        if (const POSITION place = bars.Find(this)) {
            bars.RemoveAt(place);
        }
        m_pDockSite = nullptr;
    }
    // Of no meaning to another window that the object may be given.
    m_pending = Pending::Nothing;
    m_toolShown = -1;
    CWnd::OnDestroy();
}

// ---- Attributes ---------------------------------------------------------------------------------

int CControlBar::GetCount() const {
    return ItemCount();
}

DWORD CControlBar::GetBarStyle() {
    return m_dwStyle;
}

void CControlBar::SetBarStyle(DWORD dwStyle) {
    if (m_dwStyle != dwStyle) {
        afx::BarAccess::ChangeStyle(*this, dwStyle);
    }
}

void CControlBar::FrameChanged() {
    if (m_hWnd != nullptr) {
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
}

CRect CControlBar::GetBorders() const {
    return CRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
}

void CControlBar::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom) {
    m_cxLeftBorder = cxLeft;
    m_cyTopBorder = cyTop;
    m_cxRightBorder = cxRight;
    m_cyBottomBorder = cyBottom;
    FrameChanged();
}

void CControlBar::SetBorders(LPCRECT lpRect) {
    SetBorders(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

CFrameWnd* CControlBar::GetDockingFrame() const {
    CFrameWnd* const frame = GetParentFrame();
    return frame != nullptr ? frame : m_pDockSite;
}

BOOL CControlBar::IsFloating() const {
    return m_pDockBar != nullptr && m_pDockBar->IsFloatingSite();
}

void CControlBar::EnableDocking(DWORD dwDockStyle) {
    m_dockStyle = dwDockStyle & (CBRS_ALIGN_ANY | CBRS_FLOAT_MULTI);
    m_dwStyle |= dwDockStyle & CBRS_FLOAT_MULTI;
    // Wherever the bar goes, its commands are the frame's.
    if (m_pDockSite != nullptr) {
        SetOwner(m_pDockSite);
    }
}

// ---- Showing ------------------------------------------------------------------------------------

void afx::BarAccess::Show(CControlBar& bar, bool show) {
    bar.m_pending = CControlBar::Pending::Nothing;
    bar.SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE |
                         (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

void afx::BarAccess::ShowPending(CControlBar& bar) {
    if (bar.m_pending != CControlBar::Pending::Nothing) {
        Show(bar, bar.m_pending == CControlBar::Pending::Show);
    }
}

bool afx::BarAccess::IsShown(const CControlBar& bar) {
    if (bar.m_pending != CControlBar::Pending::Nothing) {
        return bar.m_pending == CControlBar::Pending::Show;
    }
    return bar.m_hWnd != nullptr && (bar.GetStyle() & WS_VISIBLE) != 0;
}

// ---- Layout -------------------------------------------------------------------------------------

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    return CSize(bStretch && bHorz ? Stretched : 0, bStretch && !bHorz ? Stretched : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD nMode) {
    return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZ) != 0);
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL bHorz) const {
    rect.left += EdgeWidth(m_dwStyle, CBRS_BORDER_LEFT);
    rect.top += EdgeWidth(m_dwStyle, CBRS_BORDER_TOP);
    rect.right -= EdgeWidth(m_dwStyle, CBRS_BORDER_RIGHT);
    rect.bottom -= EdgeWidth(m_dwStyle, CBRS_BORDER_BOTTOM);
    if (bHorz) {
        rect.DeflateRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
    } else {
        rect.DeflateRect(m_cyTopBorder, m_cxLeftBorder, m_cyBottomBorder, m_cxRightBorder);
    }
    if (HasGripper(m_dwStyle)) {
        (bHorz ? rect.left : rect.top) += GripperTotal;
    }
}

DWORD CControlBar::LayoutMode(bool stretch) const {
    DWORD mode = stretch ? LM_STRETCH : 0;
    if ((m_dwStyle & CBRS_SIZE_DYNAMIC) != 0 && (m_dwStyle & CBRS_FLOATING) != 0) {
        mode |= LM_HORZ | LM_MRUWIDTH;
    } else {
        mode |= afx::DockedMode((m_dwStyle & CBRS_ORIENT_HORZ) != 0);
    }
    return mode;
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const bool aligned = (m_dwStyle & CBRS_ALIGN_ANY) != 0;
    if (!aligned || (GetStyle() & WS_VISIBLE) == 0) {
        return 0;
    }
    const bool commit = layout.hDWP != nullptr;
    const CSize wish = CalcDynamicLayout(-1, LayoutMode(layout.bStretch != FALSE) |
                                                 (commit ? static_cast<DWORD>(LM_COMMIT) : 0));
    CRect& left = static_cast<CRect&>(layout.rect);
    const CSize size((std::min)(wish.cx, static_cast<LONG>((std::max)(left.Width(), 0))),
                     (std::min)(wish.cy, static_cast<LONG>((std::max)(left.Height(), 0))));
    CRect place(left.TopLeft(), size);
    if ((m_dwStyle & CBRS_ORIENT_HORZ) != 0) {
        layout.sizeTotal.cx = (std::max)(layout.sizeTotal.cx, wish.cx);
        layout.sizeTotal.cy += size.cy;
        if ((m_dwStyle & CBRS_ALIGN_TOP) != 0) {
            left.top += size.cy;
        } else {
            place.OffsetRect(0, left.Height() - size.cy);
            left.bottom -= size.cy;
        }
    } else {
        layout.sizeTotal.cx += size.cx;
        layout.sizeTotal.cy = (std::max)(layout.sizeTotal.cy, wish.cy);
        if ((m_dwStyle & CBRS_ALIGN_LEFT) != 0) {
            left.left += size.cx;
        } else {
            place.OffsetRect(left.Width() - size.cx, 0);
            left.right -= size.cx;
        }
    }
    if (commit) {
        layout.hDWP =
            ::DeferWindowPos(layout.hDWP, m_hWnd, nullptr, place.left, place.top, place.Width(),
                             place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return 0;
}

void CControlBar::OnWindowPosChanged(WINDOWPOS* lpWndPos) {
    Default();
    // The borders are not the client area: Windows would leave the old ones where they were.
    if ((lpWndPos->flags & SWP_NOSIZE) == 0) {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
    }
}

// ---- Painting -----------------------------------------------------------------------------------

void CControlBar::OnPaint() {
    CPaintDC dc(this);
    DoPaint(&dc);
}

void CControlBar::DoPaint(CDC* pDC) {
    CRect rect;
    GetClientRect(rect);
    DrawBorders(pDC, rect);
    DrawGripper(pDC, rect);
}

void CControlBar::DrawBorders(CDC* pDC, CRect& rect) {
    const COLORREF dark = ::GetSysColor(COLOR_BTNSHADOW);
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF colors[] = {dark, light};
    const int rings = (m_dwStyle & CBRS_BORDER_3D) != 0 ? 2 : 1;
    for (int i = 0; i < rings; ++i) {
        const CRect ring = rect;
        const int width = ring.Width();
        const int height = ring.Height();
        if ((m_dwStyle & CBRS_BORDER_LEFT) != 0) {
            pDC->FillSolidRect(ring.left, ring.top, 1, height, colors[i]);
            ++rect.left;
        }
        if ((m_dwStyle & CBRS_BORDER_TOP) != 0) {
            pDC->FillSolidRect(ring.left, ring.top, width, 1, colors[i]);
            ++rect.top;
        }
        if ((m_dwStyle & CBRS_BORDER_RIGHT) != 0) {
            pDC->FillSolidRect(ring.right - 1, ring.top, 1, height, colors[i]);
            --rect.right;
        }
        if ((m_dwStyle & CBRS_BORDER_BOTTOM) != 0) {
            pDC->FillSolidRect(ring.left, ring.bottom - 1, width, 1, colors[i]);
            --rect.bottom;
        }
    }
}

void CControlBar::DrawGripper(CDC* pDC, const CRect& rect) {
    if (!HasGripper(m_dwStyle)) {
        return;
    }
    CRect line = rect;
    if ((m_dwStyle & CBRS_ORIENT_HORZ) != 0) {
        line.DeflateRect(GripperRoom, m_cyTopBorder);
        line.right = line.left + GripperWidth;
    } else {
        line.DeflateRect(m_cyTopBorder, GripperRoom);
        line.bottom = line.top + GripperWidth;
    }
    pDC->Draw3dRect(line, ::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_BTNSHADOW));
}

// ---- Messages -----------------------------------------------------------------------------------

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_COMMAND && message != WM_NOTIFY) {
        return CWnd::WindowProc(message, wParam, lParam);
    }
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result)) {
        return result;
    }
    // What a control in the bar has to say is for the frame, whose command it is.
    CWnd* const owner = GetOwner();
    return owner == nullptr || owner == this ? 0 : owner->SendMessage(message, wParam, lParam);
}

void CControlBar::OnLButtonDown(UINT nFlags, CPoint point) {
    const bool movable = m_pDockBar != nullptr && m_pDockSite != nullptr;
    if (!movable || OnToolHitTest(point, nullptr) != -1) {
        CWnd::OnLButtonDown(nFlags, point);
        return;
    }
    ClientToScreen(&point);
    afx::DragBar(*this, point);
}

BOOL CControlBar::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    if ((m_dwStyle & (CBRS_TOOLTIPS | CBRS_FLYBY)) != 0) {
        FilterToolTipMessage(pMsg);
    }
    return FALSE;
}

void CControlBar::ShowStatusTextOfTool(INT_PTR tool) {
    if ((m_dwStyle & CBRS_FLYBY) == 0 || tool == m_toolShown) {
        return;
    }
    m_toolShown = tool;
    CWnd* const owner = GetOwner();
    if (owner != nullptr) {
        owner->SendMessage(WM_SETMESSAGESTRING,
                           tool == -1 ? AFX_IDS_IDLEMESSAGE : static_cast<WPARAM>(tool));
    }
    if (tool == -1) {
        KillTimer(StatusTextTimer);
    } else {
        SetTimer(StatusTextTimer, StatusTextInterval, nullptr);
    }
}

void CControlBar::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent != StatusTextTimer) {
        CWnd::OnTimer(nIDEvent);
        return;
    }
    // A window does not hear of the mouse any more once it has left.
    POINT cursor = {};
    ::GetCursorPos(&cursor);
    const HWND under = ::WindowFromPoint(cursor);
    if (under != m_hWnd && !::IsChild(m_hWnd, under)) {
        CancelToolTips();
        ShowStatusTextOfTool(-1);
    }
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    if ((GetStyle() & WS_VISIBLE) == 0) {
        return 0;
    }
    CWnd* const owner = GetOwner();
    CFrameWnd* target = owner == nullptr ? nullptr : afx::WndAccess::AsFrameWnd(*owner);
    if (target == nullptr) {
        target = GetParentFrame();
    }
    if (target != nullptr) {
        OnUpdateCmdUI(target, static_cast<BOOL>(wParam));
    }
    return 0;
}
