// SPDX-License-Identifier: MIT
#include "benchmarks/BlitWindow.h"

BEGIN_MESSAGE_MAP(BlitWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

BOOL BlitWindow::CreateIn(CWnd& parent, const CRect& place) {
    CClientDC screen(nullptr);
    m_picture.CreateCompatibleBitmap(&screen, place.Width(), place.Height());
    return Create(nullptr, "", WS_CHILD | WS_VISIBLE, place, &parent, 0);
}

void BlitWindow::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* const previous = memory.SelectObject(&m_picture);
    dc.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(previous);
}

void Repaint(CWnd& window) {
    window.Invalidate(FALSE);
    window.UpdateWindow();
}
