// SPDX-License-Identifier: MIT
#include <afxext.h>

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

CBitmapButton::CBitmapButton() = default;

namespace {

/// Replaces a bitmap by a resource, or by none when there is no name. False when it is missing.
bool Reload(CBitmap& bitmap, LPCTSTR name) {
    bitmap.DeleteObject();
    return name == nullptr || bitmap.LoadBitmap(name);
}

} // namespace

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus,
                                LPCTSTR lpszBitmapResourceDisabled) {
    m_bitmapSel.DeleteObject();
    m_bitmapFocus.DeleteObject();
    m_bitmapDisabled.DeleteObject();
    if (!Reload(m_bitmap, lpszBitmapResource)) {
        return FALSE;
    }
    // All three are tried: a missing one does not keep the others away.
    const bool sel = Reload(m_bitmapSel, lpszBitmapResourceSel);
    const bool focus = Reload(m_bitmapFocus, lpszBitmapResourceFocus);
    const bool disabled = Reload(m_bitmapDisabled, lpszBitmapResourceDisabled);
    return m_bitmap.GetSafeHandle() != nullptr && sel && focus && disabled;
}

BOOL CBitmapButton::LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel,
                                UINT nIDBitmapResourceFocus, UINT nIDBitmapResourceDisabled) {
    return LoadBitmaps(MAKEINTRESOURCE(nIDBitmapResource), MAKEINTRESOURCE(nIDBitmapResourceSel),
                       MAKEINTRESOURCE(nIDBitmapResourceFocus),
                       MAKEINTRESOURCE(nIDBitmapResourceDisabled));
}

void CBitmapButton::SizeToContent() {
    BITMAP size = {};
    if (m_bitmap.GetBitmap(&size) != 0) {
        SetWindowPos(nullptr, -1, -1, size.bmWidth, size.bmHeight,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
    }
}

const CBitmap& CBitmapButton::BitmapForState(UINT itemState) const {
    if ((itemState & ODS_SELECTED) != 0 && m_bitmapSel.m_hObject != nullptr) {
        return m_bitmapSel;
    }
    // A button in no dialog's order of tabs has no use for a focused look.
    const bool tabStop = (GetStyle() & WS_TABSTOP) != 0;
    if ((itemState & ODS_FOCUS) != 0 && tabStop && m_bitmapFocus.m_hObject != nullptr) {
        return m_bitmapFocus;
    }
    if ((itemState & ODS_DISABLED) != 0 && m_bitmapDisabled.m_hObject != nullptr) {
        return m_bitmapDisabled;
    }
    return m_bitmap;
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    const CBitmap& shown = BitmapForState(lpDrawItemStruct->itemState);
    if (shown.m_hObject == nullptr) {
        return;
    }
    const HDC memory = ::CreateCompatibleDC(lpDrawItemStruct->hDC);
    if (memory == nullptr) {
        return;
    }
    const HGDIOBJ previous = ::SelectObject(memory, shown.m_hObject);
    const CRect rect(lpDrawItemStruct->rcItem);
    ::BitBlt(lpDrawItemStruct->hDC, rect.left, rect.top, rect.Width(), rect.Height(), memory, 0, 0,
             SRCCOPY);
    ::SelectObject(memory, previous);
    ::DeleteDC(memory);
}
