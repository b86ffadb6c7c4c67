// SPDX-License-Identifier: MIT
#pragma once

#include "gallery/BufferedStatic.h"

/// A picture table of glyph buttons: a row for each kind, a column for each look and state.
class CGlyphTable : public CBufferedStatic {
protected:
    void Draw(CDC& dc, const CRect& client) override;
};
