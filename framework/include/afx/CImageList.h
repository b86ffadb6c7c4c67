// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>
#include <commctrl.h>

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

    /// @name Creation and attachment
    /// @{
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
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
    int Add(HICON hIcon);
    /// @}
};
