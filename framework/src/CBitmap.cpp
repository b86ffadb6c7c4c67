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

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap) {
    return Attach(::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(afx::OutputOf(pDC), nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateDiscardableBitmap(afx::OutputOf(pDC), nWidth, nHeight));
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

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize) {
    return Attach(
        ::CreateMappedBitmap(afx::ResourceHandle(), nIDBitmap, nFlags, lpColorMap, nMapSize));
}

int CBitmap::GetBitmap(BITMAP* pBitMap) {
    return GetObject(sizeof *pBitMap, pBitMap);
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
    return ::GetBitmapBits(*this, dwCount, lpBits);
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits) {
    return ::SetBitmapBits(*this, dwCount, lpBits);
}

CSize CBitmap::GetBitmapDimension() const {
    CSize size(0, 0);
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) {
    CSize previous(0, 0);
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &previous);
    return previous;
}

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap) {
    return afx::GdiObjectFromHandle<CBitmap>(hBitmap);
}
