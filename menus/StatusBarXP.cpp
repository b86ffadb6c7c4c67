// SPDX-License-Identifier: MIT
#include "menus/StatusBarXP.h"

#include <afxcmn.h>

#include "draw/Selectors.h"

namespace {

constexpr int kMinHeight = 20; ///< pixels, so that the bar is as tall as the flat frames need

} // namespace

BEGIN_MESSAGE_MAP(CStatusBarXP, CStatusBar)
    ON_WM_PAINT()
END_MESSAGE_MAP()

BOOL CStatusBarXP::SetIndicators(const UINT* indicators, int count) {
    if (!CStatusBar::SetIndicators(indicators, count))
        return FALSE;
    SendMessage(SB_SETMINHEIGHT, kMinHeight);
    for (int pane = 0; pane < count; ++pane) {
        UINT id = 0;
        UINT style = 0;
        int width = 0;
        GetPaneInfo(pane, id, style, width);
        SetPaneInfo(pane, id, style | SBPS_NOBORDERS, width);
    }
    return TRUE;
}

void CStatusBarXP::OnPaint() {
    Default();
    CClientDC dc(this);
    CPenSelector pen(dc, ::GetSysColor(COLOR_BTNSHADOW));
    CBrushSelector brush(dc, tint::kNoColor);
    const int count = static_cast<int>(SendMessage(SB_GETPARTS));
    for (int pane = 0; pane < count; ++pane) {
        CRect rect;
        GetItemRect(pane, rect);
        dc.Rectangle(rect);
    }
}
