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

CPen::operator HPEN() const {
    return static_cast<HPEN>(m_hObject);
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

CPen* PASCAL CPen::FromHandle(HPEN hPen) {
    return afx::GdiObjectFromHandle<CPen>(hPen);
}
