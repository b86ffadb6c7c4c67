// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

class CDC;

/// A GDI region. Functions that return int give the complexity of the result: NULLREGION,
/// SIMPLEREGION, COMPLEXREGION, or ERROR.
class CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn();

    operator HRGN() const;

    /// @name Creation: the right and bottom edges are outside the region.
    /// @{
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect);

    /// @param x3, y3  width and height of the ellipse that rounds the corners.
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3);

    /// @param nMode, nPolyFillMode  ALTERNATE or WINDING.
    BOOL CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode);

    /// @param lpPolyCounts  number of points of each of the `nCount` polygons.
    BOOL CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode);

    /// From the closed path in `pDC`, which is used up.
    BOOL CreateFromPath(CDC* pDC);

    /// From what GetRegionData() gave.
    /// @param lpXForm  null for none.
    /// @param nCount   size of `pRgnData` in bytes.
    BOOL CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData);
    /// @}

    /// @name Changing an existing region
    /// @{
    void SetRectRgn(int x1, int y1, int x2, int y2);
    void SetRectRgn(LPCRECT lpRect);

    /// Replaces this region, which must exist, by the combination (RGN_AND, RGN_OR ...). It may be
    /// one of the two combined. `pRgn2` is ignored for RGN_COPY.
    int CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode);
    int CopyRgn(CRgn* pRgnSrc);
    int OffsetRgn(int x, int y);
    int OffsetRgn(POINT point);
    /// @}

    BOOL EqualRgn(CRgn* pRgn) const;
    int GetRgnBox(LPRECT lpRect) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(POINT point) const;
    BOOL RectInRegion(LPCRECT lpRect) const;

    /// With a null buffer: the size in bytes that it must have.
    int GetRegionData(LPRGNDATA lpRgnData, int nDataSize) const;

    /// The attached CRgn of a handle, else a temporary one. Null for a null handle.
    static CRgn* PASCAL FromHandle(HRGN hRgn);
};
