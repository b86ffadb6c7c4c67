// SPDX-License-Identifier: MIT
#include "afx/CBrush.h"

#include "GdiObjectMap.h"

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

CBrush::CBrush() = default;

CBrush::CBrush(COLORREF crColor) {
    if (!CreateSolidBrush(crColor)) {
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

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush) {
    return afx::GdiObjectFromHandle<CBrush>(hBrush);
}
