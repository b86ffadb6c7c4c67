// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

class CDC;

/// A GDI colour palette.
class CPalette : public CGdiObject {
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette();

    operator HPALETTE() const;

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette);
    BOOL CreateHalftonePalette(CDC* pDC);

    int GetEntryCount();

    /// Number of entries copied; with a null buffer, the number of entries there are.
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                           LPPALETTEENTRY lpPaletteColors) const;
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    void AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    UINT GetNearestPaletteIndex(COLORREF crColor) const;
    BOOL ResizePalette(UINT nNumEntries);

    /// The attached CPalette of a handle, else a temporary one. Null for a null handle.
    static CPalette* PASCAL FromHandle(HPALETTE hPalette);
};
