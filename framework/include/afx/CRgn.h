// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

/// A GDI region.
class CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn();

    operator HRGN() const;

    /// The right and bottom edges are outside the region.
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);

    /// The attached CRgn of a handle, else a temporary one. Null for a null handle.
    static CRgn* PASCAL FromHandle(HRGN hRgn);
};
