// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

class CDC;

/// A GDI bitmap.
class CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap();

    operator HBITMAP() const;

    /// @param nPlanes, nBitcount  colour format; 1 and 1 for a monochrome bitmap.
    /// @param lpBits  rows from the top, each padded to an even number of bytes, or null.
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);

    /// In the format of the device of `pDC`, or of the bitmap selected in a memory context.
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);

    /// Loads a bitmap resource of the program.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);

    /// Loads one of the system's own bitmaps (OBM_CHECK ...).
    BOOL LoadOEMBitmap(UINT nIDBitmap);

    int GetBitmap(BITMAP* pBitMap);

    /// The attached CBitmap of a handle, else a temporary one. Null for a null handle.
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
};
