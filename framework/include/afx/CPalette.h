// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CGdiObject.h"

/// A GDI colour palette.
class CPalette : public CGdiObject {
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette();

    operator HPALETTE() const;

    /// The attached CPalette of a handle, else a temporary one. Null for a null handle.
    static CPalette* PASCAL FromHandle(HPALETTE hPalette);
};
