// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// A static control: a text, a picture or a frame. Pictures stay the caller's.
class CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic();

    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);

    /// Each setter returns the previous picture, or null.
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;

    /// Draws a control with SS_OWNERDRAW. Override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
