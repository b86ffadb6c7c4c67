// SPDX-License-Identifier: MIT
#pragma once

#include "gallery/BufferedStatic.h"

/// Every pair of colours that the toolkit paints (ColorPairs), as a sample of text with its contrast
/// ratio beside it, in two columns.
class CColorTable : public CBufferedStatic {
protected:
    void Draw(CDC& dc, const CRect& client) override;
};
