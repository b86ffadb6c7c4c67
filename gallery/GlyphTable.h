// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// A picture table of glyph buttons: a row for each kind, a column for each look and state.
class CGlyphTable : public CStatic {
protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};
