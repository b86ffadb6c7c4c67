// SPDX-License-Identifier: MIT
#include "controls/ButtonXP.h"

#include "draw/BufferDC.h"
#include "draw/Hls.h"
#include "draw/Selectors.h"
#include "draw/Skin.h"

namespace {

/// Text on a pressed face: a little off white, which sits better on the tint than pure white.
constexpr COLORREF kPressedText = RGB(0xF0, 0xF0, 0xF0);

} // namespace

BEGIN_MESSAGE_MAP(CButtonXP, CButton)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_REGISTERED_MESSAGE(tint::skinSwitchMessage, &CButtonXP::OnSkinSwitch)
END_MESSAGE_MAP()

void CButtonXP::PreSubclassWindow() {
    CButton::PreSubclassWindow();
    if (tint::IsSkinEnabled(m_hWnd))
        ModifyStyle(0, BS_OWNERDRAW);
    m_hover.Attach(m_hWnd, CMouseHoverTracker::kRepaint);
}

void CButtonXP::OnMouseMove(UINT, CPoint) {
    Default();
    m_hover.OnMouseMove(m_hWnd);
}

void CButtonXP::OnMouseLeave() {
    if (!tint::IsSkinEnabled(m_hWnd))
        Default(); // the system's own button has a hot state too
    m_hover.OnMouseLeave(m_hWnd);
}

LRESULT CButtonXP::OnSkinSwitch(WPARAM enabled, LPARAM) {
    // The default button may be another one by now than it was when the dialog was loaded.
    const UINT plain = IsDialogDefault() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    const UINT kept = LOWORD(GetStyle()) & ~UINT{BS_TYPEMASK};
    SetButtonStyle(kept | (enabled != FALSE ? UINT{BS_OWNERDRAW} : plain), TRUE);
    return 0;
}

void CButtonXP::DrawItem(LPDRAWITEMSTRUCT item) {
    const Look look = LookFor(item->itemState);
    CRect rect = item->rcItem;
    CString caption;
    GetWindowText(caption);

    CBufferDC dc(item->hDC, nullptr);
    CDCObjectSaver font(dc, DEFAULT_GUI_FONT, look.text);
    CPenSelector pen(dc, look.frame);
    CBrushSelector brush(dc, look.face);

    dc.Rectangle(rect);
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(caption, rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    if ((item->itemState & ODS_FOCUS) != 0) {
        rect.DeflateRect(2, 2);
        dc.DrawFocusRect(rect);
    }
}

CButtonXP::Look CButtonXP::LookFor(UINT itemState) const {
    const bool disabled = (itemState & ODS_DISABLED) != 0;
    const bool pressed = !disabled && (itemState & ODS_SELECTED) != 0;
    const bool hot = !disabled && m_hover.IsHover();

    if (pressed || hot) {
        const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
        if (pressed)
            return {highlight, AdjustColorLS(highlight, 50, -50), kPressedText};
        return {highlight, AdjustColorLS(highlight, 80, -66), RGB(0, 0, 0)};
    }

    const bool emphasised = (itemState & ODS_FOCUS) != 0 || IsDialogDefault();
    return {::GetSysColor(emphasised ? COLOR_3DDKSHADOW : COLOR_BTNSHADOW),
            AdjustColorLS(::GetSysColor(COLOR_BTNFACE), 15, 0),
            ::GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT)};
}

bool CButtonXP::IsDialogDefault() const {
    const LRESULT reply = ::SendMessageA(::GetParent(m_hWnd), DM_GETDEFID, 0, 0);
    return LOWORD(reply) == ::GetDlgCtrlID(m_hWnd);
}
