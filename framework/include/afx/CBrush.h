// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

/// A GDI brush. The constructor with a colour throws CResourceException when it cannot be made.
class CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush();
    CBrush(COLORREF crColor);

    operator HBRUSH() const;

    BOOL CreateSolidBrush(COLORREF crColor);
    /// @param nIndex  HS_CROSS, HS_VERTICAL ...
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);

    /// The attached CBrush of a handle, else a temporary one. Null for a null handle.
    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
};
