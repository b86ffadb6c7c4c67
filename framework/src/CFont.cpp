// SPDX-License-Identifier: MIT
#include "afx/CFont.h"

#include "GdiObjectMap.h"

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

namespace {

void SetFaceName(LOGFONT& font, LPCTSTR faceName) {
    if (faceName != nullptr) {
        lstrcpyn(font.lfFaceName, faceName, LF_FACESIZE);
    }
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

int CFont::GetLogFont(LOGFONT* pLogFont) {
    return GetObject(sizeof *pLogFont, pLogFont);
}

CFont* PASCAL CFont::FromHandle(HFONT hFont) {
    return afx::GdiObjectFromHandle<CFont>(hFont);
}
