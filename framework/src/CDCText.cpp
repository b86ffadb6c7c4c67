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

BOOL CDC::TextOut(int x, int y, const CString& str) {
    return TextOut(x, y, str.GetString(), str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths) {
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str,
                     LPINT lpDxWidths) {
    return ExtTextOut(x, y, nOptions, lpRect, str.GetString(), static_cast<UINT>(str.GetLength()),
                      lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin) {
    return UnpackSize(
        m_hDC, static_cast<DWORD>(::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions,
                                                  lpnTabStopPositions, nTabOrigin)));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& str, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin) {
    return TabbedTextOut(x, y, str.GetString(), str.GetLength(), nTabPositions, lpnTabStopPositions,
                         nTabOrigin);
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

int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams) {
    // Only DT_MODIFYSTRING would write to the text.
    return DrawTextEx(const_cast<LPTSTR>(str.GetString()), str.GetLength(), lpRect,
                      WithoutModifying(nFormat), lpDTParams);
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                     int nCount, int x, int y, int nWidth, int nHeight) {
    return ::GrayString(m_hDC, afx::HandleOf<HBRUSH>(pBrush), lpfnOutput, lpData, nCount, x, y,
                        nWidth, nHeight);
}

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) {
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

int CDC::Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize,
                LPSTR lpszOutputData) {
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}

// Measurement

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    return TextExtent(m_hAttribDC, lpszString, nCount);
}

CSize CDC::GetTextExtent(const CString& str) const {
    return GetTextExtent(str.GetString(), str.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const {
    return TextExtent(m_hDC, lpszString, nCount);
}

CSize CDC::GetOutputTextExtent(const CString& str) const {
    return GetOutputTextExtent(str.GetString(), str.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                               LPINT lpnTabStopPositions) const {
    return UnpackSize(m_hAttribDC, ::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount,
                                                         nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetTabbedTextExtent(const CString& str, int nTabPositions,
                               LPINT lpnTabStopPositions) const {
    return GetTabbedTextExtent(str.GetString(), str.GetLength(), nTabPositions,
                               lpnTabStopPositions);
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const {
    return ::GetTextMetrics(m_hAttribDC, lpMetrics);
}

BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const {
    return ::GetTextMetrics(m_hDC, lpMetrics);
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
    return ::GetCharWidth32(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const {
    return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
}

int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const {
    if (m_hAttribDC == nullptr || ::GetTextFace(m_hAttribDC, nCount, lpszFacename) <= 0) {
        return 0;
    }
    // What the system reports counts the terminator, too.
    return lstrlen(lpszFacename);
}

int CDC::GetTextFace(CString& rString) const {
    TCHAR name[256] = {}; // more than any name, and not only the LF_FACESIZE bytes of a request
    const int length = GetTextFace(static_cast<int>(sizeof name), name);
    rString.SetString(name, length);
    return length;
}

UINT CDC::GetTextAlign() const {
    return ::GetTextAlign(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT nFlags) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetTextAlign(hDC, nFlags); });
}

int CDC::GetTextCharacterExtra() const {
    return ::GetTextCharacterExtra(m_hAttribDC);
}

int CDC::SetTextCharacterExtra(int nCharExtra) {
    return afx::SetOnBoth(*this, [=](HDC hDC) { return ::SetTextCharacterExtra(hDC, nCharExtra); });
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount) {
    return afx::SetOnBoth(
        *this, [=](HDC hDC) { return ::SetTextJustification(hDC, nBreakExtra, nBreakCount); });
}
