// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

/// A GDI pen. The constructor with arguments throws CResourceException when it cannot be made.
class CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

public:
    CPen();
    CPen(int nPenStyle, int nWidth, COLORREF crColor);

    operator HPEN() const;

    /// @param nPenStyle  PS_SOLID, PS_DASH ...
    /// @param nWidth     logical units; 0 is one pixel in every mapping mode.
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);

    /// The attached CPen of a handle, else a temporary one. Null for a null handle.
    static CPen* PASCAL FromHandle(HPEN hPen);
};
