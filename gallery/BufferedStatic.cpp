// SPDX-License-Identifier: MIT
#include "gallery/BufferedStatic.h"

#include "draw/BufferDC.h"
#include "draw/Selectors.h"

BEGIN_MESSAGE_MAP(CBufferedStatic, CStatic)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

BOOL CBufferedStatic::OnEraseBkgnd(CDC*) {
    return TRUE; // OnPaint covers everything
}

void CBufferedStatic::OnPaint() {
    CPaintDC target(this);
    CRect client;
    GetClientRect(client);

    CBufferDC dc(target, client);
    dc.FillSolidRect(client, ::GetSysColor(COLOR_BTNFACE));
    const CDCObjectSaver font(dc, DEFAULT_GUI_FONT, ::GetSysColor(COLOR_BTNTEXT));
    dc.SetBkMode(TRANSPARENT);
    Draw(dc, client);
}
