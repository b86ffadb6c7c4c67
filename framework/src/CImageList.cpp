// SPDX-License-Identifier: MIT
#include "afx/CImageList.h"

#include "HandleMap.h"

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

int CImageList::Add(HICON hIcon) {
    return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon);
}
