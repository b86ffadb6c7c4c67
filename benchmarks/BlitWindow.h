// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// Paints itself by one blit of a finished picture: nothing that paints a buffer can be faster.
class BlitWindow : public CWnd {
public:
    BOOL CreateIn(CWnd& parent, const CRect& place);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    CBitmap m_picture;
};

/// Invalidates a window and waits until it has painted itself.
void Repaint(CWnd& window);
