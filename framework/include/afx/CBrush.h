// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

class CBitmap;

/// A GDI brush. The constructors with arguments throw CResourceException when it cannot be made.
class CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush();
    CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);

    operator HBRUSH() const;

    BOOL CreateSolidBrush(COLORREF crColor);

    /// @param nIndex  HS_CROSS, HS_VERTICAL ...
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush);

    /// GDI copies the pattern: the bitmap may be deleted afterwards and stays the caller's.
    BOOL CreatePatternBrush(CBitmap* pBitmap);

    /// @param hPackedDIB, lpPackedDIB  BITMAPINFO followed by its pixels.
    /// @param nUsage                   DIB_RGB_COLORS or DIB_PAL_COLORS.
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage);
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage);

    /// The system's own brush for COLOR_3DFACE ...; it outlives this object.
    BOOL CreateSysColorBrush(int nIndex);

    int GetLogBrush(LOGBRUSH* pLogBrush);

    /// The attached CBrush of a handle, else a temporary one. Null for a null handle.
    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
};
