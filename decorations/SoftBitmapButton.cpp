// SPDX-License-Identifier: MIT
#include "decorations/SoftBitmapButton.h"

#include <commctrl.h>

#include <algorithm>

IMPLEMENT_DYNCREATE(CSoftBitmapButton, CBitmapButton)

BEGIN_MESSAGE_MAP(CSoftBitmapButton, CBitmapButton)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
END_MESSAGE_MAP()

void CSoftBitmapButton::PreSubclassWindow() {
    CBitmapButton::PreSubclassWindow();
    ModifyStyle(0, BS_OWNERDRAW);
    m_mouseOver = 0; // a former window may have gone with the mouse over it, and is never left
}

void CSoftBitmapButton::OnMouseMove(UINT, CPoint) {
    if (m_mouseOver == 0) {
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
        ::_TrackMouseEvent(&track);
        m_mouseOver = 1;
        Invalidate(FALSE);
    }
    Default();
}

void CSoftBitmapButton::OnMouseLeave() {
    m_mouseOver = 0;
    Invalidate(FALSE);
}

CBitmap& CSoftBitmapButton::BitmapFor(UINT itemState) {
    const auto loaded = [](const CBitmap& bitmap) { return bitmap.GetSafeHandle() != nullptr; };
    if ((itemState & ODS_SELECTED) != 0 && loaded(m_bitmapSel))
        return m_bitmapSel;
    if ((itemState & ODS_DISABLED) != 0 && loaded(m_bitmapDisabled))
        return m_bitmapDisabled;
    if (m_mouseOver != 0 && loaded(m_bitmapFocus))
        return m_bitmapFocus;
    return m_bitmap;
}

void CSoftBitmapButton::DrawItem(LPDRAWITEMSTRUCT item) {
    CDC* const target = CDC::FromHandle(item->hDC);
    CDC memory;
    if (target == nullptr || !memory.CreateCompatibleDC(target))
        return;
    CBitmap* const previous = memory.SelectObject(&BitmapFor(item->itemState));
    if (previous == nullptr)
        return;
    const CRect rect(item->rcItem);
    target->BitBlt(rect.left, rect.top, rect.Width(), rect.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(previous);
}

void CSoftBitmapButton::DeleteBitmaps() {
    for (CBitmap* bitmap : {&m_bitmap, &m_bitmapSel, &m_bitmapFocus, &m_bitmapDisabled})
        bitmap->DeleteObject();
}

BOOL CSoftBitmapButton::LoadBitmapStrip(UINT resourceId, UINT count) {
    DeleteBitmaps();
    if (count == 0)
        return FALSE;
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(resourceId), RT_BITMAP);
    CBitmap strip;
    if (!strip.Attach(::LoadBitmap(module, MAKEINTRESOURCE(resourceId))))
        return FALSE;
    if (CutFrames(strip, count))
        return TRUE;
    DeleteBitmaps();
    return FALSE;
}

BOOL CSoftBitmapButton::CutFrames(CBitmap& strip, UINT count) {
    BITMAP size = {};
    strip.GetBitmap(&size);
    const int width = static_cast<int>(static_cast<UINT>(size.bmWidth) / count);
    if (width == 0) // GDI would answer with a bitmap that belongs to it
        return FALSE;

    CClientDC client(this);
    CDC source;
    CDC frame;
    if (!source.CreateCompatibleDC(&client) || !frame.CreateCompatibleDC(&client))
        return FALSE;
    CBitmap* const previousStrip = source.SelectObject(&strip);
    if (previousStrip == nullptr)
        return FALSE;

    CBitmap* const targets[] = {&m_bitmap, &m_bitmapSel, &m_bitmapFocus, &m_bitmapDisabled};
    const int frames = static_cast<int>(std::min<UINT>(count, 4));
    BOOL made = TRUE;
    for (int k = 0; k < frames && made; ++k) {
        made = targets[k]->CreateCompatibleBitmap(&source, width, size.bmHeight);
        CBitmap* const previous = made ? frame.SelectObject(targets[k]) : nullptr;
        if (previous != nullptr) {
            frame.BitBlt(0, 0, width, size.bmHeight, &source, k * width, 0, SRCCOPY);
            frame.SelectObject(previous);
        }
    }
    source.SelectObject(previousStrip);
    return made;
}
