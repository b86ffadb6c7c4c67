// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CButton, CWnd)

CButton::CButton() = default;

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID) {
    return CWnd::Create(WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

int CButton::GetCheck() const {
    return Send<int>(*this, BM_GETCHECK);
}

void CButton::SetCheck(int nCheck) {
    Send(*this, BM_SETCHECK, nCheck);
}

UINT CButton::GetButtonStyle() const {
    return GetStyle() & 0xFF;
}

void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw) {
    Send(*this, BM_SETSTYLE, nStyle, bRedraw);
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap) {
    return Send<HBITMAP>(*this, BM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CButton::GetBitmap() const {
    return Send<HBITMAP>(*this, BM_GETIMAGE, IMAGE_BITMAP);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
