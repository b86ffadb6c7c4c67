// SPDX-License-Identifier: MIT
#include "afx/CBitmap.h"

#include "GdiObjectMap.h"
#include "Handles.h"
#include "ModuleState.h"

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

CBitmap::CBitmap() = default;

CBitmap::operator HBITMAP() const {
    return static_cast<HBITMAP>(m_hObject);
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount,
                           const void* lpBits) {
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(afx::OutputOf(pDC), nWidth, nHeight));
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    return Attach(::LoadBitmap(afx::ResourceHandle(), lpszResourceName));
}

BOOL CBitmap::LoadBitmap(UINT nIDResource) {
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CBitmap::LoadOEMBitmap(UINT nIDBitmap) {
    return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap)));
}

int CBitmap::GetBitmap(BITMAP* pBitMap) {
    return GetObject(sizeof *pBitMap, pBitMap);
}

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap) {
    return afx::GdiObjectFromHandle<CBitmap>(hBitmap);
}
