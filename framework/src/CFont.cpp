// SPDX-License-Identifier: MIT
#include "afx/CFont.h"

#include "GdiObjectMap.h"
#include "afx/CClientDC.h"

#include <cstdlib>

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

namespace {

void SetFaceName(LOGFONT& font, LPCTSTR faceName) {
    if (faceName != nullptr) {
        lstrcpyn(font.lfFaceName, faceName, LF_FACESIZE);
    }
}

/// @param height  in tenths of a point.
/// @return the logical height of the characters, negative as LOGFONT has it for them.
LONG LogicalFontHeight(const CDC& dc, LONG height) {
    CPoint size(0, MulDiv(dc.GetDeviceCaps(LOGPIXELSY), height, 720));
    CPoint origin(0, 0);
    dc.DPtoLP(&size);
    dc.DPtoLP(&origin);
    return -std::abs(size.y - origin.y);
}

} // namespace

CFont::CFont() = default;

CFont::operator HFONT() const {
    return static_cast<HFONT>(m_hObject);
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                       BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                       LPCTSTR lpszFacename) {
    LOGFONT font = {};
    font.lfHeight = nHeight;
    font.lfWidth = nWidth;
    font.lfEscapement = nEscapement;
    font.lfOrientation = nOrientation;
    font.lfWeight = nWeight;
    font.lfItalic = bItalic;
    font.lfUnderline = bUnderline;
    font.lfStrikeOut = cStrikeOut;
    font.lfCharSet = nCharSet;
    font.lfOutPrecision = nOutPrecision;
    font.lfClipPrecision = nClipPrecision;
    font.lfQuality = nQuality;
    font.lfPitchAndFamily = nPitchAndFamily;
    SetFaceName(font, lpszFacename);
    return CreateFontIndirect(&font);
}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont) {
    return Attach(::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    LOGFONT font = {};
    font.lfHeight = nPointSize;
    font.lfCharSet = DEFAULT_CHARSET;
    SetFaceName(font, lpszFaceName);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    LOGFONT font = *lpLogFont;
    font.lfHeight = pDC != nullptr ? LogicalFontHeight(*pDC, font.lfHeight)
                                   : LogicalFontHeight(CClientDC(nullptr), font.lfHeight);
    return CreateFontIndirect(&font);
}

int CFont::GetLogFont(LOGFONT* pLogFont) {
    return GetObject(sizeof *pLogFont, pLogFont);
}

CFont* PASCAL CFont::FromHandle(HFONT hFont) {
    return afx::GdiObjectFromHandle<CFont>(hFont);
}
