// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>
#include <commctrl.h>

class CBitmap;
class CDC;

/// Images of one size in one bitmap, counted from 0. The attached list is destroyed with the object,
/// unless Detach() took it back before; an object from FromHandle() may be temporary and owns nothing.
class CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)

public:
    /// The attached handle or null. Read it; change it by Attach() and Detach() only.
    HIMAGELIST m_hImageList;

    CImageList();
    ~CImageList() override;

    operator HIMAGELIST() const;
    /// The attached handle; null for a null pointer.
    HIMAGELIST GetSafeHandle() const;

    /// @name Creation, for an object that holds no list
    /// @{
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    /// From a bitmap resource; `crMask` is the colour that becomes transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(CImageList* pImageList);
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL DeleteImageList();
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    /// @}

    /// @name Images
    /// @{
    int GetImageCount() const;
    /// @return the index of the first new image, -1 on failure.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    BOOL Remove(int nImage);
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon);
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;
    /// The caller destroys the icon.
    HICON ExtractIcon(int nImage);
    BOOL SetOverlayImage(int nImage, int nOverlay);
    /// @}

    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF cr);
    /// @param nStyle  ILD_ flags.
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
};
