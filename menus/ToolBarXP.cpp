// SPDX-License-Identifier: MIT
#include "menus/ToolBarXP.h"

#include "draw/BufferDC.h"
#include "draw/Skin.h"
#include "menus/ToolBarPainter.h"

namespace {

/// A separator with a command stands for a control.
bool IsPlaceholder(const TBBUTTON& button) {
    return (button.fsStyle & TBSTYLE_SEP) != 0 && button.idCommand != 0;
}

} // namespace

IMPLEMENT_DYNCREATE(CToolBarXP, CToolBar)

BEGIN_MESSAGE_MAP(CToolBarXP, CToolBar)
    ON_WM_ERASEBKGND()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEMOVE()
    ON_WM_PAINT()
    ON_NOTIFY_REFLECT(TBN_DROPDOWN, &CToolBarXP::OnDropDown)
END_MESSAGE_MAP()

void CToolBarXP::PreSubclassWindow() {
    CToolBar::PreSubclassWindow();
    m_hover.Attach(m_hWnd, CMouseHoverTracker::kRepaint);
}

BOOL CToolBarXP::LoadToolBar(UINT resourceId) {
    return CToolBar::LoadToolBar(resourceId) && FinishLoading();
}

BOOL CToolBarXP::LoadToolBar(LPCTSTR resourceName) {
    return CToolBar::LoadToolBar(resourceName) && FinishLoading();
}

BOOL CToolBarXP::FinishLoading() {
    SetBorders(1, 3, 6, 4);
    SendMessage(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS);
    return TRUE;
}

BOOL CToolBarXP::InsertControl(int index, const CWnd& control) {
    const int count = static_cast<int>(SendMessage(TB_BUTTONCOUNT));
    if (index < 0 || index > count)
        index = count;
    CRect place;
    control.GetWindowRect(place);

    TBBUTTON placeholder = {};
    placeholder.iBitmap = place.Width();
    placeholder.idCommand = control.GetDlgCtrlID();
    placeholder.fsStyle = TBSTYLE_SEP;
    placeholder.iString = -1;
    if (!SendMessage(TB_INSERTBUTTONA, index, reinterpret_cast<LPARAM>(&placeholder)))
        return FALSE;
    ModifyStyle(0, WS_CLIPCHILDREN); // a paint of the bar leaves the control alone
    m_bDelayedButtonLayout = TRUE;
    return TRUE;
}

void CToolBarXP::TrackDropDownMenu(UINT commandId, HMENU menu) {
    const int index = CommandToIndex(commandId);
    if (index < 0)
        return;
    TPMPARAMS around = {};
    around.cbSize = sizeof(around);
    GetItemRect(index, &around.rcExclude);
    ClientToScreen(&around.rcExclude);

    const HWND toolBar = m_hWnd;
    SetOpen(commandId, true);
    ::TrackPopupMenuEx(menu, 0, around.rcExclude.left, around.rcExclude.bottom, FrameOfCommands(),
                       &around);
    // The menu ran a message loop, in which anything may have happened to the toolbar.
    if (::IsWindow(toolBar) && CWnd::FromHandlePermanent(toolBar) == this)
        SetOpen(commandId, false);
}

HWND CToolBarXP::FrameOfCommands() const {
    // Around a bar that floats there is a small frame, which has no commands of its own.
    const CWnd* const frame = m_pDockSite != nullptr ? m_pDockSite : GetParentFrame();
    return frame != nullptr ? frame->m_hWnd : ::GetAncestor(m_hWnd, GA_ROOT);
}

void CToolBarXP::SetOpen(UINT commandId, bool open) {
    const int index = CommandToIndex(commandId);
    if (index < 0)
        return;
    const UINT style = GetButtonStyle(index);
    SetButtonStyle(index, open ? style | TBBS_INDETERMINATE : style & ~TBBS_INDETERMINATE);
    UpdateWindow();
}

