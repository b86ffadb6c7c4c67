// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

#include <atltypes.h>
#include <commctrl.h>

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
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap);

    /// In the format of the device of `pDC`, or of the bitmap selected in a memory context.
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);

    /// Loads a bitmap resource of the program.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);

    /// Loads one of the system's own bitmaps (OBM_CHECK ...).
    BOOL LoadOEMBitmap(UINT nIDBitmap);

    /// Loads a bitmap resource and replaces colours in it.
    /// @param lpColorMap  `nMapSize` pairs of colours; null to map the usual button colours to
    ///                    those of the system.
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = NULL,
                          int nMapSize = 0);

    int GetBitmap(BITMAP* pBitMap);

    /// Copy at most `dwCount` bytes of pixels; number of bytes copied.
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits);

    /// A size in 0.1 millimetre that programs may note at the bitmap; GDI itself ignores it.
    CSize GetBitmapDimension() const;
    CSize SetBitmapDimension(int nWidth, int nHeight);

    /// The attached CBitmap of a handle, else a temporary one. Null for a null handle.
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
};
