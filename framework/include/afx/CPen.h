// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

/// A GDI pen. The constructors with arguments throw CResourceException when the pen cannot be made.
class CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

public:
    CPen();
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = NULL);

    operator HPEN() const;

    /// @param nPenStyle  PS_SOLID, PS_DASH ...
    /// @param nWidth     logical units; 0 is one pixel in every mapping mode.
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);

    /// A pen with end caps, joins and a brush of its own.
    /// @param nStyleCount, lpStyle  lengths of dashes and gaps for PS_USERSTYLE, else zero, null.
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = NULL);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);

    /// The description of the pen; zero on failure, also for a pen of the other kind.
    int GetLogPen(LOGPEN* pLogPen);
    int GetExtLogPen(EXTLOGPEN* pLogPen);

    /// The attached CPen of a handle, else a temporary one. Null for a null handle.
    static CPen* PASCAL FromHandle(HPEN hPen);
};
