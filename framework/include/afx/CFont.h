// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

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

    int GetLogFont(LOGFONT* pLogFont);

    /// The attached CFont of a handle, else a temporary one. Null for a null handle.
    static CFont* PASCAL FromHandle(HFONT hFont);
};
