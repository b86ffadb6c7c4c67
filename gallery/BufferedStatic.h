// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// A static whose picture a derived class draws, into a buffer and as a whole.
class CBufferedStatic : public CStatic {
protected:
    /// Draws what the window shows, over the colour of the dialog.
    /// @param dc      writes in the dialogs' font and text colour, over what is there; put everything
    ///                back that you select
    /// @param client  the window, all of it
    virtual void Draw(CDC& dc, const CRect& client) = 0;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};
