// SPDX-License-Identifier: MIT
#include "afx/CImageList.h"

#include "HandleMap.h"
#include "Handles.h"
#include "ModuleState.h"
#include "afx/CBitmap.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

namespace {

afx::HandleMap<HIMAGELIST, CImageList>& ImageListMap() {
    return afx::ThreadHandleMap<HIMAGELIST, CImageList>(&CImageList::m_hImageList);
}

} // namespace

CImageList::CImageList() : m_hImageList(nullptr) {}

CImageList::~CImageList() {
    DeleteImageList();
}

CImageList::operator HIMAGELIST() const {
    return m_hImageList;
}

HIMAGELIST CImageList::GetSafeHandle() const {
    // A plain test of `this` could be optimized away.
    const CImageList* const volatile list = this;
    return list == nullptr ? nullptr : list->m_hImageList;
}

// Creation

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask) {
    return Attach(::ImageList_LoadBitmap(afx::ResourceHandle(), lpszBitmapID, cx, nGrow, crMask));
}

BOOL CImageList::Create(CImageList* pImageList) {
    return Attach(::ImageList_Duplicate(pImageList->GetSafeHandle()));
}

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    ASSERT(m_hImageList == nullptr);
    if (hImageList == nullptr) {
        return FALSE;
    }
    Detach();
    m_hImageList = hImageList;
    ImageListMap().SetPermanent(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach() {
    const HIMAGELIST handle = m_hImageList;
    if (handle != nullptr) {
        ImageListMap().RemovePermanent(handle, this);
        m_hImageList = nullptr;
    }
    return handle;
}

BOOL CImageList::DeleteImageList() {
    return m_hImageList != nullptr && ::ImageList_Destroy(Detach());
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList) {
    return ImageListMap().FromHandle(hImageList);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList) {
    return ImageListMap().FindPermanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap() {
    ImageListMap().DeleteTemp();
}

// Images

int CImageList::GetImageCount() const {
    return ::ImageList_GetImageCount(m_hImageList);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Add(m_hImageList, afx::HandleOf<HBITMAP>(pbmImage),
                           afx::HandleOf<HBITMAP>(pbmMask));
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask) {
    return ::ImageList_AddMasked(m_hImageList, afx::HandleOf<HBITMAP>(pbmImage), crMask);
}

int CImageList::Add(HICON hIcon) {
    return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon);
}

BOOL CImageList::Remove(int nImage) {
    return ::ImageList_Remove(m_hImageList, nImage);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Replace(m_hImageList, nImage, afx::HandleOf<HBITMAP>(pbmImage),
                               afx::HandleOf<HBITMAP>(pbmMask));
}

int CImageList::Replace(int nImage, HICON hIcon) {
    return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon);
}

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
    return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

HICON CImageList::ExtractIcon(int nImage) {
    return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL);
}

BOOL CImageList::SetOverlayImage(int nImage, int nOverlay) {
    return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
}

COLORREF CImageList::GetBkColor() const {
    return ::ImageList_GetBkColor(m_hImageList);
}

COLORREF CImageList::SetBkColor(COLORREF cr) {
    return ::ImageList_SetBkColor(m_hImageList, cr);
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
    return ::ImageList_Draw(m_hImageList, nImage, afx::OutputOf(pDC), pt.x, pt.y, nStyle);
}
