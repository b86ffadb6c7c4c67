// SPDX-License-Identifier: MIT
#include "afx/CPen.h"

#include "GdiObjectMap.h"

IMPLEMENT_DYNAMIC(CPen, CGdiObject)

CPen::CPen() = default;

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    if (!CreatePen(nPenStyle, nWidth, crColor)) {
        AfxThrowResourceException();
    }
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
           const DWORD* lpStyle) {
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle)) {
        AfxThrowResourceException();
    }
}

CPen::operator HPEN() const {
    return static_cast<HPEN>(m_hObject);
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle) {
    return Attach(::ExtCreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen) {
    return Attach(::CreatePenIndirect(lpLogPen));
}

int CPen::GetLogPen(LOGPEN* pLogPen) {
    return GetObjectType() == OBJ_PEN ? GetObject(sizeof *pLogPen, pLogPen) : 0;
}

int CPen::GetExtLogPen(EXTLOGPEN* pLogPen) {
    return GetObjectType() == OBJ_EXTPEN ? GetObject(sizeof *pLogPen, pLogPen) : 0;
}

CPen* PASCAL CPen::FromHandle(HPEN hPen) {
    return afx::GdiObjectFromHandle<CPen>(hPen);
}
