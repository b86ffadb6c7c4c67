// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CBitmap.h"
#include "afx/CButton.h"

/// A push button that shows a bitmap for each of its states. The control needs BS_OWNERDRAW.
///
/// Only the first bitmap has to be there; it stands in for those that are not, and its size is that
/// of all.
class CBitmapButton : public CButton {
    DECLARE_DYNAMIC(CBitmapButton)

public:
    CBitmapButton();

    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = NULL,
                     LPCTSTR lpszBitmapResourceFocus = NULL,
                     LPCTSTR lpszBitmapResourceDisabled = NULL);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0,
                     UINT nIDBitmapResourceFocus = 0, UINT nIDBitmapResourceDisabled = 0);
    /// Makes the button as large as the first bitmap.
    void SizeToContent();

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    CBitmap m_bitmap;
    CBitmap m_bitmapSel;
    CBitmap m_bitmapFocus;
    CBitmap m_bitmapDisabled;

private:
    const CBitmap& BitmapForState(UINT itemState) const;
};
