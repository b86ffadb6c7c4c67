// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// A push button, check box, radio button or group box. Pictures stay the caller's.
class CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    CButton();

    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID);

    int GetCheck() const;
    void SetCheck(int nCheck);
    /// The BS_ style in its low bits.
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);

    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;

    /// Draws a button with BS_OWNERDRAW. Override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
