// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

class CDC;

/// A GDI font.
class CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

public:
    CFont();

    operator HFONT() const;

    /// The arguments are the members of LOGFONT; `nHeight` in logical units. The face name is cut
    /// after LF_FACESIZE - 1 bytes; null for any face.
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                    LPCTSTR lpszFacename);
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);

    /// @param nPointSize    character height in tenths of a point.
    /// @param lpszFaceName  null for any face; cut after LF_FACESIZE - 1 bytes.
    /// @param pDC           where the font is to be used; null for the screen.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = NULL);

    /// As CreateFontIndirect(), with `lfHeight` in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = NULL);

    int GetLogFont(LOGFONT* pLogFont);

    /// The attached CFont of a handle, else a temporary one. Null for a null handle.
    static CFont* PASCAL FromHandle(HFONT hFont);
};
