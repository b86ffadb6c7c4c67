// SPDX-License-Identifier: MIT
// CDC: text output and measurement.
#include "Handles.h"
#include "afx/CBrush.h"
#include "afx/CDC.h"

namespace {

/// A size as the tabbed-text functions pack it: two signed 16-bit values. Without a device context
/// they may report whatever they find on the stack.
CSize UnpackSize(HDC hDC, DWORD packed) {
    if (hDC == nullptr) {
        return CSize(0, 0);
    }
    return CSize(static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed)));
}

CSize TextExtent(HDC hDC, LPCTSTR text, int length) {
    CSize size(0, 0);
    ::GetTextExtentPoint32(hDC, text, length, &size);
    return size;
}

/// The system may shorten a text in place only if the caller lends it a buffer for that.
UINT WithoutModifying(UINT format) {
    ASSERT((format & DT_MODIFYSTRING) == 0);
    return format & ~static_cast<UINT>(DT_MODIFYSTRING);
}

} // namespace

// Output

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths) {
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin) {
    return UnpackSize(
        m_hDC, static_cast<DWORD>(::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions,
                                                  lpnTabStopPositions, nTabOrigin)));
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return DrawText(str.GetString(), str.GetLength(), lpRect, WithoutModifying(nFormat));
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                    LPDRAWTEXTPARAMS lpDTParams) {
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                     int nCount, int x, int y, int nWidth, int nHeight) {
    return ::GrayString(m_hDC, afx::HandleOf<HBRUSH>(pBrush), lpfnOutput, lpData, nCount, x, y,
                        nWidth, nHeight);
}

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) {
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

// Measurement

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    return TextExtent(m_hAttribDC, lpszString, nCount);
}

CSize CDC::GetTextExtent(const CString& str) const {
    return GetTextExtent(str.GetString(), str.GetLength());
}
