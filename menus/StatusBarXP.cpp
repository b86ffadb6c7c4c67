// SPDX-License-Identifier: MIT
#include "menus/StatusBarXP.h"

#include <afxcmn.h>

#include "draw/Selectors.h"
#include "draw/Skin.h"

namespace {

constexpr int kMinHeight = 20; ///< pixels, so that the bar is as tall as the flat frames need

} // namespace

BEGIN_MESSAGE_MAP(CStatusBarXP, CStatusBar)
    ON_WM_PAINT()
    ON_REGISTERED_MESSAGE(tint::skinSwitchMessage, &CStatusBarXP::OnSkinSwitch)
END_MESSAGE_MAP()

BOOL CStatusBarXP::SetIndicators(const UINT* indicators, int count) {
    if (!CStatusBar::SetIndicators(indicators, count))
        return FALSE;
    m_ownStyles.clear();
    for (int pane = 0; pane < count; ++pane) {
        UINT id = 0;
        UINT style = 0;
        int width = 0;
        GetPaneInfo(pane, id, style, width);
        m_ownStyles.push_back(style);
    }
    if (tint::IsSkinEnabled(m_hWnd))
        ApplyLook(true);
    return TRUE;
}

/// Takes the panes' borders away, or gives them back to those that had one.
void CStatusBarXP::ApplyLook(bool skinned) {
    SendMessage(SB_SETMINHEIGHT, skinned ? kMinHeight : 0);
    for (int pane = 0; pane < static_cast<int>(m_ownStyles.size()); ++pane) {
        UINT id = 0;
        UINT style = 0;
        int width = 0;
        GetPaneInfo(pane, id, style, width);
        const UINT borders = skinned ? SBPS_NOBORDERS : m_ownStyles[pane] & SBPS_NOBORDERS;
        SetPaneInfo(pane, id, (style & ~UINT{SBPS_NOBORDERS}) | borders, width);
    }
}

LRESULT CStatusBarXP::OnSkinSwitch(WPARAM enabled, LPARAM) {
    ApplyLook(enabled != FALSE);
    if (CFrameWnd* const frame = GetParentFrame())
        frame->RecalcLayout(); // the height has changed
    return 0;
}

void CStatusBarXP::OnPaint() {
    Default();
    if (tint::IsSkinEnabled(m_hWnd))
        PaintFrames();
}

void CStatusBarXP::PaintFrames() {
    CClientDC dc(this);
    const CPenSelector pen(dc, ::GetSysColor(COLOR_BTNSHADOW));
    const CBrushSelector brush(dc, tint::kNoColor);
    const int count = static_cast<int>(SendMessage(SB_GETPARTS));
    for (int pane = 0; pane < count; ++pane) {
        CRect rect;
        GetItemRect(pane, rect);
        dc.Rectangle(rect);
    }
}
