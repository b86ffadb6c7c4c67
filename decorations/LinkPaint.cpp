// SPDX-License-Identifier: MIT
#include "decorations/LinkPaint.h"

namespace tint {
namespace {

/// Has the parent erase its background where the child is.
void EraseAsParent(const CWnd& child, CDC& dc) {
    CWnd* const parent = child.GetParent();
    if (parent == nullptr)
        return;
    CPoint origin(0, 0);
    child.MapWindowPoints(parent, &origin, 1);
    const int state = dc.SaveDC();
    dc.SetWindowOrg(origin);
    dc.SetBrushOrg(-origin.x, -origin.y); // a pattern goes on where the parent's own stops
    parent->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0);
    dc.RestoreDC(state);
}

void Paint(const CWnd& child, CDC& dc, const std::function<void(CDC&)>& draw) {
    EraseAsParent(child, dc);
    draw(dc);
}

} // namespace

void PaintOnParent(const CWnd& child, CDC& target, const CRect& client,
                   const std::function<void(CDC&)>& draw) {
    CBitmap bitmap;
    CDC buffer;
    CBitmap* previous = nullptr;
    if (!client.IsRectEmpty() && buffer.CreateCompatibleDC(&target) &&
        bitmap.CreateCompatibleBitmap(&target, client.Width(), client.Height()))
        previous = buffer.SelectObject(&bitmap);
    if (previous == nullptr) {
        Paint(child, target, draw);
        return;
    }
    Paint(child, buffer, draw);
    target.BitBlt(0, 0, client.Width(), client.Height(), &buffer, 0, 0, SRCCOPY);
    buffer.SelectObject(previous);
}

} // namespace tint
