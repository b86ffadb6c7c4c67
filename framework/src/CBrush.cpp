// SPDX-License-Identifier: MIT
#include "afx/CBrush.h"

#include "GdiObjectMap.h"
#include "Handles.h"
#include "afx/CBitmap.h"

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

CBrush::CBrush() = default;

CBrush::CBrush(COLORREF crColor) {
    if (!CreateSolidBrush(crColor)) {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(int nIndex, COLORREF crColor) {
    if (!CreateHatchBrush(nIndex, crColor)) {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(CBitmap* pBitmap) {
    if (!CreatePatternBrush(pBitmap)) {
        AfxThrowResourceException();
    }
}

CBrush::operator HBRUSH() const {
    return static_cast<HBRUSH>(m_hObject);
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor) {
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor) {
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush) {
    return Attach(::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return Attach(::CreatePatternBrush(afx::HandleOf<HBITMAP>(pBitmap)));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage) {
    return Attach(::CreateDIBPatternBrush(hPackedDIB, nUsage));
}

BOOL CBrush::CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage) {
    return Attach(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}

BOOL CBrush::CreateSysColorBrush(int nIndex) {
    return Attach(::GetSysColorBrush(nIndex));
}

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush) {
    return GetObject(sizeof *pLogBrush, pLogBrush);
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush) {
    return afx::GdiObjectFromHandle<CBrush>(hBrush);
}