void CToolBarXP::OnDropDown(NMHDR* notification, LRESULT* result) {
    const auto* button = reinterpret_cast<const NMTOOLBARA*>(notification);
    const CWnd* owner = GetOwner();
    const WPARAM command = static_cast<WORD>(0U - static_cast<UINT>(button->iItem));
    const bool handled = owner != nullptr && ::SendMessageA(owner->m_hWnd, WM_COMMAND, command, 0);
    *result = handled ? TBDDRET_DEFAULT : TBDDRET_TREATPRESSED;
}

LRESULT CToolBarXP::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CToolBar::DefWindowProc(message, wParam, lParam);
    if (m_layoutMode == LayoutMode::kNone || message != TB_GETBUTTON || result == 0)
        return result;
    auto& button = *reinterpret_cast<TBBUTTON*>(lParam);
    if (IsPlaceholder(button)) {
        if (m_layoutMode == LayoutMode::kVertical)
            button.fsState |= TBSTATE_HIDDEN;
        else
            button.fsState &= ~TBSTATE_HIDDEN;
    }
    return result;
}

CSize CToolBarXP::CalcDynamicLayout(int length, DWORD mode) {
    const bool vertical = (mode & LM_VERTDOCK) != 0;
    m_layoutMode = vertical ? LayoutMode::kVertical : LayoutMode::kOther;
    const CSize size = CToolBar::CalcDynamicLayout(length, mode);
    m_layoutMode = LayoutMode::kNone;
    if ((mode & LM_COMMIT) != 0)
        PlaceControls(vertical);
    return size;
}

void CToolBarXP::PlaceControls(bool vertical) {
    const int count = static_cast<int>(SendMessage(TB_BUTTONCOUNT));
    for (int index = 0; index < count; ++index) {
        TBBUTTON button = {};
        if (!SendMessage(TB_GETBUTTON, index, reinterpret_cast<LPARAM>(&button)) ||
            !IsPlaceholder(button))
            continue;
        if (CWnd* control = GetDlgItem(button.idCommand))
            PlaceControl(index, button, *control, vertical);
    }
}

void CToolBarXP::PlaceControl(int index, const TBBUTTON& placeholder, CWnd& control,
                              bool vertical) {
    SendMessage(TB_HIDEBUTTON, placeholder.idCommand, MAKELPARAM(vertical, 0));
    if (vertical) {
        control.ShowWindow(SW_HIDE);
        return;
    }
    CRect place;
    SendMessage(TB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&place));
    place.InflateRect(-1, -1);
    CRect now;
    control.GetWindowRect(now);
    UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW;
    if (place.Width() == now.Width())
        flags |= SWP_NOSIZE;
    control.SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), flags);
}

BOOL CToolBarXP::OnEraseBkgnd(CDC* dc) {
    if (!tint::IsSkinEnabled(m_hWnd))
        return static_cast<BOOL>(Default());
    const int state = dc->SaveDC();
    if (::WindowFromDC(*dc) == m_hWnd) {
        // The base class erases the borders by this message too, on a context of the whole window.  The
        // client area is left out: erased before it is painted, it would flicker.
        CRect client;
        GetClientRect(client);
        ClientToScreen(client);
        CPoint origin;
        ::GetDCOrgEx(*dc, &origin);
        client.OffsetRect(-origin);
        dc->ExcludeClipRect(client);
    }
    CRect clip;
    dc->GetClipBox(clip);
    dc->FillSolidRect(clip, tint::ToolBarPainter::BackgroundColor());
    dc->RestoreDC(state);
    return TRUE;
}

void CToolBarXP::OnMouseMove(UINT flags, CPoint point) {
    m_hover.OnMouseMove();
    CToolBar::OnMouseMove(flags, point);
}

void CToolBarXP::OnMouseLeave() {
    m_hover.OnMouseLeave();
    Default(); // the control has a hot button to forget
}

void CToolBarXP::OnPaint() {
    if (m_bDelayedButtonLayout)
        Layout();
    if (!tint::IsSkinEnabled(m_hWnd)) {
        Default();
        return;
    }
    CPaintDC target(this);
    CBufferDC dc(target, nullptr);
    tint::ToolBarPainter(dc, *this, m_sizeImage).Paint();
}
