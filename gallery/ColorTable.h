// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// Every pair of colours that the toolkit paints (ColorPairs), as a sample of text with its contrast
/// ratio beside it, in two columns.
class CColorTable : public CStatic {
protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};
